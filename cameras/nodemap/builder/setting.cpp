#include "setting.h"

#include "nodemap.h"

namespace ZetoNodeMap {

int64_t valueOf(const NodeMap& map, const std::string& name, int64_t*)
{
    return map.integer(name);
}

double valueOf(const NodeMap& map, const std::string& name, double*)
{
    return map.number(name);
}

bool valueOf(const NodeMap& map, const std::string& name, bool*)
{
    return map.integer(name) != 0;
}

Setting<bool> isEntry(const std::string& node, const std::string& symbolic)
{
    return Setting<bool>([node, symbolic](const NodeMap& map) { return map.text(node) == symbolic; })
        .computedFrom({node});
}

} // namespace ZetoNodeMap
