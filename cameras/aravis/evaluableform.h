#pragma once

#include <string>

namespace ZetoAravis {

class CameraDescription;

/// \return the description as the Aravis library computes it right: it takes a boolean in a formula for 0, so
/// each such boolean gets an integer helper that stands for it there; and it judges entries by their own
/// conditions alone, so entries come without conditions, which the caller has to check.
std::string evaluableForm(const CameraDescription& description);

} // namespace ZetoAravis
