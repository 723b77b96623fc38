#include "datatable.h"
#include "dialogfixture.h"
#include "mainwindowdriver.h"
#include "messageboxes.h"
#include "takelist.h"
#include "testmain.h"

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

bool isHeld(const QString& cameraId)
{
    for (ZetoCam::Interface* each : takeList(ZetoCam_GetSystem()->GetInterfaceList(255))) {
        for (ZetoCam::DeviceInfo* info : takeList(each->GetDeviceInfoList())) {
            if (cameraId == QLatin1String(info->GetID()))
                return info->GetAccessStatus() == ZetoCam::AccessStatusNoAccess;
        }
    }
    return false;
}

/// The main window, shown on a camera.
class Tool : public DialogFixture
{
public:
    explicit Tool(const char* cameraId = "sim.gev0.dual")
        : DialogFixture(cameraId)
        , window(&device())
    {
        window.show();
    }

    TriggerDialog* openTrigger()
    {
        childOf<QPushButton>(window, "pushBtnTrigger").click();
        return dialogOf<TriggerDialog>(window);
    }

    ZetoCamConfig window;
};

} // namespace

/// The main window through the life of its camera.
class TestZetoCamConfig : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void shows_a_camera_data();
    void shows_a_camera();
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
    const DataTable<QByteArray, QString, QString, bool> table("camera", "status", "information", "hasFrames");
    table.row("two frames", "sim.gev0.dual", "Zeto DF-12C", twoFrames, true);
    table.row("one frame", "sim.u3v0.plain", "Zeto U-5", "2048x1536   ", false);
}

void TestZetoCamConfig::shows_a_camera()
{
    QFETCH(QByteArray, camera);
    QFETCH(bool, hasFrames);
    Tool tool(camera);
    QCOMPARE(tool.window.windowTitle(), "CamConfig");
    QTEST(statusIn(tool.window), "status");
    QTEST(informationIn(tool.window), "information");
    QCOMPARE(childOf<QLineEdit>(tool.window, "lineEditTemperature").text().isEmpty(), !hasFrames);
    QCOMPARE(childOf<QLabel>(tool.window, "lblExpUnit").text(), QString::fromUtf8("\xce\xbcs"));
    QCOMPARE(childOf<QLabel>(tool.window, "lblFrameB").isVisible(), hasFrames);
    QCOMPARE(childOf<QAction>(tool.window, "actionFrame_A_B").isVisible(), hasFrames);
    QCOMPARE(childOf<QPushButton>(tool.window, "pushBtnFrameAB").isVisible(), hasFrames);
    const auto& size = childOf<QLineEdit>(tool.window, "lineEditSizeFrameA");
    const int narrow = size.fontMetrics().horizontalAdvance(QStringLiteral("xxxxxxxxxxxx"));
    QCOMPARE(size.maximumWidth(), hasFrames ? narrow : 16777215);
    QVERIFY(childOf<QPushButton>(tool.window, "pushBtnColor").isEnabled());

    tool.window.SetDevice(nullptr);
    QCOMPARE(statusIn(tool.window), "Disconnected");
    QCOMPARE(informationIn(tool.window).trimmed(), QString());
    QVERIFY(!childOf<QPushButton>(tool.window, "pushBtnColor").isEnabled());
    tick(tool.window);
}

