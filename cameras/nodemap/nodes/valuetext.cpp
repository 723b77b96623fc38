#include "valuetext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace ZetoNodeMap {

namespace {

const char hexDigits[] = "0123456789ABCDEF";

std::string hexByte(unsigned byte)
{
    return {hexDigits[byte >> 4U & 0xFU], hexDigits[byte & 0xFU]};
}

std::string hexNumber(uint64_t value)
{
    std::string digits;
    do {
        digits.insert(digits.begin(), hexDigits[value & 0xFU]);
        value >>= 4U;
    } while (value);
    return "0x" + digits;
}

template <class Number>
std::optional<Number> parsed(const std::string& text, size_t start, int base)
{
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + start, end, value, base);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

bool hasHexPrefix(const std::string& text)
{
    return text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts{std::string()};
    for (const char ch : text) {
        if (ch == separator)
            parts.emplace_back();
        else
            parts.back() += ch;
    }
    return parts;
}

/// A value of \a count bytes, the most significant first, written in \a base with \a separator between them.
std::optional<int64_t> separatedBytes(const std::string& text, char separator, size_t count, int base)
{
    const std::vector<std::string> parts = split(text, separator);
    if (parts.size() != count)
        return std::nullopt;
    int64_t value = 0;
    for (const std::string& part : parts) {
        const std::optional<uint8_t> byte = parsed<uint8_t>(part, 0, base);
        if (!byte)
            return std::nullopt;
        value = value * 256 + *byte;
    }
    return value;
}

std::string dottedQuad(uint64_t address)
{
    std::string text;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        text += std::to_string(address >> shift & 0xFFU) + (shift ? "." : "");
    return text;
}

std::string macAddress(uint64_t address)
{
    std::string text;
    for (const unsigned shift : {40U, 32U, 24U, 16U, 8U, 0U})
        text += hexByte(static_cast<unsigned>(address >> shift & 0xFFU)) + (shift ? ":" : "");
    return text;
}

std::chars_format charsFormat(GenApi::EDisplayNotation notation)
{
    switch (notation) {
    case GenApi::fnFixed:
        return std::chars_format::fixed;
    case GenApi::fnScientific:
        return std::chars_format::scientific;
    default:
        return std::chars_format::general;
    }
}

std::string formatted(double value, GenApi::EDisplayNotation notation, int64_t precision)
{
    const int digits = static_cast<int>(std::min<int64_t>(precision, 1000));
    std::string text(static_cast<size_t>(digits) + 320,
                     '\0'); // the largest number has 309 digits before the point
    char* end = text.data() + text.size();
    text.resize(static_cast<size_t>(
        std::to_chars(text.data(), end, value, charsFormat(notation), digits).ptr - text.data()));
    return text;
}

} // namespace

std::string integerToText(int64_t value, GenApi::ERepresentation representation)
{
    switch (representation) {
    case GenApi::HexNumber:
        return hexNumber(static_cast<uint64_t>(value));
    case GenApi::IPV4Address:
        return dottedQuad(static_cast<uint64_t>(value));
    case GenApi::MACAddress:
        return macAddress(static_cast<uint64_t>(value));
    default:
        return std::to_string(value);
    }
}

std::optional<int64_t> integerFromText(const std::string& text, GenApi::ERepresentation representation)
{
    if (representation == GenApi::IPV4Address && text.find('.') != std::string::npos)
        return separatedBytes(text, '.', 4, 10);
    if (representation == GenApi::MACAddress && text.find(':') != std::string::npos)
        return separatedBytes(text, ':', 6, 16);
    if (!hasHexPrefix(text))
        return parsed<int64_t>(text, 0, 10);
    const std::optional<uint64_t> bits = parsed<uint64_t>(text, 2, 16);
    return bits ? std::optional<int64_t>(static_cast<int64_t>(*bits)) : std::nullopt;
}

std::string floatToText(double value, const NumberFormat& format, double min, double max)
{
    const auto isWritable = [&](const std::string& text) {
        const std::optional<double> read = floatFromText(text);
        return read && *read >= min && *read <= max;
    };
    int64_t precision = std::max<int64_t>(format.precision, 0);
    std::string text = formatted(value, format.notation, precision);
    if (value < min || value > max)
        return text;
    const int64_t exact = std::numeric_limits<double>::max_digits10;
    while (precision < exact && !isWritable(text))
        text = formatted(value, format.notation, ++precision);
    return text;
}

std::optional<double> floatFromText(const std::string& text)
{
    const size_t start = text.size() > 1 && text[0] == '+' && text[1] != '-' ? 1 : 0;
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + start, end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::string booleanToText(bool value)
{
    return value ? "1" : "0";
}

std::optional<bool> booleanFromText(const std::string& text)
{
    if (text == "1" || text == "true")
        return true;
    if (text == "0" || text == "false")
        return false;
    return std::nullopt;
}

std::string bytesToText(const std::vector<uint8_t>& bytes)
{
    std::string text = "0x";
    for (const uint8_t byte : bytes)
        text += hexByte(byte);
    return text;
}

std::optional<std::vector<uint8_t>> bytesFromText(const std::string& text)
{
    if (text.size() % 2 != 0 || text.compare(0, 2, "0x") != 0)
        return std::nullopt;
    std::vector<uint8_t> bytes;
    for (size_t position = 2; position < text.size(); position += 2) {
        const std::optional<uint8_t> byte = parsed<uint8_t>(text.substr(position, 2), 0, 16);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

} // namespace ZetoNodeMap
