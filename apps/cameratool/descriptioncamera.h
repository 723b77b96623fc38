#pragma once

#include <GenApi/GenApi.h>

#include <QString>

#include <memory>

/// A camera that a description file describes, on plain memory.
class DescriptionCamera
{
public:
    virtual ~DescriptionCamera() = default;

    /// Lives as long as the camera.
    virtual GenApi::INodeMap& nodeMap() const = 0;
    /// Vendor and model.
    virtual QString name() const = 0;
};

/// Opens the description at \a file; when \a file is empty, the demonstration camera built into the tool.
/// \throws std::runtime_error with a text for the person, also when this build cannot read descriptions.
std::unique_ptr<DescriptionCamera> openDescription(const QString& file);
