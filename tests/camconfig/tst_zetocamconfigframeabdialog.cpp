#include "datatable.h"
#include "dialogfixture.h"
#include "frameexcursion.h"
#include "messageboxes.h"

#include <ZetoCameraGuiApi/zetocamconfig.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>

#include "qtzetodoubleslider.h"
#include "qtzetodoublespinboxval.h"
#include "qtzetogainslider.h"
#include "qtzetoslider.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

/// What the Frame A/B dialog adds to its bindings.
class TestZetoCamConfigFrameABDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void walks_by_tab_in_the_order_of_the_form();
    void enables_what_the_settings_allow_data();
    void enables_what_the_settings_allow();
    void shows_and_writes_exposure_times_data();
    void shows_and_writes_exposure_times();
    void leaves_the_clocks_when_the_lines_are_refused();
    void follows_the_exposure_time_while_it_can_be_set();
    void shows_periods_in_microseconds();
    void works_with_odd_clocks();
    void shows_and_writes_digital_gains();
    void sets_ready_made_sizes();
    void follows_sizes_of_the_camera();
    void sets_the_line_time_of_dual_video();
    void brings_up_the_frame_of_the_mode();
    void follows_the_selector();
    void leaves_what_is_half_typed_at_its_frame();
    void leaves_a_tab_that_the_camera_refuses();
    void stays_at_its_frame_while_the_main_window_reads_both_data();
    void stays_at_its_frame_while_the_main_window_reads_both();
    void follows_an_excursion_that_does_not_return();
    void offers_nothing_of_a_camera_without_frames();

private:
    template <typename Widget>
    Widget* child(const char* name)
    {
        return &childOf<Widget>(*m_dialog, name);
    }
    void press(const char* button);
    void typeInto(const char* spinBox, const char* text, Qt::Key end = Qt::Key_Return);
    /// "Feature=value" for each feature of the camera.
    void assign(const QString& settings);
    QStringList takeWrites() { return m_fixture->takeWrites(); }
    int64_t camera(const char* feature) { return m_fixture->features().integer(feature); }
    ZetoGenParam::Enum& selector();

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<ZetoGui::ZetoCamConfigFrameABDialog> m_dialog;
    std::unique_ptr<MessageBoxes> m_boxes;
};

void TestZetoCamConfigFrameABDialog::init()
{
    m_boxes = std::make_unique<MessageBoxes>();
    m_fixture = std::make_unique<DialogFixture>();
    m_dialog = std::make_unique<ZetoGui::ZetoCamConfigFrameABDialog>(&m_fixture->device());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestZetoCamConfigFrameABDialog::cleanup()
{
    m_dialog.reset();
    m_fixture.reset();
    QCOMPARE(m_boxes->take(), QStringList());
}

/// On the box or circle: beside the text of a wide button there is nothing to press.
void TestZetoCamConfigFrameABDialog::press(const char* button)
{
    auto* const pressed = child<QAbstractButton>(button);
    QTest::mouseClick(pressed, Qt::LeftButton, {}, QPoint(8, pressed->height() / 2));
}

void TestZetoCamConfigFrameABDialog::typeInto(const char* spinBox, const char* text, Qt::Key end)
{
    auto* const edit = child<QWidget>(spinBox)->findChild<QLineEdit*>();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QLatin1String(text));
    if (end != Qt::Key_unknown)
        QTest::keyClick(edit, end);
}

void TestZetoCamConfigFrameABDialog::assign(const QString& settings)
{
    for (const QString& setting : settings.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString value = setting.section(QLatin1Char('='), 1);
        bool isNumber = false;
        const int64_t number = value.toLongLong(&isNumber);
        const std::string feature = setting.section(QLatin1Char('='), 0, 0).toStdString();
        if (isNumber)
            m_fixture->features().assign(feature, number);
        else
            m_fixture->features().assign(feature, value.toStdString());
    }
}

