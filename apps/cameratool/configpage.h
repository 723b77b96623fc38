#pragma once

#include "page.h"

/// The configuration tool. Without a camera among the options the person chooses one; a picture shows the
/// first.
std::unique_ptr<Page> makeConfigPage(const Options& options);

/// Its About dialog.
std::unique_ptr<Page> makeAboutPage(const Options& options);
