#include "digitalgain.h"

#include <algorithm>
#include <cmath>

namespace ZetoGui {
namespace {

constexpr double fineStep = 0.015625; // 1/64
constexpr int mostDoublings = 1000;   // within the exponent of a double

double powerOfTwo(int64_t exponent)
{
    return std::ldexp(1.0, static_cast<int>(std::clamp<int64_t>(exponent, -mostDoublings, mostDoublings)));
}

} // namespace

double DigitalGain::factor() const
{
    return powerOfTwo(coarse) * (1 + static_cast<double>(fine) * fineStep);
}

double DigitalGain::step() const
{
    return powerOfTwo(coarse) * fineStep;
}

DigitalGain DigitalGainRange::limited(DigitalGain gain) const
{
    return {std::clamp(gain.coarse, minimum.coarse, std::max(minimum.coarse, maximum.coarse)),
            std::clamp(gain.fine, minimum.fine, std::max(minimum.fine, maximum.fine))};
}

DigitalGain DigitalGainRange::nearest(double factor) const
{
    if (!(factor > minimum.factor()))
        return minimum;
    if (factor >= maximum.factor())
        return maximum;
    // two neighbouring powers, since the end of one may be nearer than the start of the next
    const int64_t power = std::ilogb(factor);
    DigitalGain best = minimum;
    for (int64_t coarse = power - 1; coarse <= power + 1; ++coarse) {
        DigitalGain gain = limited({coarse, 0});
        gain = limited({gain.coarse, std::llround((factor / powerOfTwo(gain.coarse) - 1) / fineStep)});
        if (std::abs(gain.factor() - factor) < std::abs(best.factor() - factor))
            best = gain;
    }
    return best;
}

DigitalGain DigitalGainRange::towards(double factor, const DigitalGain& present) const
{
    const DigitalGain found = nearest(factor);
    if (found != present || factor == present.factor())
        return found;
    if (factor > present.factor())
        return nearest(present.factor() + present.step());
    const bool leavesPower = present.fine == minimum.fine; // the steps below are half as large
    return nearest(present.factor() - present.step() / (leavesPower ? 2 : 1));
}

} // namespace ZetoGui
