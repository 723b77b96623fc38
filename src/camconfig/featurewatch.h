#pragma once

#include "changerelay.h"

#include <ZetoGenParam.h>

#include <QVector>

namespace ZetoGui {

/// Tells the changes of features to a dialog's own code, on the thread that made this object; see
/// ChangeRelay.
class FeatureWatch : public ZetoGenParam::ParamEventSink
{
public:
    explicit FeatureWatch(ChangeRelay::Tell tell);
    ~FeatureWatch() override;
    Q_DISABLE_COPY(FeatureWatch)

    /// \param param the feature to watch; null is no error
    void watch(ZetoGenParam::Param* param);
    /// Watches nothing any more. To be called while the features are still there.
    void clear();

    void OnParamChanged(ZetoGenParam::Param* param) override;

private:
    QVector<ZetoGenParam::Param*> m_params;
    ChangeRelay m_relay;
};

} // namespace ZetoGui
