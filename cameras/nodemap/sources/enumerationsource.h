#pragma once

#include "source.h"

namespace ZetoNodeMap {

/// Source of an enumeration. Its values are the integers of the entries; a value without an entry is legal to
/// read.
class EnumerationSource : public ValueSource<int64_t>
{
public:
    /// What the source allows for the entry \a value: NI never offered, NA not now, anything else selectable.
    virtual GenApi::EAccessMode entryAccessMode(int64_t /*value*/) { return GenApi::RO; }
};

} // namespace ZetoNodeMap
