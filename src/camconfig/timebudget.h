#pragma once

#include <chrono>
#include <functional>

namespace ZetoGui {

/// How long something may still go on.
class TimeBudget
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    explicit TimeBudget(std::chrono::milliseconds time, Clock clock = std::chrono::steady_clock::now)
        : m_clock(std::move(clock))
        , m_end(m_clock() + time)
    {
    }

    bool isSpent() const { return m_clock() >= m_end; }

private:
    Clock m_clock;
    std::chrono::steady_clock::time_point m_end;
};

} // namespace ZetoGui