ZetoGenParam::Enum& TestZetoCamConfigFrameABDialog::selector()
{
    return *m_fixture->device().GetParameters(nullptr)->GetEnum("FrameAB_Selector", nullptr);
}

void TestZetoCamConfigFrameABDialog::enables_what_the_settings_allow_data()
{
    const DataTable<QString, QString, QString> table("settings", "enabled", "disabled");
    table.row(
        "as it comes", "",
        "spBoxExpLines spBoxExpTime spBoxFrameLineTime radioBtnFullFrame radioBtnQFHDFrame spBoxFrameWidth "
        "spBoxDigitalGain",
        "spBoxNumberOfFrameAs spBoxDualVideo radioBtnExpTrigger spBoxFixedFramePeriodValue cmBoxSubsamplingP "
        "cmBoxAveraging cmBoxWdrP1");
    table.row("exposure off", "Frame_ExposureControl=Off", "chBoxFixedFramePeriodEnable",
              "spBoxExpLines spBoxExpClocks spBoxExpTime");
    table.row("trigger on", "TriggerMode=On", "radioBtnExpTrigger", "");
    table.row("exposure by trigger", "TriggerMode=On Frame_ExposureControl=Trigger", "radioBtnExpOff",
              "spBoxExpLines spBoxExpClocks spBoxExpTime");
    table.row("fixed period", "Frame_FixedFramePeriodEnable=1", "spBoxFixedFramePeriodValue spBoxExpTime",
              "");
    table.row("subsampling", "Frame_DecimationMode=Subsampling", "cmBoxSubsamplingP cmBoxSubsamplingM",
              "cmBoxAveraging");
    table.row("averaging", "Frame_DecimationMode=Averaging", "cmBoxAveraging",
              "cmBoxSubsamplingP cmBoxSubsamplingM");
    table.row("wide dynamic range", "Frame_WdrEnable=1", "cmBoxWdrP1 spBoxWdrE3", "");
    table.row("dual video", "FrameMode=DualVideo", "spBoxNumberOfFrameAs spBoxDualVideo spBoxExpLines",
              "spBoxFrameLineTime");
    table.row("frame that is put out", "FrameMode=FrameB FrameAB_Selector=FrameB",
              "spBoxExpLines spBoxFrameWidth", "spBoxDualVideo");
    table.row("frame that is not put out", "FrameMode=FrameB", "tabFrames cmBoxFrameMode",
              "spBoxExpLines spBoxFrameWidth radioBtnFullFrame spBoxDigitalGain chBoxWdrEnable");
    table.row("small sensor", "Frame_Width=1000 Frame_OffsetX=0 Frame_Height=2000", "radioBtnQFHDFrame", "");
    table.row("acquisition", "AcquisitionActive=1", "spBoxExpLines spBoxDigitalGain",
              "radioBtnFullFrame radioBtnQFHDFrame spBoxFrameWidth cmBoxFrameMode");
}

/// From the camera's settings over the tabs into the frame, also when it is the other one. Of the radio
/// buttons Tab goes to one of each group.
void TestZetoCamConfigFrameABDialog::walks_by_tab_in_the_order_of_the_form()
{
    const char* const stations[] = {"cmBoxFrameMode",  "spBoxNumberOfFrameAs", "radioBtnRollingShutter",
                                    "spBoxDualVideo",  "qt_tabwidget_tabbar",  "chBoxFixedFramePeriodEnable",
                                    "spBoxFrameWidth", "cmBoxSubsamplingP",    "cmBoxSubsamplingM",
                                    "radioBtnAGain1x", "chBoxWdrEnable",       "cmBoxWdrP1",
                                    "spBoxWdrE3",      "cmBoxFrameMode"};
    assign("FrameMode=DualVideo Frame_DecimationMode=Subsampling Frame_WdrEnable=1 "
           "FrameAB_Selector=FrameB Frame_DecimationMode=Subsampling Frame_WdrEnable=1");
    child<QWidget>(stations[0])->setFocus();
    std::size_t reached = 1;
    for (int i = 0; i < 60 && reached < std::size(stations); ++i) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        if (m_dialog->focusWidget()->objectName() == QLatin1String(stations[reached]))
            ++reached;
        else
            QVERIFY(m_dialog->focusWidget()->objectName() != QLatin1String(stations[0]));
    }
    QCOMPARE(reached, std::size(stations));
}

