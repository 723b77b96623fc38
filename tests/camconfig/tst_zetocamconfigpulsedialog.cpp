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

using ZetoGui::ZetoCamConfigPulseDialog;

/// What the pulse dialog derives from the settings, and its lamp.
class TestZetoCamConfigPulseDialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<DialogFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void derives_delay_and_frequency_data();
    void derives_delay_and_frequency();
    void shows_what_follows_from_period_and_width();
    void chooses_the_mode();
    void starts_and_stops();
    void stays_red_when_the_camera_refuses();
    void has_a_square_lamp();

private:
    std::unique_ptr<DialogFixture> m_fixture;
};

namespace {

template <typename Widget>
Widget* child(QDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QLatin1String(name));
}

QString text(QDialog& dialog, const char* lineEdit)
{
    return child<QLineEdit>(dialog, lineEdit)->text();
}

/// The lamp's colour and the text of the button.
QString shownState(QDialog& dialog)
{
    const QImage lamp = child<QLabel>(dialog, "lblPulseEnable")->pixmap(Qt::ReturnByValue).toImage();
    const QColor centre = lamp.pixelColor(lamp.rect().center());
    return (centre.green() > centre.red() ? QStringLiteral("green ") : QStringLiteral("red ")) +
           child<QPushButton>(dialog, "pushBtnPulseEnable")->text();
}

} // namespace

void TestZetoCamConfigPulseDialog::derives_delay_and_frequency_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int period, int width, const char* expected) {
        QTest::newRow(name) << period << width << QString::fromLatin1(expected);
    };
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    row("plain", 1000, 250, "750 1000.000000");
    row("no period", 0, 0, "0 0.000000");
    row("shortest", 1, 1, "0 1000000.000000");
    row("width beyond the period", 3, 10, "-7 333333.333333");
    row("longest", most, 0, "2147483647 0.000466");
    row("farthest apart", most, least, "4294967295 0.000466");
    row("the other way", least, most, "-4294967295 -0.000466");
}

void TestZetoCamConfigPulseDialog::derives_delay_and_frequency()
{
    QFETCH(int, period);
    QFETCH(int, width);
    const QString derived =
        ZetoGui::pulseDelayText(period, width) + QLatin1Char(' ') + ZetoGui::pulseFrequencyText(period);
    QTEST(derived, "expected");
}

/// By hand and by the camera, which shortens the width with the period.
void TestZetoCamConfigPulseDialog::shows_what_follows_from_period_and_width()
{
    ZetoCamConfigPulseDialog dialog(&m_fixture->device());
    QCOMPARE(child<QLabel>(dialog, "lblPeriod")->text(), QStringLiteral("Period [\u03bcs]:"));
    QCOMPARE(text(dialog, "lineEditDelay"), QStringLiteral("750"));
    QCOMPARE(text(dialog, "lineEditFreq"), QStringLiteral("1000.000000"));
    m_fixture->features().assign("PulseGenPeriod", int64_t(200));
    QCOMPARE(text(dialog, "lineEditFreq"), QStringLiteral("5000.000000"));
    QCOMPARE(m_fixture->takeWrites(), QStringList());
    m_fixture->features().assign("PulseGenGranularity", int64_t(4)); // changes no display
    QCOMPARE(text(dialog, "lineEditFreq"), QStringLiteral("5000.000000"));

    auto* const width = child<QWidget>(dialog, "spBoxWidth");
    dialog.show();
    QTest::keyClick(width->focusProxy(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(width->focusProxy(), QStringLiteral("150"));
    QTest::keyClick(width->focusProxy(), Qt::Key_Return);
    QCOMPARE(text(dialog, "lineEditDelay"), QStringLiteral("50"));
    QCOMPARE(m_fixture->takeWrites(), QStringList(QStringLiteral("PulseGenWidth=150")));

    DialogFixture plain("sim.u3v0.plain");
    dialog.SetDevice(&plain.device());
    QVERIFY(!child<QLineEdit>(dialog, "lineEditDelay")->isEnabled());
    QVERIFY(!child<QLineEdit>(dialog, "lineEditFreq")->isEnabled());
    dialog.SetDevice(nullptr);
}

void TestZetoCamConfigPulseDialog::chooses_the_mode()
{
    ZetoCamConfigPulseDialog dialog(&m_fixture->device());
    QVERIFY(child<QRadioButton>(dialog, "radioBtnContinious")->isChecked());
    QVERIFY(!child<QWidget>(dialog, "spBoxNumPulses")->isEnabled());
    child<QRadioButton>(dialog, "radioBtnSend")->click();
    QCOMPARE(m_fixture->features().text("PulseGenMode"), std::string("NumPulses"));
    QVERIFY(child<QWidget>(dialog, "spBoxNumPulses")->isEnabled());
}

void TestZetoCamConfigPulseDialog::starts_and_stops()
{
    ZetoCamConfigPulseDialog dialog(&m_fixture->device());
    auto* const button = child<QPushButton>(dialog, "pushBtnPulseEnable");
    const QKeySequence shortcut(QStringLiteral("Ctrl+Shift+S, Ctrl+Shift+S"));
    QCOMPARE(shownState(dialog), QStringLiteral("red Start"));
    button->click();
    QCOMPARE(shownState(dialog), QStringLiteral("green Stop"));
    QCOMPARE(button->shortcut(), shortcut);
    QCOMPARE(m_fixture->features().integer("PulseGenEnable"), int64_t(1));
    button->click();
    QCOMPARE(shownState(dialog), QStringLiteral("red Start"));
    QCOMPARE(button->shortcut(), shortcut);

    GenApi::CBooleanPtr(m_fixture->features().GetNode("PulseGenEnable"))->SetValue(true);
    QCOMPARE(shownState(dialog), QStringLiteral("green Stop"));
    DialogFixture other;
    dialog.SetDevice(&other.device());
    QCOMPARE(shownState(dialog), QStringLiteral("red Start"));
    button->click();
    DialogFixture plain("sim.u3v0.plain"); // has no generator
    dialog.SetDevice(&plain.device());
    QCOMPARE(shownState(dialog), QStringLiteral("red Start"));
    QCOMPARE(text(dialog, "lineEditFreq"), QStringLiteral("0.000000"));
    dialog.SetDevice(nullptr);
}

void TestZetoCamConfigPulseDialog::stays_red_when_the_camera_refuses()
{
    MessageBoxes boxes;
    ZetoCamConfigPulseDialog dialog(&m_fixture->device());
    m_fixture->refuseNextWrite(ZetoCam::ErrorInvalidState);
    child<QPushButton>(dialog, "pushBtnPulseEnable")->click();
    QCOMPARE(boxes.take().size(), 1);
    QCOMPARE(shownState(dialog), QStringLiteral("red Start"));
    QCOMPARE(m_fixture->takeWrites(), QStringList(QStringLiteral("PulseGenEnable=1")));
}

void TestZetoCamConfigPulseDialog::has_a_square_lamp()
{
    ZetoCamConfigPulseDialog dialog(&m_fixture->device());
    dialog.show();
    const QSize lamp = child<QLabel>(dialog, "lblPulseEnable")->size();
    QCOMPARE(lamp.width(), lamp.height());
    QCOMPARE(lamp.height(), child<QPushButton>(dialog, "pushBtnPulseEnable")->height());
}

ZETO_TEST_MAIN(TestZetoCamConfigPulseDialog)

#include "tst_zetocamconfigpulsedialog.moc"
