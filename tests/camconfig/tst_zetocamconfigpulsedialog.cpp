#include "dialogfixture.h"
#include "messageboxes.h"
#include "pulsetiming.h"

#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>

#include "testmain.h"

#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <limits>

/// What the pulse dialog derives from the settings, and its lamp.
class TestZetoCamConfigPulseDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void derives_delay_and_frequency();
    void shows_what_follows_from_period_and_width();
    void chooses_the_mode();
    void starts_and_stops();
    void stays_red_when_the_camera_refuses();
    void has_a_square_lamp();

private:
    QString text(const char* lineEdit) const { return childOf<QLineEdit>(*m_dialog, lineEdit).text(); }
    /// The lamp's colour and the text of the button.
    QString shownState() const;

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<ZetoGui::ZetoCamConfigPulseDialog> m_dialog;
};

void TestZetoCamConfigPulseDialog::init()
{
    m_fixture = std::make_unique<DialogFixture>();
    m_dialog = std::make_unique<ZetoGui::ZetoCamConfigPulseDialog>(&m_fixture->device());
}

void TestZetoCamConfigPulseDialog::cleanup()
{
    m_dialog.reset();
    m_fixture.reset();
}

QString TestZetoCamConfigPulseDialog::shownState() const
{
    const QImage lamp = childOf<QLabel>(*m_dialog, "lblPulseEnable").pixmap(Qt::ReturnByValue).toImage();
    const QColor centre = lamp.pixelColor(lamp.rect().center());
    return (centre.green() > centre.red() ? "green " : "red ") +
           childOf<QPushButton>(*m_dialog, "pushBtnPulseEnable").text();
}

void TestZetoCamConfigPulseDialog::derives_delay_and_frequency()
{
    const auto derived = [](int period, int width) -> QString {
        return ZetoGui::pulseDelayText(period, width) + ' ' + ZetoGui::pulseFrequencyText(period);
    };
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QCOMPARE(derived(1000, 250), "750 1000.000000");
    QCOMPARE(derived(0, 0), "0 0.000000");
    QCOMPARE(derived(1, 1), "0 1000000.000000");
    QCOMPARE(derived(3, 10), "-7 333333.333333");
    QCOMPARE(derived(most, 0), "2147483647 0.000466");
    QCOMPARE(derived(most, least), "4294967295 0.000466");
    QCOMPARE(derived(least, most), "-4294967295 -0.000466");
}

/// By hand and by the camera, which shortens the width with the period.
void TestZetoCamConfigPulseDialog::shows_what_follows_from_period_and_width()
{
    QCOMPARE(childOf<QLabel>(*m_dialog, "lblPeriod").text(), u8"Period [\u03bcs]:");
    QCOMPARE(text("lineEditDelay"), "750");
    QCOMPARE(text("lineEditFreq"), "1000.000000");
    m_fixture->features().assign("PulseGenPeriod", int64_t(200));
    QCOMPARE(text("lineEditFreq"), "5000.000000");
    QCOMPARE(m_fixture->takeWrites(), QStringList());
    m_fixture->features().assign("PulseGenGranularity", int64_t(4)); // changes no display
    QCOMPARE(text("lineEditFreq"), "5000.000000");

    auto& width = childOf<QWidget>(*m_dialog, "spBoxWidth");
    m_dialog->show();
    QTest::keyClick(width.focusProxy(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(width.focusProxy(), QStringLiteral("150"));
    QTest::keyClick(width.focusProxy(), Qt::Key_Return);
    QCOMPARE(text("lineEditDelay"), "50");
    QCOMPARE(m_fixture->takeWrites(), QStringList("PulseGenWidth=150"));

    DialogFixture plain("sim.u3v0.plain");
    m_dialog->SetDevice(&plain.device());
    QVERIFY(!childOf<QLineEdit>(*m_dialog, "lineEditDelay").isEnabled());
    QVERIFY(!childOf<QLineEdit>(*m_dialog, "lineEditFreq").isEnabled());
    m_dialog->SetDevice(nullptr);
}

void TestZetoCamConfigPulseDialog::chooses_the_mode()
{
    QVERIFY(childOf<QRadioButton>(*m_dialog, "radioBtnContinious").isChecked());
    QVERIFY(!childOf<QWidget>(*m_dialog, "spBoxNumPulses").isEnabled());
    childOf<QRadioButton>(*m_dialog, "radioBtnSend").click();
    QCOMPARE(m_fixture->features().text("PulseGenMode"), std::string("NumPulses"));
    QVERIFY(childOf<QWidget>(*m_dialog, "spBoxNumPulses").isEnabled());
}

void TestZetoCamConfigPulseDialog::starts_and_stops()
{
    auto& button = childOf<QPushButton>(*m_dialog, "pushBtnPulseEnable");
    const QKeySequence shortcut(QStringLiteral("Ctrl+Shift+S, Ctrl+Shift+S"));
    QCOMPARE(shownState(), "red Start");
    button.click();
    QCOMPARE(shownState(), "green Stop");
    QCOMPARE(button.shortcut(), shortcut);
    QCOMPARE(m_fixture->features().integer("PulseGenEnable"), int64_t(1));
    button.click();
    QCOMPARE(shownState(), "red Start");
    QCOMPARE(button.shortcut(), shortcut);

    GenApi::CBooleanPtr(m_fixture->features().GetNode("PulseGenEnable"))->SetValue(true);
    QCOMPARE(shownState(), "green Stop");
    DialogFixture other;
    m_dialog->SetDevice(&other.device());
    QCOMPARE(shownState(), "red Start");
    button.click();
    DialogFixture plain("sim.u3v0.plain"); // has no generator
    m_dialog->SetDevice(&plain.device());
    QCOMPARE(shownState(), "red Start");
    QCOMPARE(text("lineEditFreq"), "0.000000");
    m_dialog->SetDevice(nullptr);
}

void TestZetoCamConfigPulseDialog::stays_red_when_the_camera_refuses()
{
    MessageBoxes boxes;
    m_fixture->refuseNextWrite(ZetoCam::ErrorInvalidState);
    childOf<QPushButton>(*m_dialog, "pushBtnPulseEnable").click();
    QCOMPARE(boxes.take().size(), 1);
    QCOMPARE(shownState(), "red Start");
    QCOMPARE(m_fixture->takeWrites(), QStringList("PulseGenEnable=1"));
}

void TestZetoCamConfigPulseDialog::has_a_square_lamp()
{
    m_dialog->show();
    const QSize lamp = childOf<QLabel>(*m_dialog, "lblPulseEnable").size();
    QCOMPARE(lamp.width(), lamp.height());
    QCOMPARE(lamp.height(), childOf<QPushButton>(*m_dialog, "pushBtnPulseEnable").height());
}

ZETO_TEST_MAIN(TestZetoCamConfigPulseDialog)

#include "tst_zetocamconfigpulsedialog.moc"
