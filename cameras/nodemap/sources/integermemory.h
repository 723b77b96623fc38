#pragma once

#include "integersource.h"
#include "memory.h"
#include "setting.h"

namespace ZetoNodeMap {

/// An integer in memory with limits that are constants, other nodes or functions.
class IntegerMemory : public Memory<IntegerSource>
{
public:
    int64_t min() override { return minimum.evaluate(map()); }
    int64_t max() override { return maximum.evaluate(map()); }
    int64_t inc() override { return increment.evaluate(map()); }
    std::vector<int64_t> validValues() override { return values; }

    Setting<int64_t> minimum = std::numeric_limits<int64_t>::min();
    Setting<int64_t> maximum = std::numeric_limits<int64_t>::max();
    Setting<int64_t> increment = 1;
    std::vector<int64_t> values;
};

} // namespace ZetoNodeMap
