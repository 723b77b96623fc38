#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigTriggerDialogPrivate;

/// Switches a camera's trigger on and off, chooses its source, edge and debounce and fires a software
/// trigger.
///
/// \code
/// ZetoGui::ZetoCamConfigTriggerDialog dialog(device);
/// dialog.exec();
/// \endcode
///
/// Each control shows a feature of the camera and follows it: `TriggerMode`, `TriggerSource`,
/// `TriggerActivation`, `TriggerDebounce` and `TriggerSoftware`. A control whose feature the camera lacks is
/// disabled. A write that the camera refuses is told in a message box.
///
/// The device is not owned: call SetDevice() or destroy the dialog before it is released. For the GUI thread;
/// the camera may be written from other threads at any time.
class ZETO_GUI_EXPORT ZetoCamConfigTriggerDialog : public QDialog
{
    Q_OBJECT

public:
    /// A null \a device gives a disabled dialog.
    explicit ZetoCamConfigTriggerDialog(ZetoCam::Device* device, QWidget* parent = nullptr);
    ~ZetoCamConfigTriggerDialog() override;

    /// Shows another camera, or none. The former one must still be open.
    /// \return whether \a device is one with parameters; without, the dialog is disabled
    bool SetDevice(ZetoCam::Device* device);

signals:
    /// The dialog is about to close.
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfigTriggerDialog)
    Q_DECLARE_PRIVATE(ZetoCamConfigTriggerDialog)

    const std::unique_ptr<ZetoCamConfigTriggerDialogPrivate> d_ptr;
};

} // namespace ZetoGui
