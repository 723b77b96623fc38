#pragma once

#include <cstdint>

namespace ZetoGenParam {
class Int;
}

namespace ZetoGui {

class IZetoCamConfigIntConverter;

/// An integer feature as a widget of 32-bit numbers shows it. Only what is too large is cut to a limit; what
/// is too small loses its upper bits.
struct IntView
{
    int minimum = 0;
    int maximum = 0;
    int singleStep = 1;
    int64_t value = 0; ///< limited, and for the widget to cut
};

/// \param converter into the units of the widget, or null
/// \param limit for the maximum and the value
IntView viewOf(ZetoGenParam::Int& param, IZetoCamConfigIntConverter* converter, int64_t limit);

} // namespace ZetoGui
