#pragma once

#include <GenApi/GenApi.h>

#include <QString>

/// A camera to browse, real or not.
class BrowsedCamera
{
public:
    virtual ~BrowsedCamera() = default;

    /// Lives as long as the camera.
    virtual GenApi::INodeMap& nodeMap() const = 0;
    virtual QString vendorName() const = 0;
    virtual QString modelName() const = 0;
};
