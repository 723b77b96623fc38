#pragma once

#include "zetoguiexport.h"

#include <QDialog>

#include <memory>

namespace ZetoCam {
class DeviceInfo;
class System;
} // namespace ZetoCam

namespace ZetoGui {

class ZetoCameraSelectorDialogPrivate;

/// Lets a person choose one of the cameras that the camera library sees: a tree of the interfaces and the
/// cameras on them, with the details of what is selected. A camera that cannot be opened, because another
/// program holds it or because it is in a foreign subnet, can be looked at but not be chosen. A GigE Vision
/// camera can be given another IP address.
///
/// \code
/// ZetoGui::ZetoCameraSelectorDialog selector(ZetoCam_GetSystem(), parent, true);
/// if (selector.exec() == QDialog::Accepted)
///     device = ZetoCam_CreateDevice(selector.selectedCamera(), ZetoCam::AccessControl, &error);
/// \endcode
///
/// The list is made when the dialog is; this takes as long as the library's search on all interfaces. While
/// "Polling" is checked, a thread of the dialog searches again, with a second between two searches, and the
/// tree follows; otherwise "Rescan" does. What is selected and what is opened stays so as long as it is
/// there.
///
/// Keys: Enter in the tree chooses a camera, the menu key on a camera offers to set its address, Ctrl+C in
/// the details copies a value and Ctrl+Shift+C all of them.
///
/// Thread: the one of the application object, but for the search, which calls the camera library on the
/// dialog's own thread. The destructor waits for a search under way. Errors of the library are not reported:
/// what it does not tell is not shown. Nothing is remembered from one dialog to the next.
class ZETO_GUI_EXPORT ZetoCameraSelectorDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param system stays the camera library's and must outlive the dialog; null is a system without
    /// interfaces
    /// \param poll whether "Polling" is checked
    ZetoCameraSelectorDialog(ZetoCam::System* system, QWidget* parent, bool poll);
    ~ZetoCameraSelectorDialog() override;

    /// The camera of the current row, null when that is an interface or there is none. It is owned by the
    /// camera library.
    ZetoCam::DeviceInfo* selectedCamera() const;

    /// Has no effect: which row is current is the person's choice alone.
    void setSelectedCamera(ZetoCam::DeviceInfo* camera);

    /// Whether the dialog searches by itself.
    bool isPollChecked();

private:
    Q_DISABLE_COPY(ZetoCameraSelectorDialog)
    Q_DECLARE_PRIVATE(ZetoCameraSelectorDialog)

    const std::unique_ptr<ZetoCameraSelectorDialogPrivate> d_ptr;
};

} // namespace ZetoGui
