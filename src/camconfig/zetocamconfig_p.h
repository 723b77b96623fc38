#pragma once

#include "cameraconnection.h"
#include "camerainformation.h"
#include "connectionstatus.h"
#include "dialoglauncher.h"
#include "framestate.h"
#include "informationblock.h"
#include "readingpace.h"
#include "ui_zetocamconfigmainwindow.h"

#include <QTimer>

#include <memory>

namespace ZetoGui {

class AboutDialog;
class ZetoCamConfig;

/// The camera of the main window, and what shows it.
class ZetoCamConfigPrivate
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCamConfigMainWindow)

public:
    explicit ZetoCamConfigPrivate(ZetoCamConfig& window);
    ~ZetoCamConfigPrivate();
    Q_DISABLE_COPY(ZetoCamConfigPrivate)

    /// Shows \a device instead of the camera so far.
    void useCamera(ZetoCam::Device* device);

    void onShown();
    void closeDialogs();

private:
    void setUpActions();
    void setUpDialogs();

    void connectCamera();
    void openCamera(ZetoCam::DeviceInfo& info);
    void tellRefusal(ZetoCam::DeviceInfo& info, int32_t error);
    void letGoOfCamera();
    void showCamera();
    void onLost();
    void onBack();

    void setUsable(bool usable);
    void layOutFrames();
    void tick();
    void read();
    void showAbout();
    void showStatus(ConnectionStatus::State state);

    ZetoCamConfig& q;
    Ui::ZetoCamConfigMainWindow m_ui;
    AboutDialog* const m_about; // child of the window
    QTimer* const m_timer;      // child of the window
    InformationBlock m_block;
    ConnectionStatus m_status;
    DialogLauncher m_dialogs;
    bool m_mayAsk = true; ///< a window that was never given a camera, nor told to have none, asks for one
                          ///< when it is shown

    CameraConnection m_connection;
    std::unique_ptr<FrameState> m_frames;             ///< null without a camera
    std::unique_ptr<CameraInformation> m_information; ///< null without a camera
    QString m_model;                                  ///< of the camera shown last
    ReadingPace m_pace;
};

} // namespace ZetoGui
