#include "qtzetodoubleslider.h"
#include "qtzetoslider.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QAccessible>
#include <QLabel>
#include <QSlider>
#include <QtTest>

class TestQtZetoSliders : public QObject
{
    Q_OBJECT

private slots:
    void tellsEachChangeOnce();
    void keepsWhatWasSet_data();
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

void TestQtZetoSliders::keepsWhatWasSet_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("position");

    QTest::newRow("linear") << 0 << false << 37 << 37 << 37;
    QTest::newRow("beyond the range") << 0 << false << 5000 << 2000 << 2000;
    QTest::newRow("off the grid") << 0 << true << 37 << 37 << 40;
    QTest::newRow("between logarithmic positions") << 1 << false << 1000 << 1000 << 300;
    QTest::newRow("logarithmic, just below the end") << 1 << false << 1999 << 1999 << 330;
    QTest::newRow("between roots") << 2 << false << 1000 << 1000 << 32;
}

void TestQtZetoSliders::keepsWhatWasSet()
{
    QFETCH(const int, mode);
    QFETCH(const bool, snap);
    QFETCH(const int, set);
    QtZetoSlider slider;
    slider.setRange(0, 2000);
    slider.setSingleStep(10);
    slider.setScaleMode(mode);
    slider.setSnapToStep(snap);
    SignalLog log;
    log.watch(&slider, &QtZetoSlider::valueChanged, "value");
    slider.setValue(set);
    QTEST(slider.value(), "value");
    QTEST(slider.slider()->value(), "position");
    QCOMPARE(log.take(), QStringLiteral("value %1").arg(slider.value()));
}

void TestQtZetoSliders::followsTheUser_data()
{
    QTest::addColumn<QString>("setup"); // mode, maximum, step, snap, value
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("expected");

    QTest::newRow("linear keys") << "0 100 5 0 50"
                                 << "Right Up Left Down Home End End"
                                 << "value 55, value 60, value 55, value 50, value 0, value 100";
    QTest::newRow("pages") << "0 1000 5 0 500"
                           << "PgUp PgDown"
                           << "value 600, value 500";
    QTest::newRow("logarithmic keys move at the dense end") << "1 990 1 0 0"
                                                            << "Right Right Up Left"
                                                            << "value 1, value 2, value 3, value 2";
    QTest::newRow("logarithmic keys reach the end") << "1 1000 1 0 995"
                                                    << "Right Right Right"
                                                    << "value 1000";
    QTest::newRow("logarithmic End from beside it") << "1 990 1 0 989"
                                                    << "End"
                                                    << "value 990";
    QTest::newRow("root keys keep the grid") << "2 100 20 1 0"
                                             << "Right Right Left"
                                             << "value 20, value 40, value 20";
    QTest::newRow("a key leaves an end off the grid") << "0 96 10 1 94"
                                                      << "Right Left"
                                                      << "value 96, value 90";
    QTest::newRow("wheel") << "0 100 1 0 50"
                           << "wheel+ wheel-"
                           << "value 53, value 50";
    QTest::newRow("logarithmic wheel") << "1 990 1 0 0"
                                       << "wheel+ wheel+"
                                       << "value 1";
    QTest::newRow("step 0") << "0 100 0 0 50"
                            << "Right"
                            << "value 51";
    QTest::newRow("negative step") << "1 990 -7 1 0"
                                   << "Right"
                                   << "value 1";
    QTest::newRow("drag") << "0 100 1 0 50"
                          << "press drag:60 drag:20 release"
                          << "pressed, moved 60, value 60, moved 20, value 20, released";
    QTest::newRow("drag over a grid") << "0 100 25 1 50"
                                      << "press drag:60 drag:64 drag:70 release"
                                      << "pressed, moved 60, moved 64, value 75, moved 70, released";
    QTest::newRow("whole range") << "0 2147483647 2147483647 0 1"
                                 << "Right Left Left"
                                 << "value 2147483647, value 0";
}

void TestQtZetoSliders::followsTheUser()
{
    QFETCH(const QString, setup);
    QFETCH(const QString, script);
    const QStringList words = setup.split(QLatin1Char(' '));
    QtZetoSlider slider(Qt::Horizontal);
    slider.resize(600, 50);
    slider.setScaleMode(words[0].toInt());
    slider.setRange(0, words[1].toInt());
    slider.setSingleStep(words[2].toInt());
    slider.setSnapToStep(words[3] == QLatin1String("1"));
    slider.setValue(words[4].toInt());
    QVERIFY(showActive(&slider));

    SignalLog log;
    log.watch(&slider, &QtZetoSlider::valueChanged, "value");
    log.watch(&slider, &QtZetoSlider::sliderPressed, "pressed");
    log.watch(&slider, &QtZetoSlider::sliderMoved, "moved");
    log.watch(&slider, &QtZetoSlider::sliderReleased, "released");
    drive(&slider, QStringLiteral("@slider ") + script);
    QTEST(log.take(), "expected");
}

void TestQtZetoSliders::doublesFollowTheUser_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("expected");
    QTest::newRow("keys") << 1.0 << "Right Right Left"
                          << "value 1.5, value 2, value 1.5";
    QTest::newRow("from between two steps") << 1.1 << "Right"
                                            << "value 1.5";
    QTest::newRow("the end beside the last step") << 4.0 << "Right Right Left"
                                                  << "value 4.2, value 4";
    QTest::newRow("the end from beside it") << 4.15 << "Right"
                                            << "value 4.2";
    QTest::newRow("the start from beside it") << 0.1 << "Left Left"
                                              << "value 0";
    QTest::newRow("drag") << 1.0 << "press drag:4 drag:4 release"
                          << "value 2";
}

void TestQtZetoSliders::doublesFollowTheUser()
{
    QFETCH(const double, value);
    QFETCH(const QString, script);
    QtZetoDoubleSlider slider(Qt::Horizontal);
    slider.resize(600, 50);
    slider.setSingleStep(0.5);
    slider.setRange(0.0, 4.2);
    slider.setRange(-std::numeric_limits<double>::infinity(), qQNaN());
    slider.setValue(value);
    slider.setValue(qQNaN());
    QVERIFY(showActive(&slider));

    SignalLog log;
    log.watch(&slider, &QtZetoDoubleSlider::valueChanged, "value");
    drive(&slider, QStringLiteral("@slider ") + script);
    QTEST(log.take(), "expected");
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
