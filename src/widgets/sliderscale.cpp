#include "sliderscale.h"

#include "rounding.h"
#include "stepgrid.h"

#include <algorithm>
#include <cmath>

bool SliderScale::isUsableLogScale(double positionsPerDecade)
{
    constexpr double mostThatFitsInt = 1e8;
    return positionsPerDecade > 0.0 && positionsPerDecade <= mostThatFitsInt;
}

double SliderScale::span() const
{
    return double(maximum) - double(minimum);
}

int SliderScale::firstPosition() const
{
    switch (mode) {
    case SquareRoot:
        return 0;
    case Logarithmic:
        return int(logScale);
    case Linear:
        break;
    }
    return minimum;
}

int SliderScale::lastPosition() const
{
    switch (mode) {
    case SquareRoot: {
        const double root = rounded(std::sqrt(span()));
        return int(root * root < span() ? root + 1 : root);
    }
    case Logarithmic: {
        const double power = rounded(std::log10(logOffset + span()) * logScale);
        const double last = rounded(std::pow(10.0, power / logScale)) < span() ? power + 1 : power;
        // a coarse scale may leave no second position for the maximum
        return std::max(int(last), firstPosition() + (maximum > minimum ? 1 : 0));
    }
    case Linear:
        break;
    }
    return maximum;
}

int SliderScale::positionStep() const
{
    return mode == Linear ? usableStep() : 1;
}

int SliderScale::valueAt(int position) const
{
    if (position >= lastPosition())
        return maximum;
    if (position <= firstPosition())
        return minimum;
    const double value = mode == Linear ? position : minimum + aboveMinimum(position);
    return snapped(int(std::min(value, double(maximum))));
}

double SliderScale::aboveMinimum(int position) const
{
    if (mode == SquareRoot)
        return double(position) * position;
    return rounded(std::pow(10.0, position / logScale)) - logOffset;
}

int SliderScale::positionOf(int value) const
{
    const int onGrid = snapped(value);
    if (onGrid == maximum)
        return lastPosition();
    if (onGrid == minimum)
        return firstPosition();
    const double distance = double(onGrid) - minimum;
    switch (mode) {
    case SquareRoot:
        return int(rounded(std::sqrt(distance)));
    case Logarithmic:
        return int(rounded(std::log10(distance + logOffset) * logScale));
    case Linear:
        break;
    }
    return onGrid;
}

int SliderScale::nextValue(int value, int direction) const
{
    const qint64 step = usableStep();
    const qint64 aboveGrid = snapToStep ? (qint64(value) - minimum) % step : 0;
    const qint64 next = direction > 0 ? value + step - aboveGrid : value - (aboveGrid > 0 ? aboveGrid : step);
    return int(qBound<qint64>(minimum, next, maximum));
}

int SliderScale::valueForKey(int value, int position, int direction) const
{
    const int there = valueAt(position);
    if (mode == Linear)
        return there;
    const int next = nextValue(value, direction);
    return direction > 0 ? std::max(there, next) : std::min(there, next);
}

QString SliderScale::text(int value) const
{
    return QString::number(value);
}

int SliderScale::snapped(int value) const
{
    return snapToStep ? StepGrid::snapped(value, minimum, maximum, singleStep) : value;
}
