#pragma once

#include <string>

/// The description of the camera that the Aravis library simulates.
std::string fakeCameraDescription();
