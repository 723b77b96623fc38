#include "qtzetospinboxval64.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QAccessible>
#include <QLineEdit>
#include <QProxyStyle>
#include <QVBoxLayout>
#include <QtTest>

#include <utility>

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

/// Repeats a held arrow button every few milliseconds.
class HastyStyle : public QProxyStyle
{
public:
    HastyStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        if (hint == SH_SpinBox_ClickAutoRepeatRate || hint == SH_SpinBox_ClickAutoRepeatThreshold)
            return 5;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// A window with a spin box and another field. The log has each value told, and behind a colon its text where
/// that is not just the number.
class Desk : public QWidget
{
public:
    explicit Desk(const QString& settings)
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&spinBox);
        layout->addWidget(&other);
        spinBox.setObjectName("box");
        other.setObjectName("other");
        for (const QString& setting : settings.split(' ', Qt::SkipEmptyParts))
            set(setting.section('=', 0, 0), setting.section('=', 1));
        QVERIFY(showActive(this));
        connect(&spinBox, qOverload<qint64>(&QtZetoSpinBoxVal64::valueChanged), this,
                [this](qint64 value) { told += QString::number(value); });
        connect(&spinBox, qOverload<const QString&>(&QtZetoSpinBoxVal64::valueChanged), this,
                [this](const QString& text) {
                    const QString number = std::exchange(told, {});
                    log << (text == number ? text : number + ':' + text);
                });
    }

    void set(const QString& name, const QString& value)
    {
        const bool on = value != "off";
        if (name == "tracking")
            spinBox.setKeyboardTracking(on);
        else if (name == "snap")
            spinBox.setSnapToStep(on);
        else if (name == "select")
            spinBox.setSelectOnFocus(on);
        else if (name == "discard")
            spinBox.setDiscardUnconfirmedEdit(on);
        else if (name == "trackHeld")
            spinBox.setTrackWhileHeld(on);
        else if (name == "locale")
            spinBox.setLocale(QLocale(value));
        else
            QVERIFY2(spinBox.setProperty(qPrintable(name), value), qPrintable(name));
    }

    QString text() const { return spinBox.findChild<QLineEdit*>()->text(); }
    QString result() const { return (log + QStringList{told + '|' + text()}).join(' '); }

    QtZetoSpinBoxVal64 spinBox;
    QLineEdit other;
    QString told; ///< the value, until its text is told too
    QStringList log;
};

} // namespace

class TestQtZetoSpinBoxVal64 : public QObject
{
    Q_OBJECT

private slots:
    void startsAsDocumented();
    void followsThePerson_data();
    void followsThePerson();
    void repeatsHeldArrows_data();
    void repeatsHeldArrows();
    void movesBoundsInOrder();
    void readsWhatItWrites();
    void writesEveryBase();
    void enablesSteps();
    void keepsSizeHintsUntilSomethingChanges();
    void speaksToAssistiveTools();
};

void TestQtZetoSpinBoxVal64::startsAsDocumented()
{
    QtZetoSpinBoxVal64 box;
    QCOMPARE(box.text(), QStringLiteral("0"));
    QCOMPARE(box.minimum(), 0);
    QCOMPARE(box.maximum(), 99);
    QCOMPARE(box.singleStep(), 1);
    QVERIFY(box.selectOnFocus() && !box.snapToStep() && box.discardUnconfirmedEdit() && box.trackWhileHeld());
    box.setTrackWhileHeld(true);
    QVERIFY(!box.trackWhileHeld());

    QTest::ignoreMessage(QtWarningMsg, "QtZetoSpinBoxVal64::setDisplayIntegerBase: invalid base (37)");
    box.setDisplayIntegerBase(37);
    QCOMPARE(box.displayIntegerBase(), 10);
}

