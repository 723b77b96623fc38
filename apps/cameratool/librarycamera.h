#pragma once

#include "browsedcamera.h"

#include <memory>

/// Opens a camera of the camera library.
/// \param id the camera's id; empty: the first camera that can be opened
/// \throws std::runtime_error with a text for the person when there is no such camera or it cannot be opened
std::unique_ptr<BrowsedCamera> openLibraryCamera(const QString& id);
