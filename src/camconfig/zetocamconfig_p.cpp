#include "zetocamconfig_p.h"

#include "aboutdialog.h"
#include "applicationlanguage.h"
#include "camerachooser.h"
#include "featuretext.h"
#include "paramerror.h"
#include "timebudget.h"

#include <ZetoCameraGuiApi/zetocamconfig.h>
#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include <QMessageBox>
#include <QPointer>

#include <chrono>
#include <utility>

namespace ZetoGui {
namespace {

constexpr int TickTimeMs = 1000;

Ui::ZetoCamConfigMainWindow formOn(QMainWindow& window)
{
    useApplicationLanguage();
    Ui::ZetoCamConfigMainWindow form;
    form.setupUi(&window);
    return form;
}

ConnectionStatus::State statusAfter(CameraInformation::Answer answer)
{
    switch (answer) {
    case CameraInformation::Slow:
        return ConnectionStatus::Slow;
    case CameraInformation::NoAnswer:
        return ConnectionStatus::NotAnswering;
    case CameraInformation::Complete:
        break;
    }
    return ConnectionStatus::Connected;
}

} // namespace

ZetoCamConfigPrivate::ZetoCamConfigPrivate(ZetoCamConfig& window)
    : q(window)
    , m_ui(formOn(window))
    , m_about(new AboutDialog(&window))
    , m_timer(new QTimer(&window))
    , m_block(m_ui)
    , m_status(*m_ui.statusBar)
    , m_dialogs(window, *m_ui.gridFeatureButtons)
{
    q.layout()->setSizeConstraint(QLayout::SetFixedSize);
    setUpActions();
    setUpDialogs();
    QObject::connect(&m_connection, &CameraConnection::lost, &q, [this] { onLost(); });
    QObject::connect(&m_connection, &CameraConnection::back, &q, [this] { onBack(); });
    QObject::connect(m_timer, &QTimer::timeout, &q, [this] { tick(); });
    m_timer->start(TickTimeMs);
    showCamera();
}

ZetoCamConfigPrivate::~ZetoCamConfigPrivate()
{
    letGoOfCamera();
}

void ZetoCamConfigPrivate::setUpActions()
{
    QObject::connect(m_ui.actionConnect, &QAction::triggered, &q, [this] { connectCamera(); });
    QObject::connect(m_ui.actionDisconnect, &QAction::triggered, &q, [this] { useCamera(nullptr); });
    QObject::connect(m_ui.actionQuit, &QAction::triggered, &q, &QWidget::close);
    QObject::connect(m_ui.actionAbout, &QAction::triggered, &q, [this] { showAbout(); });
}

void ZetoCamConfigPrivate::setUpDialogs()
{
    m_dialogs.add<ZetoCamConfigFrameABDialog>(m_ui.pushBtnFrameAB, m_ui.actionFrame_A_B);
    m_dialogs.add<ZetoCamConfigTriggerDialog>(m_ui.pushBtnTrigger, m_ui.actionTrigger);
    m_dialogs.add<ZetoCamConfigPulseDialog>(m_ui.pushBtnPulse, m_ui.actionPulse);
    m_dialogs.add<ZetoCamConfigStrobeDialog>(m_ui.pushBtnStrobe, m_ui.actionStrobe);
    m_dialogs.add<ZetoCamConfigOutputDialog>(m_ui.pushBtnDataOut, m_ui.actionData_Out);
    m_dialogs.add<ZetoCamConfigColorDialog>(m_ui.pushBtnColor, m_ui.actionColor);
}

void ZetoCamConfigPrivate::useCamera(ZetoCam::Device* device)
{
    m_mayAsk = false;
    letGoOfCamera();
    m_connection.use(device);
    showCamera();
}

/// Lets go of the camera first: the selector would show it as held.
void ZetoCamConfigPrivate::connectCamera()
{
    useCamera(nullptr);
    const QPointer<ZetoCamConfig> window(&q);
    ZetoCam::DeviceInfo* const chosen = chooseCamera(q);
    if (window && chosen) // the host may destroy the window meanwhile
        openCamera(*chosen);
}

void ZetoCamConfigPrivate::openCamera(ZetoCam::DeviceInfo& info)
{
    letGoOfCamera();
    const int32_t error = m_connection.open(info);
    showCamera();
    if (error)
        tellRefusal(info, error);
}

void ZetoCamConfigPrivate::tellRefusal(ZetoCam::DeviceInfo& info, int32_t error)
{
    auto* const box = new QMessageBox(
        QMessageBox::Critical, q.windowTitle(),
        tr("%1 cannot be opened.").arg(QString::fromUtf8(info.GetDisplayName())), QMessageBox::Ok, &q);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(QString::fromLatin1(ErrorCodeToText(error)));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

/// Ends all use of the camera, so that it may go.
void ZetoCamConfigPrivate::letGoOfCamera()
{
    m_dialogs.setDevice(nullptr);
    m_about->setCamera(nullptr);
    m_information.reset();
    m_frames.reset();
    m_connection.close();
    m_block.clear();
}

void ZetoCamConfigPrivate::showCamera()
{
    ZetoGenParam::Array* const params = m_connection.params();
    if (params) {
        m_frames = std::make_unique<FrameState>(*params);
        m_information = std::make_unique<CameraInformation>(*params, *m_frames);
        m_model = modelName(*params);
    }
    m_dialogs.setDevice(m_connection.device());
    m_about->setCamera(params);
    setUsable(params);
    showStatus(params ? ConnectionStatus::Connected : ConnectionStatus::Disconnected);
    layOutFrames();
    m_pace = {};
    read();
}

void ZetoCamConfigPrivate::onLost()
{
    setUsable(false);
    showStatus(ConnectionStatus::Lost);
}

/// What was bound, looked up or read before the loss may be out of date.
void ZetoCamConfigPrivate::onBack()
{
    m_information.reset();
    m_frames.reset();
    showCamera();
}

void ZetoCamConfigPrivate::setUsable(bool usable)
{
    m_ui.actionDisconnect->setEnabled(m_connection.device());
    m_ui.grBoxCameraInformation->setEnabled(usable);
    m_ui.featureButtons->setEnabled(usable);
    m_dialogs.setEnabled(usable);
}

void ZetoCamConfigPrivate::layOutFrames()
{
    const bool hasTwoFrames = m_frames && m_frames->selector();
    m_block.layOut(hasTwoFrames);
    m_block.setMode(m_frames ? m_frames->mode() : FrameState::BothFrames);
    m_dialogs.setOffered(m_ui.actionFrame_A_B, hasTwoFrames);
}

void ZetoCamConfigPrivate::tick()
{
    if (m_frames && m_frames->takeModeChange())
        layOutFrames();
    if (q.isVisible() && !q.isMinimized())
        read();
}

/// A few values of the camera, if it is there and its turn has come.
void ZetoCamConfigPrivate::read()
{
    const auto begin = std::chrono::steady_clock::now();
    if (!m_information || m_connection.isLost() || !m_pace.isDue(begin))
        return;
    const TimeBudget budget(ReadingPace::Budget);
    const CameraInformation::Answer answer = m_information->read(budget);
    if (m_about->isVisible())
        m_about->read(budget);
    m_pace.finished(begin, std::chrono::steady_clock::now());
    m_block.show(*m_information);
    showStatus(statusAfter(answer));
}

void ZetoCamConfigPrivate::showAbout()
{
    m_about->read(TimeBudget(ReadingPace::Budget)); // the rest comes with the next ticks
    m_about->show();
    m_about->raise();
    m_about->activateWindow();
}

void ZetoCamConfigPrivate::showStatus(ConnectionStatus::State state)
{
    m_status.show(state, m_model);
}

/// Asks once the window is on the screen; a host that shows it without an event loop is not held up.
void ZetoCamConfigPrivate::onShown()
{
    if (!q.focusWidget())
        m_dialogs.focusFirstButton();
    if (std::exchange(m_mayAsk, false))
        QMetaObject::invokeMethod(
            &q, [this] { connectCamera(); }, Qt::QueuedConnection);
}

void ZetoCamConfigPrivate::closeDialogs()
{
    m_dialogs.closeAll();
    m_about->close();
}

} // namespace ZetoGui
