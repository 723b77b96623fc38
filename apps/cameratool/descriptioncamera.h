#pragma once

#include "browsedcamera.h"

#include <memory>

/// Opens the description at \a file, on plain memory; when \a file is empty, the demonstration camera built
/// into the tool. \throws std::runtime_error with a text for the person, also when this build cannot read
/// descriptions.
std::unique_ptr<BrowsedCamera> openDescription(const QString& file);
