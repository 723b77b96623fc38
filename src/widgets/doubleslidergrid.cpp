#include "doubleslidergrid.h"

#include "rounding.h"
#include "stepgrid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double mostPositions = 1e9;

} // namespace

double DoubleSliderGrid::positionWidth() const
{
    const double wished = singleStep > 0.0 ? singleStep : std::pow(10.0, -decimals);
    const double smallest = maximum / mostPositions - minimum / mostPositions;
    return std::max(wished, smallest);
}

/// The distance of \a value from the minimum in positions. In the widest ranges the distance itself is
/// infinite.
double DoubleSliderGrid::stepsTo(double value) const
{
    const double width = positionWidth();
    const double distance = value - minimum;
    return std::isfinite(distance) ? distance / width : value / width - minimum / width;
}

int DoubleSliderGrid::lastPosition() const
{
    const double steps = stepsTo(maximum);
    const double whole = rounded(steps);
    const double roundingNoise = 1e-9 * std::max(whole, 1.0);
    const double last = steps > whole + roundingNoise ? whole + 1 : whole;
    return std::max(int(last), maximum > minimum ? 1 : 0);
}

double DoubleSliderGrid::valueAt(int position) const
{
    if (position >= lastPosition())
        return maximum;
    if (position <= 0)
        return minimum;
    // fma because the product alone may be infinite
    return snapped(std::min(std::fma(double(position), positionWidth(), minimum), maximum));
}

int DoubleSliderGrid::positionOf(double value) const
{
    const double onGrid = snapped(value);
    if (onGrid >= maximum)
        return lastPosition();
    if (onGrid <= minimum)
        return 0;
    return std::clamp(int(rounded(stepsTo(onGrid))), 0, lastPosition());
}

double DoubleSliderGrid::valueForKey(double /*value*/, int position, int /*direction*/) const
{
    return valueAt(position);
}

QString DoubleSliderGrid::text(double value) const
{
    constexpr int mostCharacters = 20;
    const QString fixed = QString::number(value, 'f', decimals);
    return fixed.size() <= mostCharacters ? fixed : QString::number(value, 'g');
}

double DoubleSliderGrid::snapped(double value) const
{
    return snapToStep ? StepGrid::snapped(value, minimum, maximum, singleStep) : value;
}
