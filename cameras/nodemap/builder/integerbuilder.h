#pragma once

#include "integermemory.h"
#include "integernode.h"
#include "valuebuilder.h"

namespace ZetoNodeMap {

class IntegerBuilder : public ValueBuilder<IntegerBuilder, IntegerNode, IntegerMemory>
{
public:
    IntegerBuilder& unit(std::string text) { return set(settings().format.unit, std::move(text)); }
    IntegerBuilder& representation(GenApi::ERepresentation hint)
    {
        return set(settings().format.representation, hint);
    }

    IntegerBuilder& min(Setting<int64_t> limit) { return rule(memory().minimum, std::move(limit)); }
    IntegerBuilder& max(Setting<int64_t> limit) { return rule(memory().maximum, std::move(limit)); }
    IntegerBuilder& limits(Setting<int64_t> least, Setting<int64_t> most)
    {
        return min(std::move(least)).max(std::move(most));
    }
    IntegerBuilder& increment(Setting<int64_t> step) { return rule(memory().increment, std::move(step)); }
    /// Ascending.
    IntegerBuilder& validValues(std::vector<int64_t> values)
    {
        return set(memory().values, std::move(values));
    }

private:
    friend class NodeMapBuilder;

    explicit IntegerBuilder(Declaration& declaration)
        : ValueBuilder(declaration)
    {
    }
};

} // namespace ZetoNodeMap
