#include "qtzetospinboxval64.h"
#include "testmain.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QProxyStyle>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

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

Qt::Key keyNamed(const QString& name)
{
    return Qt::Key(QKeySequence::fromString(name)[0]);
}

/// A window with a spin box and another field, and the hands of a person at it.
class Desk : public QWidget
{
public:
    explicit Desk(const QString& settings)
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&spinBox);
        layout->addWidget(&elsewhere);
        for (const QString& setting : settings.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            set(setting.section(QLatin1Char('='), 0, 0), setting.section(QLatin1Char('='), 1));
        show();
        activateWindow();
        elsewhere.setFocus();
        QObject::connect(&spinBox, qOverload<qint64>(&QtZetoSpinBoxVal64::valueChanged),
                         [this](qint64 value) { log << QString::number(value); });
        QObject::connect(&spinBox, qOverload<const QString&>(&QtZetoSpinBoxVal64::valueChanged),
                         [this](const QString& text) { log << QLatin1Char('"') + text + QLatin1Char('"'); });
    }

    QLineEdit* edit() const { return spinBox.findChild<QLineEdit*>(); }

    void set(const QString& name, const QString& value)
    {
        const bool on = value != QLatin1String("off");
        if (name == QLatin1String("tracking"))
            spinBox.setKeyboardTracking(on);
        else if (name == QLatin1String("wrapping"))
            spinBox.setWrapping(on);
        else if (name == QLatin1String("groups"))
            spinBox.setGroupSeparatorShown(on);
        else if (name == QLatin1String("snap"))
            spinBox.setSnapToStep(on);
        else if (name == QLatin1String("select"))
            spinBox.setSelectOnFocus(on);
        else if (name == QLatin1String("discard"))
            spinBox.setDiscardUnconfirmedEdit(on);
        else if (name == QLatin1String("trackHeld"))
            spinBox.setTrackWhileHeld(on);
        else if (name == QLatin1String("locale"))
            spinBox.setLocale(QLocale(value));
        else
            QVERIFY2(spinBox.setProperty(qPrintable(name), value), qPrintable(name));
    }

    /// Does \a actions one after the other: 'text is typed, +Key and -Key press and release a key, *Key
    /// repeats it, Key alone clicks it; paste:text, wheel:steps, up and down (the arrow buttons), elsewhere,
    /// otherWindow, value:number; ? notes the selected text.
    void act(const QString& actions)
    {
        for (const QString& action : actions.split(QLatin1Char(' ')))
            actOnce(action.section(QLatin1Char(':'), 0, 0), action.section(QLatin1Char(':'), 1));
    }

    void pressArrow(QStyle::SubControl arrow, QEvent::Type type)
    {
        QStyleOptionSpinBox option;
        option.initFrom(&spinBox);
        option.subControls = QStyle::SC_All;
        const QPoint at =
            spinBox.style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, &spinBox).center();
        if (type == QEvent::MouseButtonPress)
            QTest::mousePress(&spinBox, Qt::LeftButton, {}, at);
        else
            QTest::mouseRelease(&spinBox, Qt::LeftButton, {}, at);
    }

    QString result() const { return (log + QStringList{QLatin1Char('|') + edit()->text()}).join(' '); }

    QtZetoSpinBoxVal64 spinBox;
    QLineEdit elsewhere;
    QStringList log;