/// On a camera that changes, and the same on one that is set so before.
void TestZetoCamConfigFrameABDialog::enables_what_the_settings_allow()
{
    QFETCH(QString, settings);
    assign(settings);
    const auto check = [this](const QString& controls, bool expected) {
        for (const QString& name : controls.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            QVERIFY2(child<QWidget>(name.toLatin1().constData())->isEnabled() == expected, qPrintable(name));
    };
    for (int round = 0; round < 2; ++round) {
        QFETCH(QString, enabled);
        QFETCH(QString, disabled);
        check(enabled, true);
        check(disabled, false);
        m_dialog->SetDevice(&m_fixture->device());
    }
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigFrameABDialog::shows_and_writes_exposure_times_data()
{
    const DataTable<QString, int, int, QString, QString> table("settings", "shown", "maximum", "entered",
                                                               "writes");
    table.row("truncated", "Frame_ExposureLines=12 Frame_ExposureClocks=80", 120, 10000009, "100",
              "Frame_ExposureLines=10 Frame_ExposureClocks=0");
    table.row("lines and clocks", "", 10000, 10000009, "105",
              "Frame_ExposureLines=10 Frame_ExposureClocks=800");
    table.row("the same lines", "", 10000, 10000009, "10001", "Frame_ExposureClocks=160");
    table.row("the same again", "Frame_ExposureClocks=80", 10000, 10000009, "10000", "");
    table.row("fixed period", "Frame_FixedFramePeriodEnable=1", 10000, 40000, "40000",
              "Frame_ExposureLines=3999 Frame_ExposureClocks=1599");
    table.row("another line time", "Frame_LineTime=3200", 20000, 20000019, "20", "Frame_ExposureLines=1");
}

void TestZetoCamConfigFrameABDialog::shows_and_writes_exposure_times()
{
    QFETCH(QString, settings);
    assign(settings);
    auto* const time = child<QtZetoSliderSpinBox>("spBoxExpTime");
    QTEST(time->value(), "shown");
    QTEST(time->maximum(), "maximum");
    QCOMPARE(takeWrites(), QStringList());
    QFETCH(QString, entered);
    typeInto("spBoxExpTime", entered.toLatin1().constData());
    QTEST(takeWrites().join(QLatin1Char(' ')), "writes");
    QCOMPARE(int64_t(time->value()), camera("CurrentExposureTime"));
}

void TestZetoCamConfigFrameABDialog::leaves_the_clocks_when_the_lines_are_refused()
{
    m_fixture->refuseNextWrite(ZetoCam::ErrorFlashErase);
    typeInto("spBoxExpTime", "105");
    QCOMPARE(takeWrites(), QStringList("Frame_ExposureLines=10"));
    QCOMPARE(m_boxes->take().size(), 1);
    QCOMPARE(child<QtZetoSliderSpinBox>("spBoxExpTime")->value(), 10000);
    QCOMPARE(child<QtZetoSpinBox>("spBoxExpLines")->value(), 1000);
    typeInto("spBoxExpTime", "105"); // once more the same
    QCOMPARE(takeWrites(), QStringList({"Frame_ExposureLines=10", "Frame_ExposureClocks=800"}));
}

void TestZetoCamConfigFrameABDialog::follows_the_exposure_time_while_it_can_be_set()
{
    auto* const time = child<QtZetoSliderSpinBox>("spBoxExpTime");
    assign("Frame_ExposureControl=Off");
    QVERIFY(!time->isEnabled());
    assign("Frame_ExposureLines=12");
    QCOMPARE(time->value(), 10000);
    assign("Frame_ExposureControl=Internal");
    QCOMPARE(time->value(), 120);
    QCOMPARE(takeWrites(), QStringList());
}

void TestZetoCamConfigFrameABDialog::shows_periods_in_microseconds()
{
    auto* const period = child<QtZetoSliderSpinBox>("spBoxFixedFramePeriodValue");
    QCOMPARE(period->value(), 40000);
    QCOMPARE(period->maximum(), 10000000);
    press("chBoxFixedFramePeriodEnable");
    takeWrites();
    typeInto("spBoxFixedFramePeriodValue", "50000");
    QCOMPARE(takeWrites(), QStringList("Frame_FixedFramePeriodValue=5000"));
    assign("Frame_LineTime=3200");
    QCOMPARE(period->value(), 100000);
    QCOMPARE(takeWrites(), QStringList());
}

/// Values that no time can be made of are shown, and nothing is divided by them.
void TestZetoCamConfigFrameABDialog::works_with_odd_clocks()
{
    auto* const exposure = child<QtZetoSliderSpinBox>("spBoxExpTime");
    auto* const period = child<QtZetoSliderSpinBox>("spBoxFixedFramePeriodValue");
    const auto reopenWith = [this](const char* settings) {
        m_dialog->SetDevice(nullptr);
        assign(settings);
        m_dialog->SetDevice(&m_fixture->device());
    };
    reopenWith("PixelClock=80");
    QCOMPARE(exposure->value(), 20000);
    QCOMPARE(period->value(), 80000);
    QVERIFY(exposure->isEnabled());
    for (const char* const settings : {"PixelClock=0", "PixelClock=160 Frame_LineTime=0"}) {
        reopenWith(settings);
        QCOMPARE(exposure->value(), 0);
        QCOMPARE(period->value(), 0);
        QVERIFY(!exposure->isEnabled());
        exposure->setValue(1);
        QCOMPARE(takeWrites(), QStringList());
    }
    assign("Frame_LineTime=1600");
    m_fixture->features().setAccessMode("PixelClock", GenApi::NA);
    reopenWith("");
    QCOMPARE(period->value(), 40000);
}

void TestZetoCamConfigFrameABDialog::shows_and_writes_digital_gains()
{
    auto* const gain = child<QtZetoGainSlider>("spBoxDigitalGain");
    QCOMPARE(gain->maximum(), 31.75);
    assign("Frame_DigitalCourseGain=2 Frame_DigitalFineGain=32");
    QCOMPARE(gain->value(), 6.0);
    QCOMPARE(takeWrites(), QStringList());

    typeInto("spBoxDigitalGain", "12");
    QCOMPARE(takeWrites(), QStringList("Frame_DigitalCourseGain=3"));
    typeInto("spBoxDigitalGain", "17.1"); // the darker part first
    QCOMPARE(takeWrites(), QStringList({"Frame_DigitalFineGain=4", "Frame_DigitalCourseGain=4"}));
    QCOMPARE(gain->value(), 17.0);
    QTest::keyClick(gain->slider()->slider(), Qt::Key_Right);
    QTest::keyClick(gain->spinBox(), Qt::Key_Up);
    QCOMPARE(takeWrites(), QStringList({"Frame_DigitalFineGain=5", "Frame_DigitalFineGain=6"}));
    QCOMPARE(gain->value(), 17.5);
    m_fixture->features().setAccessMode("Frame_DigitalFineGain", GenApi::RO);
    QVERIFY(!gain->isEnabled());
    DialogFixture half;
    half.features().setAccessMode("Frame_DigitalFineGain", GenApi::NI);
    m_dialog->SetDevice(&half.device());
    half.features().assign("Frame_DigitalCourseGain", int64_t(1)); // half a gain is none
    QCOMPARE(gain->value(), 0.0);
    m_dialog->SetDevice(nullptr);
}

void TestZetoCamConfigFrameABDialog::sets_ready_made_sizes()
{
    const auto sizeAfter = [this](const char* settings, const char* button) {
        assign(settings);
        press(button);
        const QString size = QStringLiteral("%1x%2 at %3,%4")
                                 .arg(camera("Frame_Width"))
                                 .arg(camera("Frame_Height"))
                                 .arg(camera("Frame_OffsetX"))
                                 .arg(camera("Frame_OffsetY"));
        return child<QAbstractButton>(button)->isChecked() ? size : QString();
    };
    const char* const qfhd = "3840x2160 at 128,456";
    const char* const small = "Frame_Width=1600 Frame_OffsetX=2496 Frame_Height=100 Frame_OffsetY=2972";
    QCOMPARE(sizeAfter(small, "radioBtnFullFrame"), "4096x3072 at 0,0");
    QCOMPARE(sizeAfter("", "radioBtnQFHDFrame"), qfhd);
    QCOMPARE(sizeAfter(small, "radioBtnQFHDFrame"), qfhd);
    QCOMPARE(sizeAfter("", "radioBtnFullFrame"), "4096x3072 at 0,0");
    QCOMPARE(sizeAfter("Frame_Width=1600 Frame_OffsetX=2496", "radioBtnQFHDFrame"), qfhd);
}

void TestZetoCamConfigFrameABDialog::follows_sizes_of_the_camera()
{
    const auto checked = [this] {
        for (const char* const name : {"radioBtnFullFrame", "radioBtnQFHDFrame", "radioBtnCustomFrame"}) {
            if (child<QAbstractButton>(name)->isChecked())
                return QLatin1String(name);
        }
        return QLatin1String();
    };
    QCOMPARE(checked(), QLatin1String("radioBtnFullFrame"));
    QCOMPARE(child<QLineEdit>("lineEditFrameCurrentSize")->text(), QStringLiteral("4096x3072"));
    assign("Frame_Width=3840 Frame_OffsetX=128 Frame_Height=2160 Frame_OffsetY=456");
    QCOMPARE(checked(), QLatin1String("radioBtnQFHDFrame"));
    press("radioBtnCustomFrame");
    QCOMPARE(checked(), QLatin1String("radioBtnCustomFrame"));
    assign("FrameAB_Selector=FrameB FrameAB_Selector=FrameA");
    QCOMPARE(checked(), QLatin1String("radioBtnQFHDFrame"));
    assign("Frame_OffsetX=0");
    QCOMPARE(checked(), QLatin1String("radioBtnCustomFrame"));
    QCOMPARE(takeWrites(), QStringList());

    m_fixture->refuseNextWrite(ZetoCam::ErrorFlashErase);
    press("radioBtnFullFrame");
    QCOMPARE(m_boxes->take().size(), 1);
    QCOMPARE(checked(), QLatin1String("radioBtnCustomFrame"));
}

void TestZetoCamConfigFrameABDialog::sets_the_line_time_of_dual_video()
{
    assign("FrameMode=DualVideo FrameAB_Selector=FrameB Frame_LineTime=2000");
    QCOMPARE(child<QSpinBox>("spBoxDualVideo")->value(), 2000);
    typeInto("spBoxDualVideo", "1800");
    QCOMPARE(camera("Frame_LineTime"), int64_t(1800));
    QCOMPARE(m_fixture->features().text("FrameAB_Selector"), std::string("FrameB"));
    QCOMPARE(child<QTabWidget>("tabFrames")->currentIndex(), 1);
    m_fixture->refuseNextWrite(ZetoCam::ErrorFlashErase);
    typeInto("spBoxDualVideo", "1900");
    QCOMPARE(m_boxes->take().size(), 1);
    QCOMPARE(child<QSpinBox>("spBoxDualVideo")->value(), 1800);
    assign("FrameAB_Selector=FrameA");
    QCOMPARE(camera("Frame_LineTime"), int64_t(1800));
    QCOMPARE(child<QSpinBox>("spBoxFrameLineTime")->value(), 1800);
}

void TestZetoCamConfigFrameABDialog::brings_up_the_frame_of_the_mode()
{
    auto* const mode = child<QComboBox>("cmBoxFrameMode");
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_Down);
    QCOMPARE(takeWrites(), QStringList({"FrameMode=FrameB", "FrameAB_Selector=FrameB"}));
    QVERIFY(child<QWidget>("spBoxFrameWidth")->isEnabled());
    assign("FrameMode=FrameA");
    QCOMPARE(takeWrites(), QStringList());
    QVERIFY(!child<QWidget>("spBoxFrameWidth")->isEnabled());
}

void TestZetoCamConfigFrameABDialog::follows_the_selector()
{
    auto* const tabs = child<QTabWidget>("tabFrames");
    assign("FrameMode=DualVideo FrameAB_Selector=FrameB Frame_Width=1600");
    QCOMPARE(tabs->currentWidget()->objectName(), QStringLiteral("tabFrameB"));
    QVERIFY(child<QWidget>("spBoxFrameWidth")->isVisible());
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->value(), 1600);
    QCOMPARE(takeWrites(), QStringList());
    tabs->setCurrentIndex(0);
    QCOMPARE(takeWrites(), QStringList("FrameAB_Selector=FrameA"));
    QVERIFY(child<QWidget>("spBoxFrameWidth")->isVisible());
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->value(), 4096);
}

