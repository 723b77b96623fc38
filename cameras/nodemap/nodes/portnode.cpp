#include "portnode.h"

namespace ZetoNodeMap {

PortNode::PortNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&)
    : Node(map, std::move(declaration), GenApi::intfIPort)
{
}

} // namespace ZetoNodeMap
