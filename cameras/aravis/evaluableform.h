#pragma once

#include <string>

namespace ZetoAravis {

class CameraDescription;

/// \return the description as the Aravis library computes it right. It takes a boolean in a formula for 0, so
/// an integer that it computes from the boolean stands there instead. It judges entries by their own
/// conditions alone, so entries come without conditions, which the caller has to check. It takes any length
/// for the length of a register, so lengths that are computed are brought within what a register can have.
std::string evaluableForm(const CameraDescription& description);

} // namespace ZetoAravis
