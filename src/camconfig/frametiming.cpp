#include "frametiming.h"

#include <stepgrid.h>

#include <algorithm>
#include <limits>

namespace ZetoGui {
namespace {

using Limits = std::numeric_limits<int64_t>;

int64_t limitedProduct(int64_t a, int64_t b)
{
    return StepGrid::product(a, b).value_or((a < 0) == (b < 0) ? Limits::max() : Limits::min());
}

int64_t truncated(double value)
{
    constexpr double beyond = 9223372036854775808.0; // 2^63
    if (value >= beyond)
        return Limits::max();
    return value < -beyond ? Limits::min() : static_cast<int64_t>(value);
}

int64_t roundedQuotient(int64_t dividend, int64_t divisor)
{
    return truncated(static_cast<double>(dividend) / static_cast<double>(divisor) + 0.5);
}

int64_t limited(int64_t value, int64_t maximum)
{
    return std::max<int64_t>(std::min(value, maximum), 0);
}

} // namespace

int64_t linesToMicroseconds(int64_t lines, const LineTiming& timing)
{
    if (timing.pixelClock == 0)
        return 0;
    return roundedQuotient(limitedProduct(timing.lineTime, lines), timing.pixelClock);
}

int64_t microsecondsToLines(int64_t microseconds, const LineTiming& timing)
{
    if (timing.lineTime == 0)
        return 0;
    return roundedQuotient(limitedProduct(timing.pixelClock, microseconds), timing.lineTime);
}

int64_t exposureTime(const Exposure& exposure, const LineTiming& timing)
{
    if (timing.pixelClock == 0)
        return 0;
    const auto lineClocks = static_cast<double>(limitedProduct(exposure.lines, timing.lineTime));
    return truncated((lineClocks + static_cast<double>(exposure.clocks)) /
                     static_cast<double>(timing.pixelClock));
}

std::optional<Exposure> exposureOfTime(int64_t microseconds, const LineTiming& timing,
                                       const Exposure& maximum)
{
    if (timing.lineTime <= 0)
        return std::nullopt;
    const int64_t total = limitedProduct(microseconds, timing.pixelClock);
    const int64_t lines = limited(total / timing.lineTime, maximum.lines);
    const int64_t clocks = total - lines * timing.lineTime; // no more than the total: cannot overflow
    return Exposure{lines, limited(clocks, maximum.clocks)};
}

} // namespace ZetoGui
