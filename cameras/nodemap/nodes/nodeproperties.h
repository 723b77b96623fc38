#pragma once

#include <string>
#include <vector>

namespace ZetoNodeMap {

struct NodeInfo;

/// A property as a description file would state it.
struct NodeProperty
{
    std::string name;
    std::string value;
};

/// What \a info states beyond the defaults, named as in a description file.
std::vector<NodeProperty> nodeProperties(const NodeInfo& info);

} // namespace ZetoNodeMap
