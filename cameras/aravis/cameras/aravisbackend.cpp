#include "aravisbackend.h"

#include "gigeinterface.h"
#include "listedinterface.h"

namespace ZetoAravis {

AravisBackend::AravisBackend(ZetoCam::System& system)
    : m_system(system)
    , m_usb(std::make_unique<ListedInterface>(system, *arv_uv_interface_get_instance(),
                                              ZetoCam::InterfaceUSB3Vision, "aravis.u3v", "USB3 Vision"))
{
}

AravisBackend::~AravisBackend() = default;

std::vector<ZetoCam::Interface*> AravisBackend::interfaces()
{
    std::vector<ZetoCam::Interface*> present;
    const std::lock_guard guard(m_mutex);
    for (const NetworkAdapter& adapter : networkAdapters()) {
        auto& known = m_adapters[adapter.name];
        if (!known)
            known = std::make_unique<GigEInterface>(m_system, adapter);
        present.push_back(known.get());
    }
    present.push_back(m_usb.get());
    return present;
}

} // namespace ZetoAravis
