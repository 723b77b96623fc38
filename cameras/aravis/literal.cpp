#include "literal.h"

#include <charconv>

namespace ZetoAravis {
namespace {

template <typename Number, typename... Format>
bool parse(std::string_view text, Number& number, Format... format)
{
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, format...);
    return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

std::string_view withoutPlus(std::string_view text)
{
    return !text.empty() && text.front() == '+' ? text.substr(1) : text;
}

bool isHexadecimal(std::string_view text)
{
    return text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
}

} // namespace

std::int64_t integerLiteral(std::string_view text)
{
    text = withoutPlus(text);
    std::int64_t number = 0;
    if (parse(text, number))
        return number;
    std::uint64_t bits = 0;
    const bool parsed = isHexadecimal(text) ? parse(text.substr(2), bits, 16) : parse(text, bits);
    return parsed ? static_cast<std::int64_t>(bits) : 0;
}

double realLiteral(std::string_view text)
{
    text = withoutPlus(text);
    double number = 0;
    if (isHexadecimal(text) || !parse(text, number, std::chars_format::general))
        return static_cast<double>(integerLiteral(text));
    return number;
}

} // namespace ZetoAravis
