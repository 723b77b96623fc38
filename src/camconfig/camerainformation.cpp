#include "camerainformation.h"

#include "frameexcursion.h"
#include "framenames.h"
#include "framestate.h"
#include "timebudget.h"

#include <ZetoGenParam.h>

namespace ZetoGui {
namespace {

/// Into \a value: what \a feature holds, or nothing. \return the error code
int32_t readInto(std::optional<int64_t>& value, ZetoGenParam::Int* feature)
{
    int32_t error = 0;
    value.reset();
    if (!feature || !feature->IsReadable())
        return error;
    const int64_t held = feature->GetValue(&error);
    if (!error)
        value = held;
    return error;
}

} // namespace

CameraInformation::CameraInformation(ZetoGenParam::Array& params, const FrameState& state)
    : m_state(state)
    , m_frameFeatures{params.GetInt("Width", nullptr), params.GetInt("Height", nullptr),
                      params.GetInt("CurrentExposureTime", nullptr),
                      params.GetInt("CurrentFrameTime", nullptr)}
    , m_temperatureFeature(params.GetInt("CurrentTemperature", nullptr))
{
}

CameraInformation::Answer CameraInformation::read(const TimeBudget& budget)
{
    const std::vector<Item> all = items();
    const bool isFromStart = m_next == 0;
    std::optional<FrameExcursion> excursion;
    for (std::size_t count = 0; m_next < all.size(); ++m_next, ++count) {
        if (count > 0 && budget.isSpent())
            return Slow;
        const Item& item = all[m_next];
        if (item.isOfOtherFrame && !excursion)
            excursion.emplace(*m_state.selector(), m_state.selectedFrame(),
                              m_state.isFrameBSelected() ? FrameA : FrameB);
        const bool isThere = !item.isOfOtherFrame || !excursion->error();
        if (readInto(*item.value, isThere ? item.feature : nullptr) == ZetoCam::ErrorNoDevice)
            return NoAnswer;
    }
    m_next = 0;
    return isFromStart ? Complete : Slow;
}

/// What there is to read now, in the order in which it costs least: the other frame comes last.
std::vector<CameraInformation::Item> CameraInformation::items()
{
    std::vector<Item> items = {{m_temperatureFeature, &m_temperature, false}};
    const bool isBSelected = m_state.isFrameBSelected();
    addFrame(items, isBSelected ? m_frameB : m_frameA, false);
    if (hasTwoFrames())
        addFrame(items, isBSelected ? m_frameA : m_frameB, true);
    return items;
}

void CameraInformation::addFrame(std::vector<Item>& items, FrameInformation& frame, bool isOther) const
{
    std::size_t i = 0;
    for (auto* value : {&frame.width, &frame.height, &frame.exposureTime, &frame.frameTime})
        items.push_back({m_frameFeatures[i++], value, isOther});
}

/// A selector that cannot be read could not be set back.
bool CameraInformation::hasTwoFrames() const
{
    return m_state.selector() && *m_state.selectedFrame();
}

} // namespace ZetoGui
