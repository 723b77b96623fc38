#include "qtzetodoublespinboxval.h"
#include "qtzetospinboxval.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QtTest>

#include <limits>

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
    QTest::addColumn<QString>("flags"); // s: snapToStep, e: Enter only, t: without keyboard tracking
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("expected"); // of a box at 10 in [0, 99] with step 4; at last the text

    QTest::newRow("steps") << ""
                           << "Up Up Down"
                           << "value 14, value 18, value 14, text 14";
    QTest::newRow("steps on the grid") << "s"
                                       << "Up Up Down"
                                       << "value 16, value 20, value 16, text 16";
    QTest::newRow("steps to the ends") << "s"
                                       << "PgUp PgUp PgUp PgDown"
                                       << "value 52, value 92, value 99, value 60, text 60";
    QTest::newRow("wheel") << "s"
                           << "wheel+"
                           << "value 16, text 16";
    QTest::newRow("typing") << ""
                            << "type:42"
                            << "value 4, value 42, text 42";
    QTest::newRow("typing is not snapped") << "s"
                                           << "type:42"
                                           << "value 4, value 42, text 42";
    QTest::newRow("typing, no number yet") << ""
                                           << "type:- Tab"
                                           << "text 10";
    QTest::newRow("typing waits for Enter") << "e"
                                            << "type:42 Return"
                                            << "value 42, text 42";
    QTest::newRow("Enter on the keypad snaps") << "es"
                                               << "type:42 Enter"
                                               << "value 44, text 44";
    QTest::newRow("Enter on the same value") << "e"
                                             << "type:10 Return"
                                             << "text 10";
    QTest::newRow("Enter without a number") << "e"
                                            << "Backspace Return"
                                            << "text 10";
    QTest::newRow("leaving the field gives up the text") << "e"
                                                         << "type:42 Tab"
                                                         << "text 10";
    QTest::newRow("also a repairable one") << "e"
                                           << "type:4,2 Tab"
                                           << "text 10";
    QTest::newRow("a step gives up the text") << "e"
                                              << "type:42 Up"
                                              << "value 14, text 14";
    QTest::newRow("a step without effect, too") << "e"
                                                << "End type:42 Down PgDown PgDown"
                                                << "value 6, value 0, text 0";
    QTest::newRow("a step counts from text not told yet") << "t"
                                                          << "type:42 Up"
                                                          << "value 46, text 46";
    QTest::newRow("out of range cannot be typed") << "e"
                                                  << "type:999 Return"
                                                  << "value 99, text 99";
}

void TestQtZetoSpinBoxVal::integers()
{
    QFETCH(const QString, flags);
    QFETCH(const QString, script);
    QWidget window;
    QtZetoSpinBoxVal box(&window);
    box.setSingleStep(4);
    box.setValue(10);
    box.setSnapToStep(flags.contains(QLatin1Char('s')));
    box.setAcceptWhileTyping(!flags.contains(QLatin1Char('e')));
    box.setKeyboardTracking(!flags.contains(QLatin1Char('t')));
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(showActive(&window));
    box.setFocus();
    box.selectAll();

    SignalLog log;
    log.watch(&box, qOverload<int>(&QSpinBox::valueChanged), "value");
    drive(&box, script);
    log.add(QStringLiteral("text ") + box.text());
    QTEST(log.take(), "expected");
}

void TestQtZetoSpinBoxVal::doubles_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<bool>("enterOnly");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("expected");

    const QLocale german(QLocale::German);
    QTest::newRow("steps on the grid") << QLocale::c() << false << "Up Up"
                                       << "value 1.25, value 1.5, text 1.50";
    QTest::newRow("typing") << QLocale::c() << false << "type:2.5"
                            << "value 2, value 2.5, text 2.5";
    QTest::newRow("Enter snaps") << QLocale::c() << true << "type:2.4 Return"
                                 << "value 2.5, text 2.50";
    QTest::newRow("decimal comma") << german << false << "type:2,5"
                                   << "value 2, value 2.5, text 2,5";
    QTest::newRow("decimal comma and Enter") << german << true << "type:2,4 Return"
                                             << "value 2.5, text 2,50";
    QTest::newRow("Enter without a number") << german << true << "type:, Return"
                                            << "text 1,10";
}

void TestQtZetoSpinBoxVal::doubles()
{
    QFETCH(const QLocale, locale);
    QFETCH(const bool, enterOnly);
    QFETCH(const QString, script);
    QtZetoDoubleSpinBoxVal box;
    box.setLocale(locale);
    box.setSingleStep(0.25);
    box.setValue(1.1);
    box.setSnapToStep(true);
    box.setAcceptWhileTyping(!enterOnly);
    QVERIFY(showActive(&box));
    box.selectAll();

    SignalLog log;
    log.watch(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), "value");
    drive(&box, script);
    log.add(QStringLiteral("text ") + box.text());
    QTEST(log.take(), "expected");
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
