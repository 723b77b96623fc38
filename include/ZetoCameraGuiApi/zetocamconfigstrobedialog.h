#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigStrobeDialogPrivate;

/// Sets the two strobes of a camera and its two output lines, beside a picture of the strobes' timing.
///
/// \code
/// ZetoGui::ZetoCamConfigStrobeDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it: `Strobe1Mode`, `Strobe1Reference`,
/// `Strobe1Delay` and `Strobe1Width` in microseconds, the same of `Strobe2`, `OUT1Selector`, `OUT1Polarity`
/// and the same of `OUT2`. The picture shows whether each strobe counts from the start of the exposure
/// (reference "ExposureStart") or of the readout (any other); it stays as it is while either reference cannot
/// be set. A control whose feature the camera lacks is disabled. A write that the camera refuses is told in a
/// message box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time.
class ZETO_GUI_EXPORT ZetoCamConfigStrobeDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigStrobeDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigStrobeDialog() override;

    /// Shows another camera, or none. The former one must still be open.
    /// \return whether \a device is one with parameters; without, the dialog is disabled
    bool SetDevice(ZetoCam::Device* device);

signals:
    /// The dialog is about to close.
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfigStrobeDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigStrobeDialog)

    const std::unique_ptr<ZetoCamConfigStrobeDialogPrivate> d_ptr;
};

} // namespace ZetoGui
