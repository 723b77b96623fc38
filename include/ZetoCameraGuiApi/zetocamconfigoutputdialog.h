#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigOutputDialogPrivate;

/// Sets the form in which a camera puts out its images: pixel format, look-up table, corrections, flipping
/// and test pattern.
///
/// \code
/// ZetoGui::ZetoCamConfigOutputDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it: `SensorADCBitDepth11` (the taps of a Camera
/// Link output), `SensorADCBitDepth`, `PixelFormat`, `LUTEnable`, `LUTSelector`, `DefectPixelCorrection`,
/// `DefectPixelThreshold`, `HotPixelCorrection`, `HotPixelThreshold`, `ReverseX`, `ReverseY` and
/// `TestPattern`. A control whose feature the camera lacks is disabled. A write that the camera refuses is
/// told in a message box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time.
class ZETO_GUI_EXPORT ZetoCamConfigOutputDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigOutputDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigOutputDialog() override;

    /// Shows another camera, or none. The former one must still be open.
    /// \return whether \a device is one with parameters; without, the dialog is disabled
    bool SetDevice(ZetoCam::Device* device);

signals:
    /// The dialog is about to close.
    void closing();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfigOutputDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigOutputDialog)

    const std::unique_ptr<ZetoCamConfigOutputDialogPrivate> d_ptr;
};

} // namespace ZetoGui
