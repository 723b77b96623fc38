#pragma once

#include "source.h"

#include <limits>
#include <optional>
#include <vector>

namespace ZetoNodeMap {

/// Source of a float feature.
class FloatSource : public ValueSource<double>
{
public:
    virtual double min() { return std::numeric_limits<double>::lowest(); }
    virtual double max() { return std::numeric_limits<double>::max(); }

    /// The constant step, if there is one. It is a hint: writes are not checked against it.
    virtual std::optional<double> inc() { return std::nullopt; }

    /// The only values meant to be written, ascending; empty if any within the limits is.
    virtual std::vector<double> validValues() { return {}; }
};

} // namespace ZetoNodeMap
