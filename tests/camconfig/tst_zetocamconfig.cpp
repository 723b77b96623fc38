#include "dialogfixture.h"
#include "mainwindowdriver.h"
#include "messageboxes.h"
#include "testmain.h"

#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>
#include <simulatorcontrol.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QtTest>

#include <thread>

using namespace MainWindowDriver;
using ZetoGui::ZetoCamConfig;
using TriggerDialog = ZetoGui::ZetoCamConfigTriggerDialog;

namespace {

const QString dualFrame = QStringLiteral("sim.gev0.dual");
const QString plain = QStringLiteral("sim.u3v0.plain");
const char* const selectorClass = "ZetoGui::ZetoCameraSelectorDialog";

const QString twoFrames = QStringLiteral("4096x3072 32.13 10000 31120|2048x1536 63.45 2500 15760");
const QString oneFrame = QStringLiteral("2048x1536   ");

bool isHeld(const QString& cameraId)
{
    ZetoCam::InterfaceList* const interfaces = ZetoCam_GetSystem()->GetInterfaceList(255);
    bool held = false;
    for (ZetoCam::Interface* each = interfaces->GetFirst(); each; each = interfaces->GetNext()) {
        ZetoCam::DeviceInfoList* const cameras = each->GetDeviceInfoList();
        for (ZetoCam::DeviceInfo* info = cameras->GetFirst(); info; info = cameras->GetNext())
            held = held || (cameraId == QLatin1String(info->GetID()) &&
                            info->GetAccessStatus() == ZetoCam::AccessStatusNoAccess);
        cameras->Release();
    }
    interfaces->Release();
    return held;
}

} // namespace

/// The main window through the life of its camera.
class TestZetoCamConfig : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void shows_a_camera_data();
    void shows_a_camera();
    void takes_window_flags_data();
    void takes_window_flags();
    void reads_at_each_tick_while_it_is_seen();
    void opens_the_camera_that_is_chosen();
    void stays_without_a_camera_when_none_is_chosen();
    void tells_why_a_camera_cannot_be_opened();
    void connects_another_camera_to_open_dialogs();
    void does_not_ask_when_told_which_camera_to_show();
    void loses_and_finds_its_camera_data();
    void loses_and_finds_its_camera();
    void ends_at_any_time_data();
    void ends_at_any_time();
    void leaves_error_boxes_usable_when_the_camera_is_lost();
    void leaves_a_person_alone_who_edits_a_frame_data();
    void leaves_a_person_alone_who_edits_a_frame();
    void tells_of_a_slow_camera();
    void tells_of_a_camera_that_does_not_answer();
    void shows_and_hides_dialogs_by_the_view_menu();
    void opens_dialogs_by_keyboard_beside_the_window();
    void tells_about_the_camera();
    void survives_any_fault();
};

void TestZetoCamConfig::cleanup()
{
    QVERIFY(!QApplication::activeModalWidget());
    ZetoCam_GetSystem()->Close();
}

void TestZetoCamConfig::shows_a_camera_data()
{
    QTest::addColumn<QByteArray>("camera");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("information");
    QTest::addColumn<bool>("hasFrames");
    QTest::newRow("two frames") << QByteArray("sim.gev0.dual") << "Zeto DF-12C" << twoFrames << true;
    QTest::newRow("one frame") << QByteArray("sim.u3v0.plain") << "Zeto U-5" << oneFrame << false;
}

void TestZetoCamConfig::shows_a_camera()
{
    QFETCH(QByteArray, camera);
    QFETCH(bool, hasFrames);
    DialogFixture fixture(camera);
    ZetoCamConfig window(&fixture.device());
    window.show();
    QCOMPARE(window.windowTitle(), QStringLiteral("CamConfig"));
    QTEST(statusIn(window), "status");
    QTEST(informationIn(window), "information");
    QCOMPARE(child<QLineEdit>(window, "lineEditTemperature").text().isEmpty(), !hasFrames);
    QCOMPARE(child<QLabel>(window, "lblExpUnit").text(), QString::fromUtf8("\xce\xbcs"));
    QCOMPARE(child<QLabel>(window, "lblFrameB").isVisible(), hasFrames);
    QCOMPARE(child<QAction>(window, "actionFrame_A_B").isVisible(), hasFrames);
    QCOMPARE(child<QPushButton>(window, "pushBtnFrameAB").isVisible(), hasFrames);
    const auto& size = child<QLineEdit>(window, "lineEditSizeFrameA");
    const int narrow = size.fontMetrics().horizontalAdvance(QStringLiteral("xxxxxxxxxxxx"));
    QCOMPARE(size.maximumWidth(), hasFrames ? narrow : 16777215);
    QVERIFY(child<QPushButton>(window, "pushBtnColor").isEnabled());

    window.SetDevice(nullptr);
    QCOMPARE(statusIn(window), QStringLiteral("Disconnected"));
    QCOMPARE(informationIn(window).trimmed(), QString());
    QVERIFY(!child<QPushButton>(window, "pushBtnColor").isEnabled());
    tick(window);
}

