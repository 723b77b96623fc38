#pragma once

#include "numberformat.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ZetoNodeMap {

/// Decimal, 0x and hexadecimal digits, dotted quad or six bytes with colons, as \a representation says.
std::string integerToText(int64_t value, GenApi::ERepresentation representation);

/// Reads decimal and 0x numbers always, the dotted quad and MAC forms where \a representation is theirs.
/// \return nothing if the whole of \a text is not such a number or it does not fit
std::optional<int64_t> integerFromText(const std::string& text, GenApi::ERepresentation representation);

/// The text of \a value in its notation, with a point whatever the locale. Where the rounded text would leave
/// \a min to \a max, it has as many digits as it takes to stay inside.
std::string floatToText(double value, const NumberFormat& format, double min, double max);
std::optional<double> floatFromText(const std::string& text);

std::string booleanToText(bool value);

/// Takes 1, 0, true and false.
std::optional<bool> booleanFromText(const std::string& text);

/// 0x and two hexadecimal digits for each byte, in memory order.
std::string bytesToText(const std::vector<uint8_t>& bytes);
std::optional<std::vector<uint8_t>> bytesFromText(const std::string& text);

} // namespace ZetoNodeMap
