#pragma once

#include "source.h"

#include <limits>
#include <vector>

namespace ZetoNodeMap {

/// Source of an integer feature. Limits are the natural ones; a client's imposed limits are the node's
/// affair.
class IntegerSource : public ValueSource<int64_t>
{
public:
    virtual int64_t min() { return std::numeric_limits<int64_t>::min(); }
    virtual int64_t max() { return std::numeric_limits<int64_t>::max(); }
    virtual int64_t inc() { return 1; }

    /// The only values allowed, ascending; empty if limits and increment decide.
    virtual std::vector<int64_t> validValues() { return {}; }
};

} // namespace ZetoNodeMap