void TestZetoCamConfig::takes_window_flags_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("hasMaximiseButton");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("the caller's") << int(Qt::Window | Qt::WindowMaximizeButtonHint) << true;
}

void TestZetoCamConfig::takes_window_flags()
{
    QFETCH(int, flags);
    const ZetoCamConfig window(nullptr, nullptr, Qt::WindowFlags(flags));
    QTEST(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint), "hasMaximiseButton");
    QCOMPARE(window.layout()->sizeConstraint(), QLayout::SetFixedSize);
}

void TestZetoCamConfig::reads_at_each_tick_while_it_is_seen()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    const auto expose = [&](int lines) {
        fixture.features().assign("Frame_ExposureLines", lines); // of the selected Frame A
        tick(window);
        return child<QLineEdit>(window, "lineEditExpFrameA").text();
    };
    window.show();
    QCOMPARE(expose(500), QStringLiteral("5000"));
    fixture.features().assign("FrameMode", 1);
    QVERIFY(child<QLabel>(window, "lblFrameA").isEnabled());
    tick(window);
    QVERIFY(!child<QLabel>(window, "lblFrameA").isEnabled());
    QVERIFY(child<QLabel>(window, "lblFrameB").isEnabled());
    window.showMinimized();
    QCOMPARE(expose(600), QStringLiteral("5000"));
    window.showNormal();
    QCOMPARE(expose(700), QStringLiteral("7000"));
    window.close();
    QCOMPARE(expose(800), QStringLiteral("7000"));
}

void TestZetoCamConfig::opens_the_camera_that_is_chosen()
{
    auto window = std::make_unique<ZetoCamConfig>();
    QString title;
    whenAsked(selectorClass, [&](QDialog& selector) {
        title = selector.windowTitle();
        choose(selector, dualFrame);
    });
    window->show();
    QTRY_COMPARE(statusIn(*window), QStringLiteral("Zeto DF-12C"));
    QCOMPARE(title, QStringLiteral("Select a device"));
    QCOMPARE(informationIn(*window), twoFrames);
    QVERIFY(isHeld(dualFrame));
    trigger(*window, "actionDisconnect");
    QCOMPARE(statusIn(*window), QStringLiteral("Disconnected"));
    QVERIFY(!isHeld(dualFrame));

    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, dualFrame); });
    trigger(*window, "actionConnect");
    QVERIFY(isHeld(dualFrame));
    window.reset();
    QVERIFY(!isHeld(dualFrame));
}

void TestZetoCamConfig::stays_without_a_camera_when_none_is_chosen()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    whenAsked(selectorClass, [](QDialog& selector) { selector.reject(); });
    trigger(window, "actionConnect");
    QCOMPARE(statusIn(window), QStringLiteral("Disconnected"));
    QVERIFY(!child<QAction>(window, "actionDisconnect").isEnabled());
    QVERIFY(child<QAction>(window, "actionConnect").isEnabled());
}

void TestZetoCamConfig::tells_why_a_camera_cannot_be_opened()
{
    MessageBoxes boxes;
    QString reason;
    boxes.onBox = [&](QMessageBox& box) { reason = box.informativeText(); };
    ZetoCamConfig window(nullptr);
    window.SetDevice(nullptr);
    window.show();
    whenAsked(selectorClass, [](QDialog& selector) {
        choose(selector, plain);
        ZetoSimulator_GetControl()->setHeldByOther(plain.toStdString(), true);
    });
    trigger(window, "actionConnect");
    QTRY_COMPARE(reason, QStringLiteral("No device"));
    QCOMPARE(boxes.take(), QStringList{QStringLiteral("Zeto U-5 (500117) cannot be opened.")});
    QCOMPARE(statusIn(window), QStringLiteral("Disconnected"));
}

