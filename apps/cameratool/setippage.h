#pragma once

#include "page.h"

/// The dialog that gives a camera another IP address, over a sample adapter.
std::unique_ptr<Page> makeSetIpPage(const Options& options);
