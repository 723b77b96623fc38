#pragma once

#include "source.h"

namespace ZetoNodeMap {

/// Source of a boolean feature.
class BooleanSource : public ValueSource<bool>
{
};

} // namespace ZetoNodeMap
