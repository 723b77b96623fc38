#pragma once

#include "featurebuilder.h"

namespace ZetoNodeMap {

/// A node without a value: a plain node or a port.
class PlainBuilder : public FeatureBuilder<PlainBuilder>
{
private:
    friend class NodeMapBuilder;

    explicit PlainBuilder(NodeDeclaration& declaration)
        : FeatureBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
