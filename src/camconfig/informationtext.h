#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace ZetoGui {

/// Texts of the camera information. A value that is not there gives an empty text.

QString numberText(std::optional<int64_t> value);

/// "4096x3072", or only the width when there is no \a height.
QString sizeText(std::optional<int64_t> width, std::optional<int64_t> height);

/// Frames per second with two decimals, from the microseconds between two frames; "0.00" for no time.
QString frameRateText(std::optional<int64_t> frameTime);

} // namespace ZetoGui
