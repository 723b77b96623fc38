#include "cachingmodes.h"

#include "cameradescription.h"

#include <GenApi/EnumClasses.h>

namespace ZetoAravis {

CachingModes::CachingModes(const CameraDescription& description)
    : m_description(description)
    , m_modes(description.nodes().size(), GenApi::_UndefinedCachingMode)
{
    for (int node = 0; node < static_cast<int>(m_modes.size()); ++node)
        combined(node);
}

GenApi::ECachingMode CachingModes::of(int node) const
{
    const DescriptionNode& stated = m_description.node(node);
    const GenApi::ECachingMode mode = m_modes[static_cast<std::size_t>(node)];
    return stated.kind == NodeKind::Float || stated.is("IntConverter")
               ? GenApi::Combine(mode, GenApi::WriteAround)
               : mode;
}

GenApi::ECachingMode CachingModes::combined(int node)
{
    GenApi::ECachingMode& known = m_modes[static_cast<std::size_t>(node)];
    if (known != GenApi::_UndefinedCachingMode)
        return known;
    GenApi::ECachingMode mode = GenApi::WriteThrough;
    GenApi::ECachingModeClass::FromString(m_description.node(node).text("Cachable").c_str(), &mode);
    for (const Link& link : m_description.node(node).links) {
        if (isReadForValue(link.role) && link.target != CameraDescription::noNode)
            mode = GenApi::Combine(mode, combined(link.target));
    }
    known = mode;
    return mode;
}

} // namespace ZetoAravis
