#pragma once

#include "source.h"

#include <limits>
#include <string>

namespace ZetoNodeMap {

/// Source of a text feature (bytes, by convention UTF-8).
class StringSource : public ValueSource<std::string>
{
public:
    /// Longest text that can be written, in bytes.
    virtual int64_t maxLength() { return std::numeric_limits<int64_t>::max(); }
};

} // namespace ZetoNodeMap
