#pragma once

#include <QtGlobal>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ZetoGenParam {
class Array;
class Int;
} // namespace ZetoGenParam

namespace ZetoGui {

class FrameState;
class TimeBudget;

/// What a camera sends as one of its frames. A value that the camera lacks, or that could not be read, is
/// none.
struct FrameInformation
{
    std::optional<int64_t> width;
    std::optional<int64_t> height;
    std::optional<int64_t> exposureTime; // us
    std::optional<int64_t> frameTime;    // us
};

/// The live values of a camera, read a few at a time so that a slow camera does not hold up its user.
class CameraInformation
{
public:
    enum Answer
    {
        Complete,
        Slow,    ///< not all could be read in one go; the next reading goes on where this one ended
        NoAnswer ///< the camera did not answer, nor was it asked any further
    };

    /// \a params and \a state must outlive the object.
    CameraInformation(ZetoGenParam::Array& params, const FrameState& state);
    Q_DISABLE_COPY(CameraInformation)

    /// Reads until all is read or \a budget is spent; one value at least. To see the other frame it leaves
    /// the selected one within the call. Beyond the budget it takes the time of four accesses at most.
    Answer read(const TimeBudget& budget);

    /// Those of a camera without frames are in Frame A.
    const FrameInformation& frameA() const { return m_frameA; }
    const FrameInformation& frameB() const { return m_frameB; }
    std::optional<int64_t> temperature() const { return m_temperature; } // degrees Celsius

private:
    struct Item
    {
        ZetoGenParam::Int* feature;
        std::optional<int64_t>* value;
        bool isOfOtherFrame;
    };

    std::vector<Item> items();
    void addFrame(std::vector<Item>& items, FrameInformation& frame, bool isOther) const;
    bool hasTwoFrames() const;

    const FrameState& m_state;
    const std::array<ZetoGenParam::Int*, 4> m_frameFeatures;
    ZetoGenParam::Int* const m_temperatureFeature;
    FrameInformation m_frameA;
    FrameInformation m_frameB;
    std::optional<int64_t> m_temperature;
    std::size_t m_next = 0; ///< item with which the next reading starts
};

} // namespace ZetoGui
