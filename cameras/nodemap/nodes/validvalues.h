#pragma once

#include "genapiversion.h"

#include <algorithm>
#include <vector>

namespace ZetoNodeMap {

template <class Number>
void keepWithin(std::vector<Number>& values, Number min, Number max)
{
    const auto isOutside = [=](Number value) { return value < min || value > max; };
    values.erase(std::remove_if(values.begin(), values.end(), isOutside), values.end());
}

/// \a List is one of GenApi's list types, which can only be filled by index.
template <class List, class Number>
List toAutovector(const std::vector<Number>& values)
{
    List list(values.size());
    for (size_t index = 0; index < values.size(); ++index)
        list[index] = values[index];
    return list;
}

} // namespace ZetoNodeMap
