#include "frameexcursion.h"

#include <algorithm>

namespace ZetoGui {
namespace {

thread_local FrameExcursion* underWay = nullptr;

} // namespace

FrameExcursion::FrameExcursion(ZetoGenParam::Enum& selector, const char* home, const char* destination)
    : m_selector(selector)
    , m_home(home)
{
    Q_ASSERT(!underWay);
    underWay = this;
    m_error = m_selector.SetValueStr(destination);
}

FrameExcursion::~FrameExcursion()
{
    const bool isBack = m_error || goHome();
    underWay = nullptr;
    if (isBack)
        return;
    for (const auto& [sink, param] : m_postponed)
        sink->OnParamChanged(param);
}

bool FrameExcursion::goHome()
{
    const int32_t code = m_selector.SetValueStr(m_home);
    const bool mayAskAgain = code && code != ZetoCam::ErrorNoDevice;
    return mayAskAgain ? !m_selector.SetValueStr(m_home) : !code;
}

bool FrameExcursion::postpones(ZetoGenParam::ParamEventSink* sink, ZetoGenParam::Param* param)
{
    if (!underWay)
        return false;
    std::vector<Change>& changes = underWay->m_postponed;
    const Change change(sink, param);
    if (std::find(changes.begin(), changes.end(), change) == changes.end())
        changes.push_back(change);
    return true;
}

} // namespace ZetoGui
