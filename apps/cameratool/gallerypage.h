#pragma once

#include "page.h"

/// Every value widget in every mode, with its value and the signals that it emits.
std::unique_ptr<Page> makeGalleryPage(const Options& options);
