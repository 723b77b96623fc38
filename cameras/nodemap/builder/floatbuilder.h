#pragma once

#include "floatmemory.h"
#include "floatnode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

class FloatBuilder : public ValueBuilder<FloatBuilder, FloatNode, FloatMemory>
{
public:
    FloatBuilder& unit(std::string text) { return set(settings().format.unit, std::move(text)); }
    FloatBuilder& representation(GenApi::ERepresentation hint)
    {
        return set(settings().format.representation, hint);
    }
    /// \a precision counts significant digits, or decimals where the notation is fixed or scientific.
    FloatBuilder& notation(GenApi::EDisplayNotation notation, int64_t precision)
    {
        set(settings().format.notation, notation);
        return set(settings().format.precision, precision);
    }

    FloatBuilder& min(Setting<double> limit) { return rule(memory().minimum, std::move(limit)); }
    FloatBuilder& max(Setting<double> limit) { return rule(memory().maximum, std::move(limit)); }
    FloatBuilder& limits(Setting<double> least, Setting<double> most)
    {
        return min(std::move(least)).max(std::move(most));
    }
    FloatBuilder& increment(Setting<double> step) { return rule(memory().increment, std::move(step)); }
    /// Ascending.
    FloatBuilder& validValues(std::vector<double> values) { return set(memory().values, std::move(values)); }

private:
    friend class NodeMapBuilder;

    explicit FloatBuilder(Declaration& declaration)
        : ValueBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