void TestZetoCamConfig::takes_window_flags()
{
    const ZetoCamConfig plainWindow(nullptr);
    QVERIFY(!plainWindow.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    QCOMPARE(plainWindow.layout()->sizeConstraint(), QLayout::SetFixedSize);
    const ZetoCamConfig window(nullptr, nullptr, Qt::Window | Qt::WindowMaximizeButtonHint);
    QVERIFY(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

void TestZetoCamConfig::reads_at_each_tick_while_it_is_seen()
{
    DialogFixture fixture;
    ZetoCamConfig window(&fixture.device());
    const auto expose = [&](int lines) {
        fixture.features().assign("Frame_ExposureLines", lines); // of the selected Frame A
        tick(window);
        return childOf<QLineEdit>(window, "lineEditExpFrameA").text();
    };
    window.show();
    QCOMPARE(expose(500), "5000");
    fixture.features().assign("FrameMode", 1);
    QVERIFY(childOf<QLabel>(window, "lblFrameA").isEnabled());
    tick(window);
    QVERIFY(!childOf<QLabel>(window, "lblFrameA").isEnabled());
    QVERIFY(childOf<QLabel>(window, "lblFrameB").isEnabled());
    window.showMinimized();
    QCOMPARE(expose(600), "5000");
    window.showNormal();
    QCOMPARE(expose(700), "7000");
    window.close();
    QCOMPARE(expose(800), "7000");
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
    QTRY_COMPARE(statusIn(*window), "Zeto DF-12C");
    QCOMPARE(title, "Select a device");
    QCOMPARE(informationIn(*window), twoFrames);
    QVERIFY(isHeld(dualFrame));
    trigger(*window, "actionDisconnect");
    QCOMPARE(statusIn(*window), "Disconnected");
    QVERIFY(!isHeld(dualFrame));

    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, dualFrame); });
    trigger(*window, "actionConnect");
    QVERIFY(isHeld(dualFrame));
    window.reset();
    QVERIFY(!isHeld(dualFrame));
}

void TestZetoCamConfig::stays_without_a_camera_when_none_is_chosen()
{
    Tool tool;
    whenAsked(selectorClass, [](QDialog& selector) { selector.reject(); });
    trigger(tool.window, "actionConnect");
    QCOMPARE(statusIn(tool.window), "Disconnected");
    QVERIFY(!childOf<QAction>(tool.window, "actionDisconnect").isEnabled());
    QVERIFY(childOf<QAction>(tool.window, "actionConnect").isEnabled());
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
    QTRY_COMPARE(reason, "No device");
    QCOMPARE(boxes.take(), QStringList{QStringLiteral("Zeto U-5 (500117) cannot be opened.")});
    QCOMPARE(statusIn(window), "Disconnected");
}

void TestZetoCamConfig::connects_another_camera_to_open_dialogs()
{
    Tool tool;
    const QPointer<TriggerDialog> dialog = tool.openTrigger();
    QVERIFY(dialog);
    auto& source = childOf<QComboBox>(*dialog, "cmBoxTriggerSource");
    QVERIFY(source.count() > 0);

    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, QStringLiteral("sim.cl0.dual")); });
    trigger(tool.window, "actionConnect");
    QVERIFY(dialog && dialog->isEnabled());
    auto& enable = childOf<QCheckBox>(*dialog, "chBoxTriggerEnable");
    tool.features().assign("TriggerMode", 1); // of the camera before
    QVERIFY(!enable.isChecked());

    trigger(tool.window, "actionDisconnect");
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
    Tool tool;
    const auto plug = [&](bool plugged) {
        if (onOtherThread)
            std::thread([&] { tool.plug(plugged); }).join();
        else
            tool.plug(plugged);
    };
    const QPointer<TriggerDialog> dialog = tool.openTrigger();
    for (int i = 0; i < 2; ++i) {
        plug(false);
        QTRY_COMPARE(statusIn(tool.window), "Connection to Zeto DF-12C lost");
        QVERIFY(!childOf<QPushButton>(tool.window, "pushBtnTrigger").isEnabled());
        QVERIFY(!childOf<QLineEdit>(tool.window, "lineEditSizeFrameA").isEnabled());
        QVERIFY(dialog && !dialog->isEnabled());
        tool.faults().stop();
        tick(tool.window);
        QCOMPARE(tool.faults().calls(), 0);
        QCOMPARE(informationIn(tool.window), twoFrames); // as it was

        plug(true);
        tool.features().assign("TriggerMode", 1 - i);
        QTRY_COMPARE(statusIn(tool.window), "Zeto DF-12C");
        QVERIFY(childOf<QPushButton>(tool.window, "pushBtnTrigger").isEnabled());
        QVERIFY(dialog->isEnabled());
        QCOMPARE(childOf<QCheckBox>(*dialog, "chBoxTriggerEnable").isChecked(), i == 0);
        tick(tool.window);
        QVERIFY(tool.faults().calls() > 0);
    }
}

