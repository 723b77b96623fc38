#pragma once

#include <QString>

namespace ZetoGenParam {
class Array;
}

namespace ZetoGui {

/// The value of the text, enumeration or integer feature \a name as text: UTF-8, name of the entry, decimal.
/// "N/A" without \a params and for a feature that the camera lacks or that cannot be read.
QString featureText(ZetoGenParam::Array* params, const char* name);

/// The camera's model as the camera tells it, or "Unknown".
QString modelName(ZetoGenParam::Array& params);

} // namespace ZetoGui
