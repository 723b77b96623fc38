#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigColorDialogPrivate;

/// Sets the white balance of a colour camera: the automatic mode, its tracking speed, and the three
/// coefficients, 256 of which are unity. The group of statistics shows the coefficients live.
///
/// \code
/// ZetoGui::ZetoCamConfigColorDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it: `BalanceWhiteAuto`, `AutoTrackingSpeed`,
/// `RedCoefficient`, `GreenCoefficient` and `BlueCoefficient`. A control whose feature the camera lacks is
/// disabled. A write that the camera refuses is told in a message box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time.
class ZETO_GUI_EXPORT ZetoCamConfigColorDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigColorDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigColorDialog() override;

    /// Shows another camera, or none; the dialog is disabled without one that has parameters. The former
    /// camera must still be open.
    void SetDevice(ZetoCam::Device* device);

signals:
    /// The dialog is about to close.
    void closing();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfigColorDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigColorDialog)

    const std::unique_ptr<ZetoCamConfigColorDialogPrivate> d_ptr;
};

} // namespace ZetoGui