void TestQtZetoSpinBoxVal64::followsThePerson_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("actions");
    QTest::addColumn<QString>("result");

    const auto row = [](const char* name, const char* settings, const char* actions, const char* result) {
        QTest::newRow(name) << settings << actions << QString::fromUtf8(result);
    };
    row("out of range is ignored", "value=7", "value:150 value:-1", "|7");
    row("typing is tracked", "", "type:42 @other", "4 42 |42");
    row("tracked text out of range is replaced", "minimum=10 value=10", "type:5 type:0", "|10");
    row("tracked emptying is replaced", "value=7", "Backspace", "|7");
    row("typing in the middle goes on there", "maximum=9999 value=14 select=off", "Home Right type:2 type:3",
        "124 1234 |1234");
    row("unconfirmed text is discarded on leaving", "tracking=off value=7", "type:42 @other", "|7");
    row("unconfirmed text is discarded by the window", "tracking=off value=7", "type:42 otherWindow", "|7");
    row("unconfirmed text is discarded by an arrow", "tracking=off value=7", "type:42 Up", "8 |8");
    row("unconfirmed text is discarded by the wheel", "tracking=off value=7", "type:42 wheel+", "8 |8");
    row("Return confirms", "tracking=off value=7", "type:42 Return @other", "42 |42");
    row("Enter confirms and selects", "tracking=off", "type:42 Enter type:7 Enter", "42 7 |7");
    row("kept text is committed on leaving", "tracking=off discard=off", "type:42 @other", "42 |42");
    row("kept text is committed by the window", "tracking=off discard=off", "type:42 otherWindow", "42 |42");
    row("kept text is committed before a step", "tracking=off discard=off", "type:42 press release",
        "42 43 |43");
    row("kept text is committed before the wheel", "tracking=off discard=off", "type:42 wheel-", "42 41 |41");
    row("letters and too large numbers are refused", "tracking=off", "type:a1b2c3 Return", "12 |12");
    row("pasted nonsense", "value=7", "paste:12x", "|7");
    row("pasted beyond the range", "value=7", "paste:99999999999999999999", "|7");
    row("the lowest value", "tracking=off minimum=-9223372036854775808", "type:-9223372036854775808 Return",
        "-9223372036854775808 |-9223372036854775808");
    row("the highest value", "tracking=off maximum=9223372036854775807", "type:9223372036854775807 Return Up",
        "9223372036854775807 |9223372036854775807");
    row("step refused at the end", "singleStep=10 value=95", "Up press release wheel+", "|95");
    row("step wraps to the other end", "wrapping=1 singleStep=10 value=95", "Up Down", "0 99 |99");
    row("steps select the number", "prefix=x= suffix=mm select=on", "Up Home Up type:5",
        "1:x=1mm 2:x=2mm 5:x=5mm |x=5mm");
    row("step overflow is refused",
        "maximum=9223372036854775807 value=9223372036854775800 singleStep=9223372036854775807",
        "PgUp Up PgDown Down", "|9223372036854775800");
    row("step 0 does no harm", "snap=on singleStep=0 value=7", "Up type:5", "5 |5");
    row("snapping down", "snap=on singleStep=4", "value:5", "4 |4");
    row("held key emits at the end", "trackHeld=off", "+Up *Up -Up", "3 |3");
    row("held key steps beyond the range", "trackHeld=off singleStep=10 value=95", "+Up", "|105");
    row("and back", "trackHeld=off singleStep=10 value=95", "+Up -Up", "|95");
    row("leaving ends a hold", "trackHeld=off", "+Up @other @box value:5", "1 5 |5");
    row("prefix and suffix cannot be selected", "prefix=x= suffix=mm value=7", "value:42 Ctrl+A type:5",
        "42:x=42mm 5:x=5mm |x=5mm");
    row("the cursor stays in the number", "prefix=x= suffix=mm maximum=999 select=off",
        "value:42 Left Left Left Home type:1 End Right Backspace", "42:x=42mm 142:x=142mm 14:x=14mm |x=14mm");
    row("a prefix not shown yet", "prefix=abcdef", "Home End type:5", "|abcdef0");
    row("clearing the field keeps the prefix", "prefix=x= tracking=off",
        "value:42 Backspace Backspace type:7 Return", "42:x=42 7:x=7 |x=7");
    row("base 16", "displayIntegerBase=16 minimum=-255 maximum=255", "value:-255 type:Fe Return",
        "-255:-ff 15:f 254:fe |fe");
    row("no group separators unless asked for", "locale=en_US maximum=99999", "value:1234", "1234 |1234");
    row("group separators", "locale=en_US showGroupSeparator=1 maximum=99999", "value:1234 End type:5",
        "1234:1,234 12345:12,345 |12,345");
    row("other minus sign", "locale=sv_SE minimum=-99", "value:-4 End type:2",
        "-4:\u2212"
        "4 -42:\u2212"
        "42 |\u2212"
        "42");
    row("other digits", "locale=ar_EG", "type:4 paste:\u0665", "4:\u0664 45:\u0664\u0665 |\u0664\u0665");
}

void TestQtZetoSpinBoxVal64::followsThePerson()
{
    QFETCH(const QString, settings);
    QFETCH(const QString, actions);
    Desk desk(settings);
    drive(&desk, "@box " + actions);
    QTEST(desk.result(), "result");
}

void TestQtZetoSpinBoxVal64::repeatsHeldArrows_data()
{
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("release");
    QTest::addColumn<bool>("tracked");
    QTest::newRow("button, tracked") << "press"
                                     << "release" << true;
    QTest::newRow("button, at the end") << "press"
                                        << "release" << false;
    QTest::newRow("key, tracked") << "+Up *Up"
                                  << "-Up" << true;
    QTest::newRow("key, at the end") << "+Up *Up"
                                     << "-Up" << false;
}

