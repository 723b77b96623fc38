#pragma once

#include "memory.h"
#include "registersource.h"

namespace ZetoNodeMap {

/// A block of bytes in memory; its length is that of its initial value.
class RegisterMemory : public Memory<RegisterSource>
{
public:
    int64_t length() override { return static_cast<int64_t>(stored().size()); }
    int64_t address() override { return registerAddress; }

    int64_t registerAddress = 0;
};

} // namespace ZetoNodeMap
