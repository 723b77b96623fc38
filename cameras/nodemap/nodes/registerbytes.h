#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ZetoNodeMap {

// Values as a little-endian camera keeps them in \a length bytes, and back. The second argument of
// fromBytes() only tells the type.

std::vector<uint8_t> toBytes(int64_t value, int64_t length);
/// With 4 bytes in single precision, else in double precision.
std::vector<uint8_t> toBytes(double value, int64_t length);
/// Filled up with zeros, cut at \a length.
std::vector<uint8_t> toBytes(const std::string& value, int64_t length);

/// Signed if all 8 bytes are given, else unsigned.
int64_t fromBytes(const std::vector<uint8_t>& bytes, int64_t);
double fromBytes(const std::vector<uint8_t>& bytes, double);
/// Up to the first zero.
std::string fromBytes(const std::vector<uint8_t>& bytes, const std::string&);

} // namespace ZetoNodeMap
