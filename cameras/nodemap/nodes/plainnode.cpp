#include "plainnode.h"

#include "errors.h"

namespace ZetoNodeMap {

PlainNode::PlainNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&)
    : ValueNode(map, std::move(declaration), GenApi::intfIValue)
{
}

GenICam::gcstring PlainNode::valueToText(bool, bool)
{
    throwLogicalError(name(), "has no value");
}

void PlainNode::valueFromText(const GenICam::gcstring&, bool)
{
    throwLogicalError(name(), "has no value");
}

} // namespace ZetoNodeMap
