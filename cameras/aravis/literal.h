#pragma once

#include <cstdint>
#include <string_view>

namespace ZetoAravis {

/// A number as descriptions state it: decimal or, after 0x, hexadecimal; the upper half of the unsigned
/// 64-bit range stands for the negative numbers of the same bits. \return 0 for anything else.
std::int64_t integerLiteral(std::string_view text);

/// A decimal floating-point number, INF, -INF, or an integer literal. \return 0 for anything else.
double realLiteral(std::string_view text);

} // namespace ZetoAravis
