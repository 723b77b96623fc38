#pragma once

#include "page.h"

/// The feature browser over a camera of the camera library or, on plain memory, a camera description file.
std::unique_ptr<Page> makeBrowsePage(const Options& options);
