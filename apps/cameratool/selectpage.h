#pragma once

#include "page.h"

/// The camera selector over the camera library's cameras. It prints the camera that was chosen.
std::unique_ptr<Page> makeSelectPage(const Options& options);
