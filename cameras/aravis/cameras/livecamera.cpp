#include "livecamera.h"

#include "memorydevice.h"
#include "nodemapmaker.h"

#include <accesskind.h>
#include <genparamerror.h>
#include <nodemap.h>

#include <stdexcept>
#include <utility>

namespace ZetoAravis {
namespace {

std::string descriptionOf(ArvDevice& device)
{
    std::size_t size = 0;
    const char* const xml = arv_device_get_genicam_xml(&device, &size);
    return xml ? std::string(xml, size) : std::string();
}

} // namespace

LiveCamera::LiveCamera(std::unique_ptr<CameraRoute> route, ZetoCam::AccessMode accessMode)
    : m_route(std::move(route))
    , m_link([this] { return m_route->isAnswering(); })
    , m_linkDevice(makeMemoryDevice(m_link))
{
    auto device = m_route->connect(accessMode);
    m_xml = descriptionOf(*device);
    m_link.connect(std::move(device));
    try {
        makeNodes();
    } catch (const std::runtime_error&) {
        throw ZetoGenParam::CodeException(ZetoCam::ErrorGenICamTree);
    }
}

LiveCamera::~LiveCamera() = default;

void LiveCamera::makeNodes()
{
    m_description = std::make_unique<CameraDescription>(m_xml);
    m_device = std::make_unique<DescribedDevice>(*m_description, *m_linkDevice,
                                                 DescribedDevice::CommandEnd::ByDevice);
    m_nodeMap = makeNodeMap(*m_device);
    m_nodeMap->setAccessHook([this](const char* call, const GenApi::INode*) {
        if (!m_link.isConnected() &&
            ZetoCameraLibrary::accessKind(call) != ZetoCameraLibrary::AccessKind::None)
            throw ZetoGenParam::CodeException(ZetoCam::ErrorNoDevice);
    });
}

bool LiveCamera::describes(ArvDevice& device) const
{
    return descriptionOf(device) == m_xml;
}

} // namespace ZetoAravis
