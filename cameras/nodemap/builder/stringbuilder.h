#pragma once

#include "stringmemory.h"
#include "stringnode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

class StringBuilder : public ValueBuilder<StringBuilder, StringNode, StringMemory>
{
public:
    /// In bytes.
    StringBuilder& maxLength(int64_t length) { return set(memory().maximumLength, length); }

private:
    friend class NodeMapBuilder;

    explicit StringBuilder(Declaration& declaration)
        : ValueBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
