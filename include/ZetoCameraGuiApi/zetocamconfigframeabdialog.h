#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigFrameABDialogPrivate;

/// Sets up the two frames of a camera that can alternate between them: which ones it puts out, and for each
/// one exposure, frame period, line time, size, subsampling, gain, black level and wide dynamic range.
///
/// \code
/// ZetoGui::ZetoCamConfigFrameABDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it. The two tabs stand for `FrameAB_Selector`:
/// changing the tab selects the other frame in the camera, and the tab follows when something else selects
/// it. The settings of a frame that `FrameMode` does not put out are disabled. Exposure time and fixed frame
/// period are shown in microseconds, which `Frame_LineTime` and `PixelClock` make of the camera's lines and
/// clocks. "Full Frame" and "QFHD" set size and offsets of the shown frame; the line time for dual video is
/// written to both frames.
///
/// A control whose feature the camera lacks is disabled. A write that the camera refuses is told in a message
/// box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time. An edit goes to the frame that the camera has
/// selected at that moment, so do not switch `FrameAB_Selector` on another thread while the dialog is open.
class ZETO_GUI_EXPORT ZetoCamConfigFrameABDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigFrameABDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigFrameABDialog() override;

    /// Shows another camera, or none. The former one must still be open.
    /// \return whether \a device is one with parameters; without, the dialog is disabled
    bool SetDevice(ZetoCam::Device* device);

signals:
    /// The dialog is about to close.
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfigFrameABDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigFrameABDialog)

    const std::unique_ptr<ZetoCamConfigFrameABDialogPrivate> d_ptr;
};

} // namespace ZetoGui
