#include "qtzetodoubleslider.h"
#include "qtzetoslider.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QAccessible>
#include <QLabel>
#include <QSlider>
#include <QtTest>

namespace {

/// \a words: mode, maximum, step, snap and value.
void setUp(QtZetoSlider& slider, const QString& words)
{
    const QStringList list = words.split(QLatin1Char(' '));
    slider.setScaleMode(list[0].toInt());
    slider.setRange(0, list[1].toInt());
    slider.setSingleStep(list[2].toInt());
    slider.setSnapToStep(list[3] == QLatin1String("1"));
    slider.setValue(list[4].toInt());
}

/// Plays the row's script to \a slider. \return its signals.
template <typename Slider>
QString played(Slider& slider)
{
    QFETCH(const QString, script);
    slider.resize(600, 50);
    if (!showActive(&slider))
        return "no active window";
    SignalLog log;
    log.watch(&slider, &Slider::valueChanged, "value");
    log.watch(&slider, &Slider::sliderPressed, "pressed");
    log.watch(&slider, &Slider::sliderMoved, "moved");
    log.watch(&slider, &Slider::sliderReleased, "released");
    drive(&slider, "@slider " + script);
    return log.take();
}

} // namespace

class TestQtZetoSliders : public QObject
{
    Q_OBJECT

private slots:
    void tellsEachChangeOnce();
    void keepsWhatWasSet();
    void followsTheUser_data();
    void followsTheUser();
    void doublesFollowTheUser_data();
    void doublesFollowTheUser();
    void hidingEndsDragging();
    void readsItsValueOut();
    void laysOutItsLabels();
};

void TestQtZetoSliders::tellsEachChangeOnce()
{
    QtZetoSlider slider;
    SignalLog log;
    log.watch(&slider, &QtZetoSlider::rangeChanged, "range");
    log.watch(&slider, &QtZetoSlider::valueChanged, "value");

    slider.setRange(0, 990);
    QCOMPARE(log.take(), QStringLiteral("range 0 990"));
    slider.setRange(0, 990);
    slider.setMaximum(990);
    slider.setScaleMode(QtZetoSlider::Logarithmic);
    QCOMPARE(log.take(), QString());
    slider.setValue(500);
    slider.setValue(500);
    QCOMPARE(log.take(), QStringLiteral("value 500"));
    slider.setRange(10, 100);
    QCOMPARE(log.take(), QStringLiteral("range 10 100, value 100"));
    slider.setMinimum(200);
    QCOMPARE(log.take(), QStringLiteral("range 200 200, value 200"));
    slider.setRange(5, -5);
    QCOMPARE(log.take(), QStringLiteral("range 5 5, value 5"));
}

void TestQtZetoSliders::keepsWhatWasSet()
{
    const auto set = [](const char* words) { // the value and its position
        QtZetoSlider slider;
        setUp(slider, words);
        return QStringLiteral("%1@%2").arg(slider.value()).arg(slider.slider()->value());
    };
    QCOMPARE(set("0 2000 10 0 5000"), QStringLiteral("2000@2000"));
    QCOMPARE(set("0 2000 10 1 37"), QStringLiteral("37@40"));
    QCOMPARE(set("1 2000 10 0 1000"), QStringLiteral("1000@300"));
    QCOMPARE(set("1 2000 10 0 1999"), QStringLiteral("1999@330"));
    QCOMPARE(set("2 2000 10 0 1000"), QStringLiteral("1000@32"));
}

void TestQtZetoSliders::followsTheUser_data()
{
    // setup as of setUp()
    addScripts({
        {"linear keys", "0 100 5 0 50", "Right Up Left Down Home End End",
         "value 55, value 60, value 55, value 50, value 0, value 100"},
        {"pages", "0 1000 5 0 500", "PgUp PgDown", "value 600, value 500"},
        {"logarithmic keys move at the dense end", "1 990 1 0 0", "Right Right Up Left",
         "value 1, value 2, value 3, value 2"},
        {"logarithmic keys reach the end", "1 1000 1 0 995", "Right Right Right", "value 1000"},
        {"root keys keep the grid", "2 42 10 1 42", "Left Left Right", "value 40, value 30, value 40"},
        {"a key finds the grid", "1 1000 10 1 7", "Right Right Left", "value 10, value 20, value 10"},
        {"a key leaves an end off the grid", "0 96 10 1 94", "Right Left", "value 96, value 90"},
        {"logarithmic wheel", "1 990 1 0 0", "wheel+ wheel+", "value 1"},
        {"step 0", "0 100 0 0 50", "Right", "value 51"},
        {"drag", "0 100 1 0 50", "press drag:60 drag:20 release",
         "pressed, moved 60, value 60, moved 20, value 20, released"},
        {"drag over a grid", "0 100 25 1 50", "press drag:60 drag:64 drag:70 release",
         "pressed, moved 60, moved 64, value 75, moved 70, released"},
        {"whole range", "0 2147483647 2147483647 0 1", "Right Left Left", "value 2147483647, value 0"},
    });
}

