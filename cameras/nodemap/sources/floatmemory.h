#pragma once

#include "floatsource.h"
#include "memory.h"
#include "setting.h"

namespace ZetoNodeMap {

/// A float in memory with limits that are constants, other nodes or functions.
class FloatMemory : public Memory<FloatSource>
{
public:
    double min() override { return minimum.evaluate(map()); }
    double max() override { return maximum.evaluate(map()); }
    std::vector<double> validValues() override { return values; }
    std::optional<double> inc() override
    {
        return increment ? std::optional<double>(increment->evaluate(map())) : std::nullopt;
    }

    Setting<double> minimum = std::numeric_limits<double>::lowest();
    Setting<double> maximum = std::numeric_limits<double>::max();
    std::optional<Setting<double>> increment;
    std::vector<double> values;
};

} // namespace ZetoNodeMap
