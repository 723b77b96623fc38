#pragma once

#include "valuenode.h"

namespace ZetoNodeMap {

/// A node without a value of its own, something others depend on.
class PlainNode : public ValueNode<GenApi::IValue>
{
public:
    struct Settings
    {
    };

    PlainNode(NodeMap& map, NodeDeclaration&& declaration, Settings&&);

protected:
    GenICam::gcstring valueToText(bool verify, bool ignoreCache) override;
    void valueFromText(const GenICam::gcstring& text, bool verify) override;
};

} // namespace ZetoNodeMap
