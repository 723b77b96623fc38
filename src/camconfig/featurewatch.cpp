#include "featurewatch.h"

#include "frameexcursion.h"

#include <utility>

namespace ZetoGui {

FeatureWatch::FeatureWatch(ChangeRelay::Tell tell)
    : m_relay(std::move(tell))
{
}

FeatureWatch::~FeatureWatch()
{
    clear();
}

void FeatureWatch::watch(ZetoGenParam::Param* param)
{
    if (!param)
        return;
    param->UnregisterEventSink(this);
    param->RegisterEventSink(this);
    m_params.append(param);
}

void FeatureWatch::clear()
{
    for (ZetoGenParam::Param* const param : qAsConst(m_params))
        param->UnregisterEventSink(this);
    m_params.clear();
    m_relay.drop();
}

void FeatureWatch::OnParamChanged(ZetoGenParam::Param* param)
{
    if (!FrameExcursion::postpones(this, param))
        m_relay.take(param);
}

} // namespace ZetoGui
