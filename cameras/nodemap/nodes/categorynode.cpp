#include "categorynode.h"

#include "errors.h"
#include "text.h"

#include <algorithm>

namespace ZetoNodeMap {

CategoryNode::CategoryNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&)
    : ValueNode(map, std::move(declaration), GenApi::intfICategory)
{
}

void CategoryNode::GetFeatures(GenApi::FeatureList_t& Features) const
{
    const Call call(map(), this, "GetFeatures");
    Features.clear();
    for (Node* member : children()) {
        if (GenApi::IValue* feature = member->value())
            Features.push_back(feature);
    }
}

GenICam::gcstring CategoryNode::valueToText(bool, bool)
{
    return toGenICam(info().displayName.empty() ? name() : info().displayName);
}

void CategoryNode::valueFromText(const GenICam::gcstring&, bool)
{
    throwNotWritable(name(), effectiveAccessMode());
}

bool CategoryNode::hasImplementedMember() const
{
    const auto isImplemented = [](const Node* member) {
        return GenApi::IsImplemented(member->effectiveAccessMode());
    };
    return std::any_of(children().begin(), children().end(), isImplemented);
}

/// A category that contains itself, as broken descriptions have it, does not count as its own member.
GenApi::EAccessMode CategoryNode::sourceAccessMode() const
{
    if (m_visits > 0)
        return GenApi::NI;
    const CallDepth visit(m_visits);
    return hasImplementedMember() ? GenApi::RO : GenApi::NI;
}

} // namespace ZetoNodeMap
