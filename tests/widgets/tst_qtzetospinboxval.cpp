#include "qtzetodoublespinboxval.h"
#include "qtzetospinboxval.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QtTest>

#include <limits>

namespace {

/// Plays the row's script to a box that \a setUp prepared, with all its text selected. \return its signals
/// and at last its text. Setup: s: snaps, e: Enter only, t: no keyboard tracking, w: wraps, g: German.
template <typename Box, typename Value, typename SetUp>
QString played(SetUp setUp)
{
    QFETCH(const QString, setup);
    QFETCH(const QString, script);
    QWidget window;
    Box box(&window);
    setUp(box);
    box.setSnapToStep(setup.contains('s'));
    box.setAcceptWhileTyping(!setup.contains('e'));
    box.setKeyboardTracking(!setup.contains('t'));
    box.setWrapping(setup.contains('w'));
    if (setup.contains('g'))
        box.setLocale(QLocale::German);
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    if (!showActive(&window))
        return "no active window";
    box.setFocus();
    box.selectAll();

    SignalLog log;
    log.watch(&box, qOverload<Value>(&Box::valueChanged), "value");
    drive(&box, script);
    log.add("text " + box.text());
    return log.take();
}

} // namespace

class TestQtZetoSpinBoxVal : public QObject
{
    Q_OBJECT

private slots:
    void integers_data();
    void integers();
    void doubles_data();
    void doubles();
    void holdsForAnyRange();
    void sameValueLeavesTypedTextAlone();
};

void TestQtZetoSpinBoxVal::integers_data()
{
    // 10 in [0, 99], step 4
    addScripts({
        {"steps on the grid", "s", "Up Up Down", "value 16, value 20, value 16, text 16"},
        {"steps to the ends", "s", "PgUp PgUp PgUp PgDown",
         "value 52, value 92, value 99, value 60, text 60"},
        {"wraps around the range", "sw", "PgDown Up Up", "value 99, value 0, value 4, text 4"},
        {"wheel", "s", "wheel+", "value 16, text 16"},
        {"typing", "", "type:42", "value 4, value 42, text 42"},
        {"Enter on the keypad snaps", "es", "type:42 Enter", "value 44, text 44"},
        {"Enter on the same value", "e", "type:10 Return", "text 10"},
        {"Enter without a number", "e", "Backspace Return", "text 10"},
        {"leaving the field gives up the text", "e", "type:42 Tab", "text 10"},
        {"also a repairable one", "e", "type:4,2 Tab", "text 10"},
        {"a step gives up the text", "e", "type:42 Up", "value 14, text 14"},
        {"a step without effect, too", "e", "End type:42 Down PgDown PgDown", "value 6, value 0, text 0"},
        {"a step counts from text not told yet", "t", "type:42 Up", "value 46, text 46"},
        {"out of range cannot be typed", "e", "type:999 Return", "value 99, text 99"},
    });
}

void TestQtZetoSpinBoxVal::integers()
{
    const auto setUp = [](QtZetoSpinBoxVal& box) {
        box.setSingleStep(4);
        box.setValue(10);
    };
    QTEST((played<QtZetoSpinBoxVal, int>(setUp)), "expected");
}

void TestQtZetoSpinBoxVal::doubles_data()
{
    // 1.1, step 0.25
    addScripts({
        {"steps on the grid", "s", "Up Up", "value 1.25, value 1.5, text 1.50"},
        {"typing", "s", "type:2.5", "value 2, value 2.5, text 2.5"},
        {"Enter snaps", "se", "type:2.4 Return", "value 2.5, text 2.50"},
        {"decimal comma", "sg", "type:2,5", "value 2, value 2.5, text 2,5"},
        {"decimal comma and Enter", "sge", "type:2,4 Return", "value 2.5, text 2,50"},
        {"Enter without a number", "sge", "type:, Return", "text 1,10"},
    });
}

void TestQtZetoSpinBoxVal::doubles()
{
    const auto setUp = [](QtZetoDoubleSpinBoxVal& box) {
        box.setSingleStep(0.25);
        box.setValue(1.1);
    };
    QTEST((played<QtZetoDoubleSpinBoxVal, double>(setUp)), "expected");
}

void TestQtZetoSpinBoxVal::holdsForAnyRange()
{
    using Ints = std::numeric_limits<int>;
    for (const bool snap : {false, true}) {
        QtZetoSpinBoxVal box;
        box.setSnapToStep(snap);
        box.setRange(Ints::min(), Ints::max());
        box.setSingleStep(Ints::max());
        QStringList values;
        for (const int steps : {1, 1, 1, -3, 0}) {
            box.stepBy(steps);
            values << QString::number(box.value());
        }
        QCOMPARE(values.join(QLatin1Char(' ')),
                 QStringLiteral("2147483647 2147483647 2147483647 -2147483648 -2147483648"));
        box.setSingleStep(0);
        box.stepBy(5);
        QCOMPARE(box.value(), Ints::min());
    }
    QtZetoDoubleSpinBoxVal gain;
    constexpr double huge = std::numeric_limits<double>::max();
    gain.setRange(-huge, huge);
    gain.setSingleStep(huge);
    gain.setValue(0.0);
    gain.setValue(std::numeric_limits<double>::quiet_NaN());
    gain.setValue(std::numeric_limits<double>::infinity());
    QCOMPARE(gain.value(), 0.0);
    gain.stepBy(2);
    QCOMPARE(gain.value(), huge);
}

void TestQtZetoSpinBoxVal::sameValueLeavesTypedTextAlone()
{
    QtZetoSpinBoxVal box;
    box.setValue(10);
    box.setAcceptWhileTyping(false);
    QVERIFY(showActive(&box));
    box.selectAll();
    drive(&box, QStringLiteral("type:4"));
    box.setValue(10);
    QCOMPARE(box.text(), QStringLiteral("4"));
    box.setValue(11);
    QCOMPARE(box.text(), QStringLiteral("11"));
}

ZETO_TEST_MAIN(TestQtZetoSpinBoxVal)
#include "tst_qtzetospinboxval.moc"