void TestZetoCamConfig::ends_at_any_time_data()
{
    const DataTable<bool, bool, bool> table("isLost", "isDelivered", "isBack");
    table.row("while the camera is there", false, true, false);
    table.row("with the loss on its way", true, false, false);
    table.row("after the loss", true, true, false);
    table.row("with the return on its way", true, false, true);
}

void TestZetoCamConfig::ends_at_any_time()
{
    QFETCH(bool, isLost);
    QFETCH(bool, isDelivered);
    QFETCH(bool, isBack);
    using Window = std::unique_ptr<ZetoCamConfig>;
    struct End
    {
        std::function<void(Window&)> happen;
        const char* status;
    };
    const auto connectAnswered = [](ZetoCamConfig& window, const std::function<void(QDialog&)>& answer) {
        whenAsked(selectorClass, answer);
        trigger(window, "actionConnect");
    };
    const auto chooseOther = [](QDialog& selector) { choose(selector, plain); };
    const End ends[] = {
        {[](Window& window) { window.reset(); }, nullptr},
        {[](Window& window) { trigger(*window, "actionDisconnect"); }, "Disconnected"},
        {[&](Window& window) { connectAnswered(*window, chooseOther); }, "Zeto U-5"},
        {[&](Window& window) { connectAnswered(*window, [&](QDialog&) { window.reset(); }); }, nullptr},
        {[](Window& window) { trigger(*window, "actionQuit"); }, nullptr},
        {[](Window& window) { window->SetDevice(nullptr); }, "Disconnected"},
    };
    for (const End& end : ends) {
        DialogFixture fixture;
        auto window = std::make_unique<ZetoCamConfig>(&fixture.device());
        window->show();
        childOf<QPushButton>(*window, "pushBtnTrigger").click();
        if (isLost)
            fixture.plug(false);
        if (isDelivered)
            QCoreApplication::processEvents();
        if (isBack)
            fixture.plug(true);
        end.happen(window);
        QCoreApplication::processEvents();
        fixture.plug(false);
        fixture.plug(true);
        QCoreApplication::processEvents();
        QVERIFY(!end.status || statusIn(*window) == QLatin1String(end.status));
    }
}

void TestZetoCamConfig::leaves_error_boxes_usable_when_the_camera_is_lost()
{
    Tool tool;
    auto* const dialog = tool.openTrigger();
    tool.refuseNextWrite(ZetoCam::ErrorGenICamAccess);
    bool isUsable = false;
    whenAsked("QMessageBox", [&](QDialog& box) {
        tool.plug(false);
        QCoreApplication::processEvents();
        isUsable = !dialog->isEnabled() && box.isEnabled();
        box.setEnabled(true);
        box.accept();
    });
    childOf<QCheckBox>(*dialog, "chBoxTriggerEnable").click();
    QVERIFY(isUsable);
}

void TestZetoCamConfig::tells_of_a_slow_camera()
{
    ZetoSimulator::SimulatorControl& simulator = *ZetoSimulator_GetControl();
    ZetoCamConfig window;
    whenAsked(selectorClass, [](QDialog& selector) { choose(selector, dualFrame); });
    window.show();
    QTRY_COMPARE(statusIn(window), "Zeto DF-12C");
    simulator.setAccessDelay(dualFrame.toStdString(), 210);
    tick(window);
    QCOMPARE(statusIn(window), "Zeto DF-12C answers slowly");
    simulator.setAccessDelay(dualFrame.toStdString(), 0);
    QTRY_COMPARE(statusIn(window), "Zeto DF-12C");
}