private:
    void actOnce(const QString& action, const QString& argument)
    {
        const QChar first = action.at(0);
        if (first == QLatin1Char('\''))
            QTest::keyClicks(&spinBox, action.mid(1));
        else if (action == QLatin1String("?"))
            log << QLatin1Char('[') + edit()->selectedText() + QLatin1Char(']');
        else if (action == QLatin1String("value"))
            spinBox.setValue(argument.toLongLong());
        else if (action == QLatin1String("paste"))
            paste(argument);
        else if (action == QLatin1String("wheel"))
            wheel(argument.toInt());
        else if (action == QLatin1String("up") || action == QLatin1String("down"))
            clickArrow(action == QLatin1String("up") ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown);
        else if (action == QLatin1String("elsewhere"))
            QTest::mouseClick(&elsewhere, Qt::LeftButton);
        else if (action == QLatin1String("otherWindow"))
            lookAway();
        else if (action.size() > 1 && QStringLiteral("+*-").contains(first))
            sendKey(keyNamed(action.mid(1)), first == QLatin1Char('-'), first == QLatin1Char('*'));
        else
            QTest::keySequence(QApplication::focusWidget(), QKeySequence::fromString(action));
    }

    void sendKey(Qt::Key key, bool release, bool repeated)
    {
        QKeyEvent event(release ? QEvent::KeyRelease : QEvent::KeyPress, key, {}, QString(), repeated);
        QApplication::sendEvent(&spinBox, &event);
    }

    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&spinBox, QKeySequence::Paste);
    }

    void wheel(int steps)
    {
        const QPointF at = spinBox.rect().center();
        QWheelEvent event(at, spinBox.mapToGlobal(at.toPoint()), {}, {0, 120 * steps}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&spinBox, &event);
    }

    void clickArrow(QStyle::SubControl arrow)
    {
        pressArrow(arrow, QEvent::MouseButtonPress);
        pressArrow(arrow, QEvent::MouseButtonRelease);
    }

    void lookAway()
    {
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    }
};

} // namespace

