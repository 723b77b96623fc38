#include "accesskind.h"

#include <algorithm>
#include <array>

namespace ZetoCameraLibrary {
namespace {

constexpr std::array<std::string_view, 6> readingCalls = {"GetValue", "GetIntValue", "GetCurrentEntry",
                                                          "ToString", "Get",         "IsDone"};
constexpr std::array<std::string_view, 5> writingCalls = {"SetValue", "SetIntValue", "FromString", "Set",
                                                          "Execute"};

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& calls, std::string_view call)
{
    return std::find(calls.begin(), calls.end(), call) != calls.end();
}

} // namespace

AccessKind accessKind(std::string_view call)
{
    if (contains(writingCalls, call))
        return AccessKind::Write;
    return contains(readingCalls, call) ? AccessKind::Read : AccessKind::None;
}

} // namespace ZetoCameraLibrary