/// The person who changes the tab has finished; when the camera changes the frame, what was typed is gone.
void TestZetoCamConfigFrameABDialog::leaves_what_is_half_typed_at_its_frame()
{
    assign("FrameMode=DualVideo FrameAB_Selector=FrameB Frame_Width=4096 FrameAB_Selector=FrameA");
    QTabBar* const bar = child<QTabWidget>("tabFrames")->tabBar();
    typeInto("spBoxFrameWidth", "320", Qt::Key_unknown);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    QCOMPARE(takeWrites(), QStringList({"Frame_Width=320", "FrameAB_Selector=FrameB"}));
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->value(), 4096);

    assign("FrameAB_Selector=FrameA Frame_Width=4096");
    typeInto("spBoxFrameWidth", "640", Qt::Key_unknown);
    assign("FrameAB_Selector=FrameB");
    QCOMPARE(takeWrites(), QStringList());
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->value(), 4096);
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->text(), QStringLiteral("4096"));

    typeInto("spBoxDigitalGain", "20", Qt::Key_unknown);
    assign("FrameAB_Selector=FrameA");
    typeInto("spBoxDualVideo", "1700", Qt::Key_unknown);
    assign("FrameMode=FrameA");
    for (const auto& [field, end] : {std::pair("spBoxDigitalGain", Qt::Key_unknown),
                                     {"spBoxBlackLevel", Qt::Key_unknown},
                                     {"spBoxExpTime", Qt::Key_Escape}}) {
        m_dialog = std::make_unique<ZetoGui::ZetoCamConfigFrameABDialog>(&m_fixture->device());
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        typeInto(field, "20", end);
        m_dialog.reset();
    }
    QCOMPARE(takeWrites(), QStringList());
}