void TestQtZetoSliders::followsTheUser()
{
    QFETCH(const QString, setup);
    QtZetoSlider slider(Qt::Horizontal);
    setUp(slider, setup);
    QTEST(played(slider), "expected");
}

void TestQtZetoSliders::doublesFollowTheUser_data()
{
    // setup: value in [0, 4.2] with step 0.5
    addScripts({
        {"keys", "1.0", "Right Right Left", "value 1.5, value 2, value 1.5"},
        {"from between two steps", "1.1", "Right", "value 1.5"},
        {"the end beside the last step", "4.0", "Right Right Left", "value 4.2, value 4"},
        {"the start from beside it", "0.1", "Left Left", "value 0"},
        {"drag", "1.0", "press drag:4 drag:4 release", "pressed, moved 4, value 2, released"},
    });
}

void TestQtZetoSliders::doublesFollowTheUser()
{
    QFETCH(const QString, setup);
    QtZetoDoubleSlider slider(Qt::Horizontal);
    slider.setSingleStep(0.5);
    slider.setRange(0.0, 4.2);
    slider.setRange(-std::numeric_limits<double>::infinity(), qQNaN());
    slider.setValue(setup.toDouble());
    slider.setValue(qQNaN());
    QTEST(played(slider), "expected");
}

void TestQtZetoSliders::hidingEndsDragging()
{
    QtZetoSlider slider(Qt::Horizontal);
    slider.setRange(0, 100);
    slider.resize(600, 50);
    QVERIFY(showActive(&slider));
    SignalLog log;
    log.watch(&slider, &QtZetoSlider::sliderReleased, "released");
    log.watch(&slider, &QtZetoSlider::focusOut, "focusOut");
    drive(&slider, QStringLiteral("@slider press drag:20"));
    QVERIFY(slider.isSliderDown());
    slider.hide();
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(log.take(), QStringLiteral("focusOut, released"));
}

void TestQtZetoSliders::readsItsValueOut()
{
    QtZetoSlider slider;
    slider.setRange(0, 990);
    slider.setScaleMode(QtZetoSlider::Logarithmic);
    slider.setValue(90);
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(slider.slider());
    QCOMPARE(accessible->role(), QAccessible::Slider);
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("90"));
    QCOMPARE(accessible->valueInterface()->maximumValue().toInt(), 990);
    accessible->valueInterface()->setCurrentValue(77.0);
    QCOMPARE(slider.value(), 77);
    accessible->valueInterface()->setCurrentValue(3e9);
    QCOMPARE(slider.value(), 990);
}

void TestQtZetoSliders::laysOutItsLabels()
{
    QtZetoSlider slider;
    slider.setRange(-7, 1000000);
    const auto* const low = slider.findChild<QLabel*>(QStringLiteral("labelMin"));
    const auto* const high = slider.findChild<QLabel*>(QStringLiteral("labelMax"));
    QCOMPARE(low->text() + QLatin1Char(' ') + high->text(), QStringLiteral("-7 1000000"));

    QVERIFY(showActive(&slider));
    QVERIFY(high->y() < slider.slider()->y() && slider.slider()->y() < low->y());
    slider.setOrientation(Qt::Horizontal);
    slider.resize(slider.sizeHint());
    QVERIFY(QTest::qWaitFor([&] { return low->y() == high->y() && low->y() > slider.slider()->y(); }));
    QCOMPARE(low->x(), 0);
    QCOMPARE(high->geometry().right(), slider.width() - 1);
    slider.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(QTest::qWaitFor([&] { return high->x() == 0 && low->x() > 0; }));
    drive(&slider, QStringLiteral("@slider Left"));
    QCOMPARE(slider.value(), 1);

    QtZetoDoubleSlider gain;
    gain.setDecimals(1);
    gain.setRange(0.3, 1e300);
    QCOMPARE(gain.findChild<QLabel*>(QStringLiteral("labelMin"))->text(), QStringLiteral("0.3"));
    QCOMPARE(gain.findChild<QLabel*>(QStringLiteral("labelMax"))->text(), QStringLiteral("1e+300"));
}

ZETO_TEST_MAIN(TestQtZetoSliders)
#include "tst_qtzetosliders.moc"
