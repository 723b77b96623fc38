#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigPulseDialogPrivate;

/// Sets a camera's pulse generator, starts and stops it.
///
/// \code
/// ZetoGui::ZetoCamConfigPulseDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it: `PulseGenGranularity`, `PulseGenPeriod`,
/// `PulseGenWidth`, `PulseGenMode`, `PulseGenNumPulses` and `PulseGenEnable`. The delay is the period without
/// the width, in microseconds as both; the frequency in hertz takes the period as microseconds whatever the
/// granularity. A control whose feature the camera lacks is disabled. A write that the camera refuses is told
/// in a message box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time.
class ZETO_GUI_EXPORT ZetoCamConfigPulseDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigPulseDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigPulseDialog() override;

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
    Q_DISABLE_COPY(ZetoCamConfigPulseDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigPulseDialog)

    const std::unique_ptr<ZetoCamConfigPulseDialogPrivate> d_ptr;
};

} // namespace ZetoGui
