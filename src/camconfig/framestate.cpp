#include "framestate.h"

#include "frameexcursion.h"
#include "framenames.h"

#include <cstring>

namespace ZetoGui {
namespace {

void listen(ZetoGenParam::Enum* feature, ZetoGenParam::ParamEventSink* sink)
{
    if (!feature)
        return;
    feature->UnregisterEventSink(sink);
    feature->RegisterEventSink(sink);
}

void stopListening(ZetoGenParam::Enum* feature, ZetoGenParam::ParamEventSink* sink)
{
    if (feature)
        feature->UnregisterEventSink(sink);
}

const char* currentEntry(ZetoGenParam::Enum* feature)
{
    int32_t error = 0;
    const char* entry = feature && feature->IsReadable() ? feature->GetValueStr(&error) : nullptr;
    return entry && !error ? entry : "";
}

FrameState::Mode modeOf(const char* entry)
{
    if (std::strcmp(entry, FrameA) == 0)
        return FrameState::OnlyFrameA;
    return std::strcmp(entry, FrameB) == 0 ? FrameState::OnlyFrameB : FrameState::BothFrames;
}

} // namespace

FrameState::FrameState(ZetoGenParam::Array& params)
    : m_selector(params.GetEnum("FrameAB_Selector", nullptr))
    , m_frameMode(params.GetEnum("FrameMode", nullptr))
{
    listen(m_selector, this);
    listen(m_frameMode, this);
    readSelector();
    readMode();
}

FrameState::~FrameState()
{
    stopListening(m_selector, this);
    stopListening(m_frameMode, this);
}

bool FrameState::isFrameBSelected() const
{
    return m_selector && std::strcmp(selectedFrame(), FrameA) != 0;
}

void FrameState::OnParamChanged(ZetoGenParam::Param* param)
{
    if (FrameExcursion::postpones(this, param) || !param->IsReadable())
        return;
    if (param == m_selector)
        readSelector();
    else
        readMode();
}

void FrameState::readSelector()
{
    m_selectedFrame = currentEntry(m_selector);
}

void FrameState::readMode()
{
    m_mode = modeOf(currentEntry(m_frameMode));
    m_modeChanged = true;
}

} // namespace ZetoGui
