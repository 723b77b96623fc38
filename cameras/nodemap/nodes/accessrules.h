#pragma once

#include "genapiversion.h"
#include "setting.h"

namespace ZetoNodeMap {

/// What decides the access mode of a node, besides its source and what a client imposes.
struct AccessRules
{
    GenApi::EAccessMode declared = GenApi::RW;
    Setting<bool> implemented = true;
    Setting<bool> available = true;
    Setting<bool> locked = false;

    /// \a source is the mode that the value's source grants.
    GenApi::EAccessMode evaluate(const NodeMap& map, GenApi::EAccessMode source) const;

    /// Whether the mode can change only when a node of inputs() does.
    bool isTraceable() const;
    std::vector<std::string> inputs() const;
};

} // namespace ZetoNodeMap
