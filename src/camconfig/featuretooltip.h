#pragma once

#include <QString>

namespace ZetoGenParam {
class Array;
}

namespace ZetoGui {

/// \a text, whatever it is, as the rich text of a tool tip that shows it as it is and wraps. Empty for no
/// text.
QString plainToolTip(const QString& text);

/// What the camera itself says about its feature \a name, as rich text that wraps: its tool tip or, without
/// one, its description. Empty when it says nothing.
QString featureToolTip(ZetoGenParam::Array& array, const QString& name);

} // namespace ZetoGui
