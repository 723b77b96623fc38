#pragma once

#include "page.h"

/// The feature browser over the node map of a camera description file, on a camera that is plain memory.
std::unique_ptr<Page> makeBrowsePage(const Options& options);
