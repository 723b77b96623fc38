#pragma once

#include "registermemory.h"
#include "registernode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

/// The length of the register is that of its value().
class RegisterBuilder : public ValueBuilder<RegisterBuilder, RegisterNode, RegisterMemory>
{
public:
    RegisterBuilder& address(int64_t address) { return set(memory().registerAddress, address); }

private:
    friend class NodeMapBuilder;

    explicit RegisterBuilder(Declaration& declaration)
        : ValueBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
