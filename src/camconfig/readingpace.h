#pragma once

#include <chrono>

namespace ZetoGui {

/// Leaves a pause after a reading that took long, so that its user spends most of the time on other things.
class ReadingPace
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// How long one reading should take at most.
    static constexpr std::chrono::milliseconds Budget{200};

    bool isDue(Time now) const { return now >= m_pauseEnd; }

    void finished(Time begin, Time end)
    {
        constexpr int pausePerTime = 4;
        m_pauseEnd = end - begin > Budget ? end + pausePerTime * (end - begin) : end;
    }

private:
    Time m_pauseEnd;
};

} // namespace ZetoGui