void TestZetoCamConfig::connects_another_camera_to_open_dialogs()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    child<QPushButton>(window, "pushBtnTrigger").click();
    const QPointer<TriggerDialog> dialog = dialogOf<TriggerDialog>(window);
    QVERIFY(dialog);
    auto& source = child<QComboBox>(*dialog, "cmBoxTriggerSource");
    QVERIFY(source.count() > 0);

    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, QStringLiteral("sim.cl0.dual")); });
    trigger(window, "actionConnect");
    QVERIFY(dialog && dialog->isEnabled());
    auto& enable = child<QCheckBox>(*dialog, "chBoxTriggerEnable");
    fixture.features().assign("TriggerMode", 1); // of the camera before
    QVERIFY(!enable.isChecked());

    trigger(window, "actionDisconnect");
    QVERIFY(dialog && !dialog->isEnabled());
    QVERIFY(dialog->isVisible());
}

void TestZetoCamConfig::does_not_ask_when_told_which_camera_to_show()
{
    ZetoCamConfig window;
    window.SetDevice(nullptr);
    window.show();
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
}

void TestZetoCamConfig::loses_and_finds_its_camera_data()
{
    QTest::addColumn<bool>("onOtherThread");
    QTest::newRow("told on this thread") << false;
    QTest::newRow("told on another thread") << true;
}

void TestZetoCamConfig::loses_and_finds_its_camera()
{
    QFETCH(bool, onOtherThread);
    DialogFixture fixture;
    const auto plug = [&](bool plugged) {
        if (onOtherThread)
            std::thread([&] { fixture.plug(plugged); }).join();
        else
            fixture.plug(plugged);
    };
    ZetoCamConfig window(&fixture.device());
    window.show();
    child<QPushButton>(window, "pushBtnTrigger").click();
    const QPointer<TriggerDialog> dialog = dialogOf<TriggerDialog>(window);
    for (int i = 0; i < 2; ++i) {
        plug(false);
        QTRY_COMPARE(statusIn(window), QStringLiteral("Connection to Zeto DF-12C lost"));
        QVERIFY(!child<QPushButton>(window, "pushBtnTrigger").isEnabled());
        QVERIFY(!child<QLineEdit>(window, "lineEditSizeFrameA").isEnabled());
        QVERIFY(dialog && !dialog->isEnabled());
        fixture.faults().stop();
        tick(window);
        QCOMPARE(fixture.faults().calls(), 0);
        QCOMPARE(informationIn(window), twoFrames); // as it was

        plug(true);
        fixture.features().assign("TriggerMode", 1 - i);
        QTRY_COMPARE(statusIn(window), QStringLiteral("Zeto DF-12C"));
        QVERIFY(child<QPushButton>(window, "pushBtnTrigger").isEnabled());
        QVERIFY(dialog->isEnabled());
        QCOMPARE(child<QCheckBox>(*dialog, "chBoxTriggerEnable").isChecked(), i == 0);
        tick(window);
        QVERIFY(fixture.faults().calls() > 0);
    }
}

void TestZetoCamConfig::ends_at_any_time_data()
{
    QTest::addColumn<bool>("isLost");
    QTest::addColumn<bool>("isBack");
    QTest::addColumn<bool>("isDelivered");
    QTest::addColumn<QString>("end");
    for (const char* end : {"destroy", "disconnect", "connect", "cancel", "close", "set"}) {
        const QString name = QString::fromLatin1(end);
        QTest::addRow("%s while it is there", end) << false << false << true << name;
        QTest::addRow("%s with the loss on its way", end) << true << false << false << name;
        QTest::addRow("%s after the loss", end) << true << false << true << name;
        QTest::addRow("%s with the return on its way", end) << true << true << false << name;
    }
}

void TestZetoCamConfig::ends_at_any_time()
{
    QFETCH(bool, isLost);
    QFETCH(bool, isBack);
    QFETCH(bool, isDelivered);
    QFETCH(QString, end);
    DialogFixture fixture;
    auto window = std::make_unique<ZetoCamConfig>(&fixture.device());
    window->show();
    child<QPushButton>(*window, "pushBtnTrigger").click();
    if (isLost)
        fixture.plug(false);
    if (isDelivered)
        QCoreApplication::processEvents();
    if (isBack)
        fixture.plug(true);

    const bool connects = end == QLatin1String("connect");
    if (connects || end == QLatin1String("cancel")) {
        whenAsked(selectorClass, [&](QDialog& selector) {
            if (connects)
                choose(selector, plain);
            else
                window.reset(); // as a host may
        });
        trigger(*window, "actionConnect");
    } else if (end == QLatin1String("destroy")) {
        window.reset();
    } else if (end == QLatin1String("disconnect")) {
        trigger(*window, "actionDisconnect");
    } else if (end == QLatin1String("close")) {
        trigger(*window, "actionQuit");
        QVERIFY(!dialogOf<TriggerDialog>(*window));
    } else {
        window->SetDevice(nullptr);
    }
    QCoreApplication::processEvents();
    fixture.plug(false);
    fixture.plug(true);
    QCoreApplication::processEvents();
    if (window && end != QLatin1String("close"))
        QCOMPARE(statusIn(*window), connects ? QStringLiteral("Zeto U-5") : QStringLiteral("Disconnected"));
}