/// Nothing can be edited under the name of the other frame, not even while the error is told.
void TestZetoCamConfigFrameABDialog::leaves_a_tab_that_the_camera_refuses()
{
    bool editable = true;
    m_boxes->onBox = [&](QMessageBox&) { editable = child<QWidget>("spBoxFrameWidth")->isVisible(); };
    m_fixture->refuseNextWrite(ZetoCam::ErrorFlashErase);
    child<QTabWidget>("tabFrames")->setCurrentIndex(1);
    QCOMPARE(m_boxes->take().size(), 1);
    QVERIFY(!editable);
    QCOMPARE(child<QTabWidget>("tabFrames")->currentIndex(), 0);
    QVERIFY(child<QWidget>("spBoxFrameWidth")->isVisible());
}

void TestZetoCamConfigFrameABDialog::stays_at_its_frame_while_the_main_window_reads_both_data()
{
    const DataTable<QString, QString> table("frame", "other");
    table.row("Frame A", "FrameAB_Selector=FrameA", "FrameAB_Selector=FrameB");
    table.row("Frame B", "FrameAB_Selector=FrameB", "FrameAB_Selector=FrameA");
}

/// It looks at the other frame at each tick. What is being typed stays, and every edit lands on the frame
/// that is shown.
void TestZetoCamConfigFrameABDialog::stays_at_its_frame_while_the_main_window_reads_both()
{
    QFETCH(QString, frame);
    QFETCH(QString, other);
    ZetoGui::ZetoCamConfig window(&m_fixture->device());
    window.show();
    const auto tick = [&] {
        QVERIFY(QMetaObject::invokeMethod(window.findChild<QTimer*>(), "timeout"));
        QVERIFY2(takeWrites().filter("FrameAB_Selector=").size() >= 2, "reads no other frame");
    };
    assign("FrameMode=DualVideo " + other + " Frame_Width=2000 " + frame);
    m_dialog->activateWindow();
    auto* const width = child<QSpinBox>("spBoxFrameWidth");
    const QSignalSpy moves(child<QTabWidget>("tabFrames"), &QTabWidget::currentChanged);
    const QSignalSpy values(width, qOverload<int>(&QSpinBox::valueChanged));
    takeWrites();
    for (const char* const digits : {"9", "96", "960"}) {
        typeInto("spBoxFrameWidth", digits, Qt::Key_unknown);
        tick();
        QCOMPARE(width->text(), digits);
        QVERIFY(width->hasFocus());
        QCOMPARE(values.size(), 0);
    }
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(takeWrites(), QStringList("Frame_Width=960"));
    QTest::keyPress(width, Qt::Key_Down);
    tick();
    QTest::keyRelease(width, Qt::Key_Down);
    press("radioBtnCustomFrame");
    tick();
    QCOMPARE(camera("Frame_Width"), int64_t(width->value()));
    QVERIFY(width->value() < 960);
    QCOMPARE(moves.size(), 0);
    assign(other);
    QCOMPARE(camera("Frame_Width"), int64_t(2000));
}

