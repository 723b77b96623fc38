#include "framesize.h"

#include <stepgrid.h>

#include <algorithm>
#include <limits>

namespace ZetoGui {
namespace {

/// The last value of the grid that is not above \a value.
int64_t onGrid(int64_t value, int64_t minimum, int64_t step)
{
    if (value <= minimum || step <= 0)
        return std::max(value, minimum);
    return value - StepGrid::remainder(value, minimum, step);
}

} // namespace

FrameExtent ExtentLimits::full() const
{
    return {onGrid(whole - minimumOffset, minimumSize, sizeStep), minimumOffset};
}

FrameExtent ExtentLimits::centred(int64_t size) const
{
    const int64_t taken = onGrid(size, minimumSize, sizeStep);
    return {taken, onGrid((whole - taken) / 2, minimumOffset, offsetStep)};
}

bool ExtentLimits::holds(int64_t size) const
{
    return size >= minimumSize && size <= whole - minimumOffset &&
           onGrid(size, minimumSize, sizeStep) == size;
}

int64_t sensorSize(const FrameExtent& present, int64_t maximumSize, int64_t maximumOffset)
{
    const int64_t bySize = StepGrid::sum(present.size, maximumOffset).value_or(maximumSize);
    const int64_t byOffset = StepGrid::sum(maximumSize, present.offset).value_or(maximumSize);
    return std::max(maximumSize, std::min(bySize, byOffset));
}

std::array<ExtentPart, 2> writeOrder(const FrameExtent& present, const FrameExtent& target)
{
    if (target.size <= present.size)
        return {ExtentPart::Size, ExtentPart::Offset};
    return {ExtentPart::Offset, ExtentPart::Size};
}

} // namespace ZetoGui