class TestQtZetoSpinBoxVal64 : public QObject
{
    Q_OBJECT

private slots:
    void startsAsDocumented();
    void publishesItsMetaObject();
    void followsThePerson_data();
    void followsThePerson();
    void repeatsHeldArrows_data();
    void repeatsHeldArrows();
    void movesBoundsInOrder();
    void readsWhatItWrites();
    void writesEveryBase_data();
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

void TestQtZetoSpinBoxVal64::publishesItsMetaObject()
{
    const QMetaObject& meta = QtZetoSpinBoxVal64::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names << QString::fromLatin1(meta.method(i).methodSignature());
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names << QString::fromLatin1(meta.property(i).name());
    for (const char* info : {"author", "version", "date"})
        names << QString::fromLatin1(meta.classInfo(meta.indexOfClassInfo(info)).value());
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral(
                 "valueChanged(qlonglong) valueChanged(QString) setValue(qlonglong) selectAll() clear() "
                 "suffix prefix cleanText minimum maximum singleStep value displayIntegerBase "
                 "Zeto 1.0.0 03/29/2018"));
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
    row("same value is no change", "value=7", "value:7", "|7");
    row("typing is tracked", "", "Tab '42 elsewhere", "4 \"4\" 42 \"42\" |42");
    row("tracked text out of range is replaced", "minimum=10 value=10", "Tab '5 '0", "|10");
    row("tracked emptying is replaced", "value=7", "Tab Backspace", "|7");
    row("typing in the middle goes on there", "maximum=9999 value=14 select=off", "Tab Home Right '2 '3",
        "124 \"124\" 1234 \"1234\" |1234");
    row("unconfirmed text is discarded on leaving", "tracking=off value=7", "Tab '42 elsewhere", "|7");
    row("unconfirmed text is discarded by Tab", "tracking=off value=7", "Tab '42 Shift+Tab", "|7");
    row("unconfirmed text is discarded by the window", "tracking=off value=7", "Tab '42 otherWindow", "|7");
    row("unconfirmed text is discarded by an arrow", "tracking=off value=7", "Tab '42 Up", "8 \"8\" |8");
    row("unconfirmed text is discarded by the wheel", "tracking=off value=7", "Tab '42 wheel:1",
        "8 \"8\" |8");
    row("Return confirms", "tracking=off value=7", "Tab '42 Return elsewhere", "42 \"42\" |42");
    row("Enter confirms", "tracking=off", "Tab '42 Enter ?", "42 \"42\" [42] |42");
    row("Return restores what is no value", "tracking=off minimum=10 value=20", "Tab '5 Return", "|20");
    row("kept text is committed on leaving", "tracking=off discard=off", "Tab '42 elsewhere",
        "42 \"42\" |42");
    row("kept text is committed by Tab", "tracking=off discard=off", "Tab '42 Shift+Tab", "42 \"42\" |42");
    row("kept text is committed by the window", "tracking=off discard=off", "Tab '42 otherWindow",
        "42 \"42\" |42");
    row("kept text is committed before a step", "tracking=off discard=off", "Tab '42 up",
        "42 \"42\" 43 \"43\" |43");
    row("kept text is committed before the wheel", "tracking=off discard=off", "Tab '42 wheel:-1",
        "42 \"42\" 41 \"41\" |41");
    row("letters and too large numbers are refused", "tracking=off", "Tab 'a1b2c3 Return", "12 \"12\" |12");
    row("pasted number", "maximum=9999", "Tab paste:1234", "1234 \"1234\" |1234");
    row("pasted nonsense", "value=7", "Tab paste:12x", "|7");
    row("pasted beyond the range", "value=7", "Tab paste:99999999999999999999", "|7");
    row("the lowest value", "tracking=off minimum=-9223372036854775808", "Tab '-9223372036854775808 Return",
        "-9223372036854775808 \"-9223372036854775808\" |-9223372036854775808");
    row("the highest value", "tracking=off maximum=9223372036854775807", "Tab '9223372036854775807 Return Up",
        "9223372036854775807 \"9223372036854775807\" |9223372036854775807");
    row("step refused at the end", "singleStep=10 value=95", "Tab Up up wheel:1", "|95");
    row("step wraps to the other end", "wrapping=on singleStep=10 value=95", "Tab Up Down",
        "0 \"0\" 99 \"99\" |99");
    row("steps select the number", "prefix=x= suffix=mm", "Tab Up ?", "1 \"x=1mm\" [1] |x=1mm");
    row("page keys take ten steps", "", "Tab PgUp PgDown", "10 \"10\" 0 \"0\" |0");
    row("step overflow is refused",
        "maximum=9223372036854775807 value=9223372036854775800 singleStep=9223372036854775807",
        "Tab PgUp Up PgDown Down", "|9223372036854775800");
    row("step 0 does no harm", "snap=on singleStep=0 value=7", "Tab Up '5", "5 \"5\" |5");
    row("snapping down", "snap=on singleStep=4", "value:5", "4 \"4\" |4");
    row("snapping up from the middle", "snap=on singleStep=4", "value:6 value:7", "8 \"8\" |8");
    row("the maximum is kept off the grid", "snap=on singleStep=10", "value:99 value:97", "99 \"99\" |99");
    row("held key emits at the end", "trackHeld=off", "Tab +Up *Up ? -Up", "[3] 3 \"3\" |3");
    row("held key steps beyond the range and back", "trackHeld=off singleStep=10 value=95", "Tab +Up ? -Up ?",
        "[105] [95] |95");
    row("held wheel steps add up", "trackHeld=off", "Tab +Up wheel:1 wheel:1 -Up", "3 \"3\" |3");
    row("leaving ends a hold", "trackHeld=off", "Tab +Up elsewhere value:5", "1 \"1\" 5 \"5\" |5");
    row("prefix and suffix cannot be selected", "prefix=x= suffix=mm value=7", "value:42 Tab ? Ctrl+A ? '5",
        "42 \"x=42mm\" [42] [42] 5 \"x=5mm\" |x=5mm");
    row("the cursor stays in the number", "prefix=x= suffix=mm maximum=999 select=off",
        "value:42 Tab Left Home '1 End Right Backspace",
        "42 \"x=42mm\" 142 \"x=142mm\" 14 \"x=14mm\" |x=14mm");
    row("a prefix not shown yet", "prefix=abcdef", "Tab Home End ? '5", "[] |abcdef0");
    row("clearing the field keeps the prefix", "prefix=x= tracking=off",
        "value:42 Tab Backspace Backspace '7 Return", "42 \"x=42\" 7 \"x=7\" |x=7");
    row("base 16", "displayIntegerBase=16 minimum=-255 maximum=255", "value:-255 Tab 'Fe Return",
        "-255 \"-ff\" 15 \"f\" 254 \"fe\" |fe");
    row("base 36", "displayIntegerBase=36 maximum=1295", "Tab 'zz", "35 \"z\" 1295 \"zz\" |zz");
    row("no group separators unless asked for", "locale=en_US maximum=99999", "value:1234",
        "1234 \"1234\" |1234");
    row("group separators", "locale=en_US groups=on maximum=99999", "value:1234 Tab End '5",
        "1234 \"1,234\" 12345 \"12,345\" |12,345");
    row("other group separators", "locale=de_DE groups=on maximum=99999", "value:1234 Tab '12345",
        "1234 \"1.234\" 1 \"1\" 12 \"12\" 123 \"123\" 1234 \"1.234\" 12345 \"12.345\" |12.345");
    row("other minus sign", "locale=sv_SE minimum=-99", "value:-4 Tab End '2",
        "-4 \"\u2212"
        "4\" -42 \"\u2212"
        "42\" |\u2212"
        "42");
    row("other digits", "locale=ar_EG", "Tab '4 paste:\u0665",
        "4 \"\u0664\" 45 \"\u0664\u0665\" |\u0664\u0665");
}

