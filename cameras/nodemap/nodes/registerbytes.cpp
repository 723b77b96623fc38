#include "registerbytes.h"

#include <algorithm>
#include <cstring>

namespace ZetoNodeMap {

std::vector<uint8_t> toBytes(int64_t value, int64_t length)
{
    std::vector<uint8_t> bytes(static_cast<size_t>(length));
    auto rest = static_cast<uint64_t>(value);
    for (uint8_t& byte : bytes) {
        byte = static_cast<uint8_t>(rest);
        rest >>= 8U;
    }
    return bytes;
}

int64_t fromBytes(const std::vector<uint8_t>& bytes, int64_t)
{
    uint64_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        value = value << 8U | *byte;
    return static_cast<int64_t>(value);
}

template <class Bits, class Number>
static Bits bitsOf(Number number)
{
    static_assert(sizeof(Bits) == sizeof(Number));
    Bits bits;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

std::vector<uint8_t> toBytes(double value, int64_t length)
{
    const uint64_t bits = length == 4 ? bitsOf<uint32_t>(static_cast<float>(value)) : bitsOf<uint64_t>(value);
    return toBytes(static_cast<int64_t>(bits), length);
}

double fromBytes(const std::vector<uint8_t>& bytes, double)
{
    const int64_t bits = fromBytes(bytes, int64_t());
    return bytes.size() == 4 ? bitsOf<float>(static_cast<uint32_t>(bits)) : bitsOf<double>(bits);
}

std::vector<uint8_t> toBytes(const std::string& value, int64_t length)
{
    std::vector<uint8_t> bytes(value.begin(), value.end());
    bytes.resize(static_cast<size_t>(length));
    return bytes;
}

std::string fromBytes(const std::vector<uint8_t>& bytes, const std::string&)
{
    return std::string(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
}

} // namespace ZetoNodeMap
