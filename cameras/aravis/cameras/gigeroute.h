#pragma once

#include "cameraroute.h"
#include "gigesearch.h"

namespace ZetoAravis {

/// The way to a GigE Vision camera at a network adapter.
class GigERoute final : public CameraRoute
{
public:
    GigERoute(std::string adapterName, Gvcp::DiscoveryAnswer camera);

    /// ErrorNoDevice when the camera is gone, in a foreign subnet or held by another program.
    GObjectPointer<ArvDevice> connect(ZetoCam::AccessMode accessMode) override;
    bool isAnswering() const override;
    bool isGood(ArvDevice& device, ZetoCam::AccessMode accessMode) const override;

private:
    bool isMet(std::uint32_t ownAddress) const;

    const std::string m_adapterName;
    const Gvcp::DiscoveryAnswer m_camera;
};

} // namespace ZetoAravis
