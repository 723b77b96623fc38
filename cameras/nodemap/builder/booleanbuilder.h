#pragma once

#include "booleannode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

class BooleanBuilder : public ValueBuilder<BooleanBuilder, BooleanNode, Memory<BooleanSource>>
{
private:
    friend class NodeMapBuilder;

    explicit BooleanBuilder(Declaration& declaration)
        : ValueBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
