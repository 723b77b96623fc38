#pragma once

#include "zetoguiexport.h"

#include <QMainWindow>

#include <memory>

namespace ZetoCam {
class Device;
}

namespace ZetoGui {

class ZetoCamConfigPrivate;

/// The camera configuration tool: live information about a camera, and dialogs for Frame A/B acquisition,
/// trigger, pulse generator, strobe, data output and colour.
///
/// \code
/// ZetoGui::ZetoCamConfig window(device); // or without a device: the person chooses one
/// window.show();
/// \endcode
///
/// When it is shown for the first time, a window that was neither made with a camera nor told with
/// SetDevice() which one to show asks for one with the camera selector, as "Connect" in its menu does. A
/// camera chosen there is opened, and released with the next choice, with "Disconnect" or with the window.
///
/// While it is visible, the window reads the camera once a second. For that it switches a dual-frame camera's
/// `FrameAB_Selector` to the other frame and back; programs that use the same camera on another thread must
/// not rely on the selector meanwhile. A reading takes 200 ms and a few accesses at most, and seldom comes
/// when it took longer.
///
/// A camera that is lost leaves the window usable: what needs the camera is disabled until it is back or
/// another one is chosen, and the status bar tells why.
///
/// For the thread of the QApplication. Nothing throws.
class ZETO_GUI_EXPORT ZetoCamConfig : public QMainWindow
{
    Q_OBJECT

public:
    /// A window without a camera.
    ZetoCamConfig();

    /// \param device an open camera, which stays the caller's: it must outlive the window or be taken away
    ///        with SetDevice(nullptr). Null for none.
    /// \param flags without any, the window gets no button to maximise it; it is as large as what it shows
    explicit ZetoCamConfig(ZetoCam::Device* device, QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Lets go of the camera; one that was chosen here is released.
    ~ZetoCamConfig() override;

    /// Shows \a device instead of the camera so far, in the open dialogs, too. Null for none. Ownership as in
    /// the constructor.
    void SetDevice(ZetoCam::Device* device);

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Q_DISABLE_COPY(ZetoCamConfig)
    Q_DECLARE_PRIVATE(ZetoCamConfig)

    const std::unique_ptr<ZetoCamConfigPrivate> d_ptr;
};

} // namespace ZetoGui
