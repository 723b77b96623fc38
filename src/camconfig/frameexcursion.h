#pragma once

#include <QtGlobal>

#include <ZetoGenParam.h>

#include <utility>
#include <vector>

namespace ZetoGui {

/// A short look at the other frame of a dual-frame camera: switches the frame selector when it is made and
/// back when it ends. In between, the event loop must not run.
///
/// The switching changes every per-frame feature twice. Who shows such features to a person must neither show
/// the other frame for a moment nor lose what is being typed, so each event sink asks postpones() first:
///
/// \code
/// void OnParamChanged(ZetoGenParam::Param* param)
/// {
///     if (FrameExcursion::postpones(this, param))
///         return;
///     ...
/// \endcode
class FrameExcursion
{
public:
    /// From the frame \a home, the entry of \a selector that is chosen now, to \a destination.
    FrameExcursion(ZetoGenParam::Enum& selector, const char* home, const char* destination);

    /// A camera that refuses to go back is asked twice. If it stays where it is, the sinks are told now.
    ~FrameExcursion();
    Q_DISABLE_COPY(FrameExcursion)

    /// The code with which the camera refused to switch; 0 when it is there.
    int32_t error() const { return m_error; }

    /// Whether the calling thread is on an excursion: \a sink then ignores the change of \a param, and is
    /// told again should the camera not return.
    static bool postpones(ZetoGenParam::ParamEventSink* sink, ZetoGenParam::Param* param);

private:
    using Change = std::pair<ZetoGenParam::ParamEventSink*, ZetoGenParam::Param*>;

    bool goHome();

    ZetoGenParam::Enum& m_selector;
    const char* const m_home;
    int32_t m_error = 0;
    std::vector<Change> m_postponed;
};

} // namespace ZetoGui