void TestZetoCamConfig::leaves_error_boxes_usable_when_the_camera_is_lost()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    child<QPushButton>(window, "pushBtnTrigger").click();
    auto* const dialog = dialogOf<TriggerDialog>(window);
    fixture.refuseNextWrite(ZetoCam::ErrorGenICamAccess);
    bool isUsable = false;
    whenAsked("QMessageBox", [&](QDialog& box) {
        fixture.plug(false);
        QCoreApplication::processEvents();
        isUsable = !dialog->isEnabled() && box.isEnabled();
        box.setEnabled(true);
        box.accept();
    });
    child<QCheckBox>(*dialog, "chBoxTriggerEnable").click();
    QVERIFY(isUsable);
}

void TestZetoCamConfig::leaves_a_person_alone_who_edits_a_frame_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("written");
    QTest::newRow("Frame A") << 0 << "777 250";
    QTest::newRow("Frame B") << 1 << "1000 777";
}

/// The refresh switches the frame at each key; neither the tab nor what is typed may change, nor the wrong
/// frame.
void TestZetoCamConfig::leaves_a_person_alone_who_edits_a_frame()
{
    QFETCH(int, frame);
    DialogFixture fixture;
    fixture.features().assign("FrameMode", 2); // both
    ZetoCamConfig window(&fixture.device());
    window.show();
    child<QPushButton>(window, "pushBtnFrameAB").click();
    auto* const dialog = dialogOf<ZetoGui::ZetoCamConfigFrameABDialog>(window);
    QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
    QApplication::setActiveWindow(dialog);
    auto& tabs = child<QTabWidget>(*dialog, "tabFrames");
    tabs.setCurrentIndex(frame);
    QSignalSpy tabChanges(&tabs, &QTabWidget::currentChanged);
    auto* const edit = child<QWidget>(*dialog, "spBoxExpLines").findChild<QLineEdit*>();
    fixture.takeWrites();
    edit->setFocus();
    edit->selectAll();
    QWidget* const focus = QApplication::focusWidget();
    QVERIFY(focus && focus->isAncestorOf(edit));
    for (int i = 1; i <= 3; ++i) {
        QTest::keyClick(focus, Qt::Key_7);
        tick(window);
        QCOMPARE(edit->text(), QStringLiteral("777").left(i));
    }
    QCOMPARE(fixture.takeWrites().filter(QStringLiteral("Exposure")), QStringList());
    QTest::keyClick(focus, Qt::Key_Return);
    tick(window);
    QCOMPARE(tabChanges.size(), 0);
    QCOMPARE(tabs.currentIndex(), frame);

    QStringList lines;
    for (const int each : {0, 1}) {
        fixture.features().assign("FrameAB_Selector", each);
        lines += QString::number(fixture.features().integer("Frame_ExposureLines"));
    }
    QTEST(lines.join(QLatin1Char(' ')), "written");
}

void TestZetoCamConfig::tells_of_a_slow_camera()
{
    ZetoSimulator::SimulatorControl& simulator = *ZetoSimulator_GetControl();
    ZetoCamConfig window;
    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, dualFrame); });
    window.show();
    QTRY_COMPARE(statusIn(window), QStringLiteral("Zeto DF-12C"));
    simulator.setAccessDelay(dualFrame.toStdString(), 210);
    tick(window);
    QCOMPARE(statusIn(window), QStringLiteral("Zeto DF-12C answers slowly"));
    simulator.setAccessDelay(dualFrame.toStdString(), 0);
    QTRY_COMPARE(statusIn(window), QStringLiteral("Zeto DF-12C"));
}

void TestZetoCamConfig::tells_of_a_camera_that_does_not_answer()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    fixture.faults().failAt(1, ZetoCam::ErrorNoDevice); // the first value
    tick(window);
    QCOMPARE(statusIn(window), QStringLiteral("Zeto DF-12C does not answer"));
    fixture.faults().stop();
    tick(window);
    QCOMPARE(statusIn(window), QStringLiteral("Zeto DF-12C"));
}

