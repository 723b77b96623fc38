#pragma once

#include "source.h"

#include <cstdint>
#include <vector>

namespace ZetoNodeMap {

/// Source of a block of bytes in the camera's own order.
class RegisterSource : public ValueSource<std::vector<uint8_t>>
{
public:
    /// Number of bytes; read() returns and write() gets exactly as many.
    virtual int64_t length() = 0;

    virtual int64_t address() { return 0; }
};

} // namespace ZetoNodeMap
