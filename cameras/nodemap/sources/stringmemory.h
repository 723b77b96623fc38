#pragma once

#include "memory.h"
#include "stringsource.h"

namespace ZetoNodeMap {

/// A text in memory.
class StringMemory : public Memory<StringSource>
{
public:
    int64_t maxLength() override { return maximumLength; }

    int64_t maximumLength = std::numeric_limits<int64_t>::max();
};

} // namespace ZetoNodeMap