void TestZetoCamConfig::shows_and_hides_dialogs_by_the_view_menu()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    auto& button = child<QPushButton>(window, "pushBtnTrigger");
    button.click();
    QVERIFY(dialogOf<TriggerDialog>(window));
    trigger(window, "actionTrigger");
    QVERIFY(!button.isVisible());
    QVERIFY(!dialogOf<TriggerDialog>(window));
    fixture.faults().stop();
    fixture.features().assign("TriggerMode", 1);
    QCOMPARE(fixture.faults().calls(), 0); // a closed dialog asks nothing
    trigger(window, "actionTrigger");
    QVERIFY(button.isVisible());
    QVERIFY(!dialogOf<TriggerDialog>(window));
    button.click();
    button.click();
    QCOMPARE(window.findChildren<TriggerDialog*>().size(), 1);
    QVERIFY(child<QCheckBox>(*dialogOf<TriggerDialog>(window), "chBoxTriggerEnable").isChecked());
    window.close();
    QVERIFY(!dialogOf<TriggerDialog>(window));
}

void TestZetoCamConfig::opens_dialogs_by_keyboard_beside_the_window()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.move(0, 0); // the screen may be small
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_2, Qt::ControlModifier);
    QTRY_VERIFY(dialogOf<TriggerDialog>(window));
    auto* const dialog = dialogOf<TriggerDialog>(window);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QVERIFY(dialog->x() > window.x());
    QVERIFY(dialog->screen()->availableGeometry().contains(dialog->frameGeometry()));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialogOf<TriggerDialog>(window));
}

void TestZetoCamConfig::tells_about_the_camera()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    window.show();
    trigger(window, "actionAbout");
    auto& about = child<QDialog>(window, "ZetoCamConfigAboutDialog");
    QVERIFY(about.isVisible());
    QCOMPARE(child<QLabel>(about, "lblApplicationName").text(), QStringLiteral("ZetoCameraConfiguration"));
    QCOMPARE(child<QLabel>(about, "lblVersion").text(), QStringLiteral("2.0.1 (build 1203) "));
    QVERIFY(
        child<QLabel>(about, "lblLegalNotice").text().contains(QString::number(QDate::currentDate().year())));
    QCOMPARE(child<QLineEdit>(about, "lineEditDeviceModelName").text(), QStringLiteral("Zeto DF-12C"));
    QCOMPARE(child<QLineEdit>(about, "lineEditSensorType").text(), QStringLiteral("BayerRG"));
    QCOMPARE(child<QLineEdit>(about, "lineEditXmlVersion").text(), QStringLiteral("10302"));

    DialogFixture other(plain.toLatin1());
    other.features().assign("DeviceUserID", std::string("R&D <b>"));
    window.SetDevice(&other.device());
    tick(window);
    QCOMPARE(child<QLineEdit>(about, "lineEditDeviceModelName").text(), QStringLiteral("Zeto U-5"));
    QCOMPARE(child<QLineEdit>(about, "lineEditXmlVersion").text(), QStringLiteral("N/A"));
    const auto& userName = child<QLineEdit>(about, "lineEditDeviceUserID");
    QCOMPARE(userName.text(), QStringLiteral("R&D <b>"));
    QCOMPARE(userName.toolTip(), QStringLiteral("<qt>R&amp;D &lt;b&gt;</qt>")); // shown as it is
    window.SetDevice(nullptr);
    QVERIFY(about.isVisible());
    QCOMPARE(userName.text(), QStringLiteral("N/A"));
}

/// Each call to the camera fails once, with a code and in breach of the interface.
void TestZetoCamConfig::survives_any_fault()
{
    DialogFixture fixture;
    for (const int32_t code : {int32_t{ZetoCam::ErrorNoDevice}, int32_t{ZetoCam::ErrorGenICamAccess}, 0}) {
        int failing = 0;
        do {
            fixture.faults().failAt(failing, code);
            ZetoCamConfig window(&fixture.device());
            window.show();
            tick(window);
            trigger(window, "actionAbout");
        } while (fixture.faults().calls() > failing++);
        QVERIFY(failing > 50);
    }
    fixture.faults().stop();
    fixture.features().assign("FrameAB_Selector", 0);
    ZetoCamConfig window(&fixture.device());
    QCOMPARE(informationIn(window), twoFrames);
}

ZETO_TEST_MAIN(TestZetoCamConfig)
#include "tst_zetocamconfig.moc"