void TestZetoCamConfig::tells_of_a_camera_that_does_not_answer()
{
    Tool tool;
    tool.faults().failAt(1, ZetoCam::ErrorNoDevice); // the first value
    tick(tool.window);
    QCOMPARE(statusIn(tool.window), "Zeto DF-12C does not answer");
    tool.faults().stop();
    tick(tool.window);
    QCOMPARE(statusIn(tool.window), "Zeto DF-12C");
}

void TestZetoCamConfig::shows_and_hides_dialogs_by_the_view_menu()
{
    Tool tool;
    auto& button = childOf<QPushButton>(tool.window, "pushBtnTrigger");
    button.click();
    QVERIFY(dialogOf<TriggerDialog>(tool.window));
    trigger(tool.window, "actionTrigger");
    QVERIFY(!button.isVisible());
    QVERIFY(!dialogOf<TriggerDialog>(tool.window));
    tool.faults().stop();
    tool.features().assign("TriggerMode", 1);
    QCOMPARE(tool.faults().calls(), 0); // a closed dialog asks nothing
    trigger(tool.window, "actionTrigger");
    QVERIFY(button.isVisible());
    QVERIFY(!dialogOf<TriggerDialog>(tool.window));
    button.click();
    button.click();
    QCOMPARE(tool.window.findChildren<TriggerDialog*>().size(), 1);
    QVERIFY(childOf<QCheckBox>(*dialogOf<TriggerDialog>(tool.window), "chBoxTriggerEnable").isChecked());
    tool.window.close();
    QVERIFY(!dialogOf<TriggerDialog>(tool.window));
}

void TestZetoCamConfig::opens_dialogs_by_keyboard_beside_the_window()
{
    Tool tool;
    tool.window.move(0, 0); // the screen may be small
    QVERIFY(QTest::qWaitForWindowActive(&tool.window));
    QTest::keyClick(&tool.window, Qt::Key_2, Qt::ControlModifier);
    QTRY_VERIFY(dialogOf<TriggerDialog>(tool.window));
    auto* const dialog = dialogOf<TriggerDialog>(tool.window);
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QVERIFY(dialog->x() > tool.window.x());
    QVERIFY(dialog->screen()->availableGeometry().contains(dialog->frameGeometry()));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialogOf<TriggerDialog>(tool.window));
}

void TestZetoCamConfig::tells_about_the_camera()
{
    Tool tool;
    trigger(tool.window, "actionAbout");
    auto& about = childOf<QDialog>(tool.window, "ZetoCamConfigAboutDialog");
    const auto line = [&about](const char* feature) {
        return childOf<QLineEdit>(about, QByteArray("lineEdit").append(feature)).text();
    };
    QVERIFY(about.isVisible());
    QCOMPARE(childOf<QLabel>(about, "lblApplicationName").text(), "ZetoCameraConfiguration");
    QCOMPARE(childOf<QLabel>(about, "lblVersion").text(), "2.0.1 (build 1203) ");
    const QString year = QString::number(QDate::currentDate().year());
    QVERIFY(childOf<QLabel>(about, "lblLegalNotice").text().contains(year));
    QCOMPARE(line("DeviceModelName"), "Zeto DF-12C");
    QCOMPARE(line("SensorType"), "BayerRG");
    QCOMPARE(line("XmlVersion"), "10302");

    DialogFixture other(plain.toLatin1());
    other.features().assign("DeviceUserID", std::string("R&D <b>"));
    tool.window.SetDevice(&other.device());
    tick(tool.window);
    QCOMPARE(line("DeviceModelName"), "Zeto U-5");
    QCOMPARE(line("XmlVersion"), "N/A");
    QCOMPARE(line("DeviceUserID"), "R&D <b>");
    QCOMPARE(childOf<QLineEdit>(about, "lineEditDeviceUserID").toolTip(), "<qt>R&amp;D &lt;b&gt;</qt>");
    tool.window.SetDevice(nullptr);
    QVERIFY(about.isVisible());
    QCOMPARE(line("DeviceUserID"), "N/A");
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