void TestQtZetoSpinBoxVal64::repeatsHeldArrows()
{
    QFETCH(const QString, press);
    QFETCH(const QString, release);
    QFETCH(const bool, tracked);
    HastyStyle style;
    Desk desk(tracked ? "maximum=999999" : "maximum=999999 trackHeld=off");
    desk.spinBox.setStyle(&style);

    drive(&desk, "@box " + press);
    QTRY_VERIFY(desk.text().toInt() >= 4);
    QCOMPARE(desk.log.isEmpty(), !tracked);
    drive(&desk, "@box " + release);
    const QString last = desk.text();
    QCOMPARE(desk.spinBox.value(), last.toLongLong());
    QCOMPARE(desk.log.size(), tracked ? last.toInt() : 1);
    QCOMPARE(desk.log.last(), last);
    QTest::qWait(20);
    QCOMPARE(desk.text(), last);
}

void TestQtZetoSpinBoxVal64::movesBoundsInOrder()
{
    Desk desk(QStringLiteral("value=50"));
    QtZetoSpinBoxVal64& box = desk.spinBox;
    const auto range = [&box] { return QStringLiteral("%1..%2").arg(box.minimum()).arg(box.maximum()); };
    box.setMinimum(200);
    QCOMPARE(range(), QStringLiteral("200..200"));
    box.setMaximum(-5);
    QCOMPARE(range(), QStringLiteral("-5..-5"));
    box.setRange(30, 20);
    QCOMPARE(range(), QStringLiteral("30..30"));
    QString text = QStringLiteral("30");
    int position = 0;
    QCOMPARE(box.validate(text, position), QValidator::Invalid);
    QCOMPARE(desk.result(), QStringLiteral("|50"));
}

void TestQtZetoSpinBoxVal64::readsWhatItWrites()
{
    QtZetoSpinBoxVal64 box;
    box.setRange(lowest, highest);
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale& locale : locales) {
        box.setLocale(locale);
        for (const bool groups : {false, true}) {
            box.setGroupSeparatorShown(groups);
            for (const qint64 value : {lowest, qint64(-1234567), qint64(-1), qint64(999), highest})
                QVERIFY2(box.valueFromText(box.textFromValue(value)) == value, qPrintable(locale.name()));
        }
    }
}

void TestQtZetoSpinBoxVal64::writesEveryBase()
{
    QtZetoSpinBoxVal64 box;
    box.setPrefix("0x");
    box.setRange(lowest, highest);
    for (int base = 2; base <= 36; ++base) {
        box.setDisplayIntegerBase(base);
        for (const qint64 value : {lowest, qint64(-255), qint64(0), qint64(255), highest}) {
            box.setValue(value);
            QVERIFY2(box.valueFromText(box.text()) == value, qPrintable(box.text()));
            QCOMPARE(box.cleanText(), QString::number(value));
        }
    }
    QCOMPARE(box.valueFromText("0x!"), lowest);
}

void TestQtZetoSpinBoxVal64::enablesSteps()
{
    class Opened : public QtZetoSpinBoxVal64
    {
    public:
        using QtZetoSpinBoxVal64::stepEnabled;
    };
    Opened box;
    QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepUpEnabled);
    box.setValue(99);
    QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepDownEnabled);
    box.setWrapping(true);
    QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled);
    box.setReadOnly(true);
    QCOMPARE(box.stepEnabled(), QAbstractSpinBox::StepNone);
}

void TestQtZetoSpinBoxVal64::keepsSizeHintsUntilSomethingChanges()
{
    QtZetoSpinBoxVal64 box;
    const QSize first = box.sizeHint();
    const QSize least = box.minimumSizeHint();
    box.setSuffix(QStringLiteral(" micrometres"));
    QCOMPARE(box.sizeHint(), first);
    box.setRange(lowest, highest);
    QVERIFY(box.sizeHint().width() > box.minimumSizeHint().width());
    QVERIFY(box.minimumSizeHint().width() > least.width());
    const QSize wide = box.sizeHint();
    QFont font = box.font();
    font.setPointSizeF(2 * font.pointSizeF());
    box.setFont(font);
    QVERIFY(box.sizeHint().width() > wide.width() && box.sizeHint().height() > wide.height());
}

void TestQtZetoSpinBoxVal64::speaksToAssistiveTools()
{
    QtZetoSpinBoxVal64 box;
    box.setAccessibleName(QStringLiteral("Width"));
    box.setRange(lowest, highest);
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(face && face->valueInterface());
    QCOMPARE(face->role(), QAccessible::SpinBox);
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Width"));
    face->valueInterface()->setCurrentValue(highest);
    QCOMPARE(box.value(), highest);
    QCOMPARE(face->valueInterface()->currentValue().toLongLong(), highest);
    QCOMPARE(face->valueInterface()->minimumValue().toLongLong(), lowest);
}

ZETO_TEST_MAIN(TestQtZetoSpinBoxVal64)
#include "tst_qtzetospinboxval64.moc"
