#pragma once

#include <QString>

namespace ZetoGenParam {
class Array;
}

namespace ZetoGui {

/// The unit of the number \a name as the camera tells it, with the Greek letter in "us"; empty when it tells
/// none.
QString featureUnit(ZetoGenParam::Array& array, const char* name);

/// Microseconds, with the Greek letter.
QString microseconds();

} // namespace ZetoGui
