#pragma once

#include <QtGlobal>

#include <ZetoGenParam.h>

#include <atomic>

namespace ZetoGui {

/// Which frame of a dual-frame camera is selected and which ones it puts out. Follows the camera's changes on
/// any thread.
class FrameState final : public ZetoGenParam::ParamEventSink
{
public:
    enum Mode
    {
        OnlyFrameA,
        OnlyFrameB,
        BothFrames
    };

    /// \a params must outlive the object.
    explicit FrameState(ZetoGenParam::Array& params);
    ~FrameState() override;
    Q_DISABLE_COPY(FrameState)

    /// The feature that selects a frame, null for a camera without.
    ZetoGenParam::Enum* selector() const { return m_selector; }

    /// The entry of the selector that is chosen; an empty text when it could not be read.
    const char* selectedFrame() const { return m_selectedFrame; }
    bool isFrameBSelected() const;

    Mode mode() const { return m_mode; }

    /// Whether the mode may have changed since the last call.
    bool takeModeChange() { return m_modeChanged.exchange(false); }

    void OnParamChanged(ZetoGenParam::Param* param) override;

private:
    void readSelector();
    void readMode();

    ZetoGenParam::Enum* const m_selector;
    ZetoGenParam::Enum* const m_frameMode;
    std::atomic<const char*> m_selectedFrame{""}; ///< owned by the selector
    std::atomic<Mode> m_mode{BothFrames};
    std::atomic<bool> m_modeChanged{false};
};

} // namespace ZetoGui
