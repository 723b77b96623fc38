#pragma once

#include <ZetoCameraApi.h>

#include <memory>

struct DeviceRelease
{
    void operator()(ZetoCam::Device* device) const { device->Release(); }
};

/// Owns an open camera.
using DevicePointer = std::unique_ptr<ZetoCam::Device, DeviceRelease>;
