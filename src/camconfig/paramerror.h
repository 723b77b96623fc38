#pragma once

#include <cstdint>

class QWidget;

namespace ZetoGenParam {
class Param;
}

namespace ZetoGui {

/// What the camera library's error \a code means, in English; "Unknown code" for a code that it does not
/// have.
const char* ErrorCodeToText(int32_t code);

/// Shows in a message box over \a parent that working with \a param ended with \a code, and returns when the
/// person has closed it or \a parent is gone. Nothing is shown for the code 0.
void ReportParamError(int32_t code, QWidget* parent, ZetoGenParam::Param* param);

} // namespace ZetoGui
