#include "accessfaults.h"

#include <genparamerror.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

namespace ZetoSimulator {
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

void AccessFaults::onCall(std::string_view call)
{
    const bool writes = contains(writingCalls, call);
    if (!writes && !contains(readingCalls, call))
        return;
    if (const int delay = m_delay)
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    if (!m_connected)
        throw ZetoGenParam::CodeException(ZetoCam::ErrorNoDevice);
    const int32_t refusal = writes ? m_refusal.exchange(0) : 0;
    if (refusal)
        throw ZetoGenParam::CodeException(refusal);
}

} // namespace ZetoSimulator