void TestZetoCamConfigFrameABDialog::follows_an_excursion_that_does_not_return()
{
    assign("FrameAB_Selector=FrameB Frame_Width=2000 FrameAB_Selector=FrameA");
    {
        const ZetoGui::FrameExcursion excursion(selector(), "FrameA", "FrameB");
        m_fixture->features().setAccessMode("FrameAB_Selector", GenApi::RO);
    }
    QCOMPARE(child<QTabWidget>("tabFrames")->currentIndex(), 1);
    QCOMPARE(child<QSpinBox>("spBoxFrameWidth")->value(), 2000);
}

void TestZetoCamConfigFrameABDialog::offers_nothing_of_a_camera_without_frames()
{
    DialogFixture plain("sim.u3v0.plain");
    m_dialog->SetDevice(&plain.device());
    QVERIFY(m_dialog->isEnabled());
    for (QWidget* const control : m_dialog->findChildren<QWidget*>()) {
        const bool isControl = control->inherits("QAbstractSpinBox") || control->inherits("QComboBox") ||
                               control->inherits("QAbstractButton") || control->inherits("QSlider");
        QVERIFY2(!isControl || !control->isEnabled(), qPrintable(control->objectName()));
    }
    m_dialog->SetDevice(nullptr);
    QVERIFY(!m_dialog->isEnabled());
}

ZETO_TEST_MAIN(TestZetoCamConfigFrameABDialog)

#include "tst_zetocamconfigframeabdialog.moc"
