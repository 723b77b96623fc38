#pragma once

#include <GenApi/GenApi.h>

#include <vector>

namespace ZetoAravis {

class CameraDescription;

/// The caching mode of every node: the most restrictive one of all the memory that its value is computed
/// from.
class CachingModes
{
public:
    explicit CachingModes(const CameraDescription& description);

    /// Never WriteThrough where a value may be read back otherwise than it was written: floats, converters.
    GenApi::ECachingMode of(int node) const;

private:
    GenApi::ECachingMode combined(int node);

    const CameraDescription& m_description;
    std::vector<GenApi::ECachingMode> m_modes;
};

} // namespace ZetoAravis
