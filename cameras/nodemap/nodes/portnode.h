#pragma once

#include "node.h"

namespace ZetoNodeMap {

/// The port of a description: a node without a value, which nothing here reads or writes through.
class PortNode : public Node
{
public:
    struct Settings
    {
    };

    PortNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&);
};

} // namespace ZetoNodeMap
