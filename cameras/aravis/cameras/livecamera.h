#pragma once

#include "cameradescription.h"
#include "cameralink.h"
#include "cameraroute.h"
#include "describeddevice.h"

#include <memory>
#include <string>

namespace ZetoNodeMap {
class NodeMap;
}

namespace ZetoAravis {

/// The node map of a connected camera, made of the description that the camera itself holds.
class LiveCamera
{
public:
    /// Opens the camera. \throws ZetoGenParam::CodeException with the reason when it cannot be opened;
    /// ErrorGenICamTree when its description is not usable.
    LiveCamera(std::unique_ptr<CameraRoute> route, ZetoCam::AccessMode accessMode);
    ~LiveCamera();
    LiveCamera(const LiveCamera&) = delete;
    LiveCamera& operator=(const LiveCamera&) = delete;

    CameraRoute& route() { return *m_route; }
    CameraLink& link() { return m_link; }
    ZetoNodeMap::NodeMap& nodeMap() { return *m_nodeMap; }

    /// Whether the node map holds for \a device, too.
    bool describes(ArvDevice& device) const;

private:
    void makeNodes();

    const std::unique_ptr<CameraRoute> m_route;
    std::string m_xml;
    CameraLink m_link;
    GObjectPointer<ArvDevice> m_linkDevice;
    std::unique_ptr<CameraDescription> m_description;
    std::unique_ptr<DescribedDevice> m_device;
    std::unique_ptr<ZetoNodeMap::NodeMap> m_nodeMap;
};

} // namespace ZetoAravis