void TestQtZetoSpinBoxVal64::followsThePerson()
{
    QFETCH(const QString, settings);
    QFETCH(const QString, actions);
    Desk desk(settings);
    QVERIFY(QTest::qWaitForWindowActive(&desk));
    desk.act(actions);
    QTEST(desk.result(), "result");
}

void TestQtZetoSpinBoxVal64::repeatsHeldArrows_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<bool>("tracked");
    QTest::newRow("button, tracked") << false << true;
    QTest::newRow("button, at the end") << false << false;
    QTest::newRow("key, tracked") << true << true;
    QTest::newRow("key, at the end") << true << false;
}

void TestQtZetoSpinBoxVal64::repeatsHeldArrows()
{
    QFETCH(const bool, byKey);
    QFETCH(const bool, tracked);
    HastyStyle style;
    Desk desk(QStringLiteral("maximum=999999"));
    desk.spinBox.setStyle(&style);
    QVERIFY(QTest::qWaitForWindowActive(&desk));
    if (!tracked)
        desk.spinBox.setTrackWhileHeld(false);

    desk.act(QStringLiteral("Tab"));
    if (byKey)
        desk.act(QStringLiteral("+Up *Up"));
    else
        desk.pressArrow(QStyle::SC_SpinBoxUp, QEvent::MouseButtonPress);
    QTRY_VERIFY(desk.edit()->text().toInt() >= 4);
    QCOMPARE(desk.log.isEmpty(), !tracked);
    if (byKey)
        desk.act(QStringLiteral("-Up"));
    else
        desk.pressArrow(QStyle::SC_SpinBoxUp, QEvent::MouseButtonRelease);

    const QString last = desk.edit()->text();
    QCOMPARE(desk.spinBox.value(), last.toLongLong());
    QCOMPARE(desk.log.size(), tracked ? 2 * last.toInt() : 2);
    QCOMPARE(desk.log.last(), QLatin1Char('"') + last + QLatin1Char('"'));
    QTest::qWait(20);
    QCOMPARE(desk.edit()->text(), last);
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

void TestQtZetoSpinBoxVal64::writesEveryBase_data()
{
    QTest::addColumn<int>("base");
    for (int base = 2; base <= 36; ++base)
        QTest::addRow("%d", base) << base;
}

void TestQtZetoSpinBoxVal64::writesEveryBase()
{
    QFETCH(const int, base);
    QtZetoSpinBoxVal64 box;
    box.setPrefix(QStringLiteral("0x"));
    box.setRange(lowest, highest);
    box.setDisplayIntegerBase(base);
    for (const qint64 value : {lowest, qint64(-255), qint64(0), qint64(255), highest}) {
        box.setValue(value);
        QCOMPARE(box.valueFromText(box.text()), value);
        QCOMPARE(box.cleanText(), QString::number(value));
    }
    QCOMPARE(box.valueFromText(QStringLiteral("0x!")), lowest);
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
