#pragma once

#include <array>
#include <cstdint>

/// The part of the sensor that a frame shows, one direction at a time, and the ready-made sizes.
namespace ZetoGui {

/// One direction of a frame. Size and offset have to fit the sensor together at every moment.
struct FrameExtent
{
    int64_t size = 0;
    int64_t offset = 0;

    bool operator==(const FrameExtent& other) const { return size == other.size && offset == other.offset; }
};

/// What the camera allows in one direction.
struct ExtentLimits
{
    int64_t whole = 0; ///< size of the sensor
    int64_t minimumSize = 0;
    int64_t sizeStep = 1;
    int64_t minimumOffset = 0;
    int64_t offsetStep = 1;

    /// All of the sensor.
    FrameExtent full() const;
    /// \a size in the middle of the sensor.
    FrameExtent centred(int64_t size) const;
    bool holds(int64_t size) const;
};

/// Size of the sensor from what the camera says at present: cameras limit each of size and offset by the
/// other one, or the size by the sensor alone.
int64_t sensorSize(const FrameExtent& present, int64_t maximumSize, int64_t maximumOffset);

enum class ExtentPart
{
    Size,
    Offset
};

/// The order in which \a target is written after \a present: what frees room comes first, so that the camera
/// accepts both.
std::array<ExtentPart, 2> writeOrder(const FrameExtent& present, const FrameExtent& target);

constexpr int64_t qfhdWidth = 3840;
constexpr int64_t qfhdHeight = 2160;

} // namespace ZetoGui
