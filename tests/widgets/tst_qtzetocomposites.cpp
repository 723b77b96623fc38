#include "int64validator.h"
#include "popupplacement.h"
#include "qtzetodoubleslider.h"
#include "qtzetodoublespinboxval.h"
#include "qtzetogainslider.h"
#include "qtzetoslider.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"
#include "qtzetospinboxval64.h"
#include "testmain.h"
#include "widgetdriver.h"

#include <QLabel>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {

/// A composite in a window that has somewhere else to go for the focus.
template <typename Composite>
struct Window : QWidget
{
    Composite composite{this};
    QToolButton other{this};

    Window()
    {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(&composite);
        layout->addWidget(&other);
        other.setObjectName(QStringLiteral("other"));
        setGeometry(50, 400, 600, 200);
    }
};

/// Plays the row's script to a composite that \a setUp prepared. \return its signals and at last what spin
/// box and slider hold and where the handle stands.
template <typename Composite, typename Value, typename SetUp>
QString played(SetUp setUp)
{
    QFETCH(const QString, script);
    Window<Composite> window;
    Composite& composite = window.composite;
    setUp(composite);
    if (!showActive(&window))
        return QStringLiteral("no active window");
    SignalLog log;
    log.watch(&composite, qOverload<Value>(&Composite::valueChanged), "value");
    drive(&composite, script);
    log.add(QStringLiteral("%1=%2@%3")
                .arg(composite.value())
                .arg(composite.slider()->value())
                .arg(composite.slider()->slider()->value()));
    return log.take();
}

/// The methods and properties that \a meta adds, in order.
QString membersOf(const QMetaObject& meta)
{
    QStringList members;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        members << meta.method(i).methodSignature();
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        members << meta.property(i).name();
    return members.join(' ');
}

QString infosOf(const QMetaObject& meta)
{
    QStringList infos;
    for (const char* name : {"author", "version", "date"})
        infos << meta.classInfo(meta.indexOfClassInfo(name)).value();
    return infos.join(' ');
}

} // namespace

class TestQtZetoComposites : public QObject
{
    Q_OBJECT

private slots:
    void declares();
    void sliderSpinBox_data();
    void sliderSpinBox();
    void gainSlider_data();
    void gainSlider();
    void spinBox_data();
    void spinBox();
    void popupOpensAndCloses();
    void placesPopup();
    void labelsComeAndGo();
    void releaseTellsTheTextToo();
};

void TestQtZetoComposites::declares()
{
    const auto check = [](const QMetaObject& meta, const char* infos, const char* members) {
        QCOMPARE(infosOf(meta), QString(infos));
        QCOMPARE(membersOf(meta), QString(members));
    };
    check(Int64Validator::staticMetaObject, "Zeto 1.0.0 03/28/2018",
          "bottomChanged(qlonglong) topChanged(qlonglong) bottom top");
    check(QtZetoSpinBoxVal64::staticMetaObject, "Zeto 1.0.0 03/29/2018",
          "valueChanged(qlonglong) valueChanged(QString) setValue(qlonglong) selectAll() clear() "
          "suffix prefix cleanText minimum maximum singleStep value displayIntegerBase");
    check(QtZetoSpinBoxVal::staticMetaObject, "Zeto 1.0.1 07/20/16", "setValue(int)");
    check(QtZetoDoubleSpinBoxVal::staticMetaObject, "Zeto 1.0.1 08/01/16", "setValue(double)");
    check(QtZetoSlider::staticMetaObject, "Zeto 1.0.1 07/15/16",
          "focusOut() valueChanged(int) sliderPressed() sliderMoved(int) sliderReleased() "
          "rangeChanged(int,int) setValue(int) setRange(int,int)");
    check(QtZetoDoubleSlider::staticMetaObject, "Zeto 1.0.1 08/01/16",
          "focusOut() valueChanged(double) sliderPressed() sliderMoved(int) sliderReleased() "
          "rangeChanged(double,double) setValue(double) setRange(double,double)");
    check(QtZetoSpinBox::staticMetaObject, "Zeto 1.0.1 06/30/16",
          "valueChanged(int) rangeChanged(int,int) setRange(int,int) setValue(int)");
    check(QtZetoSliderSpinBox::staticMetaObject, "Zeto 1.0.1 06/30/16",
          "valueChanged(int) rangeChanged(int,int) setValue(int) setRange(int,int)");
    check(QtZetoGainSlider::staticMetaObject, "Zeto 1.0.1 08/01/16",
          "valueChanged(double) rangeChanged(double,double) setValue(double) setRange(double,double)");
}

void TestQtZetoComposites::sliderSpinBox_data()
{
    // 90 in [0, 990], logarithmic; at last what spin box and slider hold and the position
    addScripts({
        {"slider keys", "", "@slider Right Right Left", "value 92, value 95, value 92, 92=92@201"},
        {"spin box keys", "", "@spinbox Up Up", "value 91, value 92, 92=92@201"},
        {"typed value beside the scale", "", "@spinbox Ctrl+A type:985",
         "value 9, value 98, value 985, 985=985@300"},
        {"wheel", "", "@slider wheel+ @spinbox wheel-", "value 97, value 96, 96=96@203"},
        {"a drag tells its end", "", "@slider press drag:250 drag:280 release", "value 621, 621=621@280"},
        {"a drag back tells the value again", "", "@slider press drag:280 drag:200 release",
         "value 90, 90=90@200"},
        {"a press alone tells nothing", "", "@slider press release", "90=90@200"},
    });
}

void TestQtZetoComposites::sliderSpinBox()
{
    const auto setUp = [](QtZetoSliderSpinBox& composite) {
        composite.setRange(0, 990);
        composite.slider()->setScaleMode(QtZetoSlider::Logarithmic);
        composite.setValue(90);
    };
    QTEST((played<QtZetoSliderSpinBox, int>(setUp)), "expected");
}

void TestQtZetoComposites::gainSlider_data()
{
    // 1.5 in [0, 4.2], step 0.1; at last what spin box and slider hold and the position
    addScripts({
        {"slider keys", "", "@slider Right Left", "value 1.6, value 1.5, 1.5=1.5@15"},
        {"typed value beside the steps", "", "@spinbox Ctrl+A type:2.345",
         "value 2, value 2.3, value 2.34, value 2.345, 2.345=2.345@23"},
        {"a drag tells all the while", "", "@slider press drag:20 drag:30 release",
         "value 2, value 3, 3=3@30"},
        {"rounding makes no second change", "", "@slider Home Right Right Right",
         "value 0, value 0.1, value 0.2, value 0.3, 0.3=0.3@3"},
    });
}

void TestQtZetoComposites::gainSlider()
{
    const auto setUp = [](QtZetoGainSlider& composite) {
        SignalLog log;
        log.watch(&composite, &QtZetoGainSlider::rangeChanged, "range");
        composite.setSingleStep(0.1);
        composite.setRange(0.0, 4.2);
        composite.setRange(0.0, 4.2);
        composite.setValue(1.5);
        QCOMPARE(log.take(), QStringLiteral("range 0 4.2"));
        composite.disconnect();
    };
    QTEST((played<QtZetoGainSlider, double>(setUp)), "expected");
}

void TestQtZetoComposites::spinBox_data()
{
    // 50 in [0, 100]; camera: as a feature is bound, told on release and by Enter; at last what both hold and
    // the position
    addScripts({
        {"typing", "", "@spinbox Ctrl+A type:78", "value 7, value 78, 78=78@78"},
        {"popup keys", "", "@button Space @slider Right End", "value 51, value 100, 100=100@100"},
        {"popup drag", "", "@button Space @slider press drag:70 drag:30 release",
         "value 70, value 30, 30=30@30"},
        {"Escape keeps what was picked", "", "@button Space @slider Right Escape", "value 51, 51=51@51"},
        {"popup drag, told once", "camera", "@button Space @slider press drag:70 drag:30 release",
         "value 30, 30=30@30"},
        {"Escape while dragging loses nothing", "camera", "@button Space @slider press drag:70 Escape",
         "value 70, 70=70@70"},
        {"typing, told by Enter", "camera", "@spinbox Ctrl+A type:78 Return Return", "value 78, 78=78@78"},
        {"typing, lost with the focus", "camera", "@spinbox Ctrl+A type:78 Tab", "50=50@50"},
    });
}

void TestQtZetoComposites::spinBox()
{
    QFETCH(const QString, setup);
    const auto setUp = [&setup](QtZetoSpinBox& composite) {
        composite.setOrientation(Qt::Horizontal);
        composite.slider()->setMinimumWidth(400); // a pixel for each value
        composite.setValue(50);
        composite.setKeyboardTracking(setup.isEmpty());
        composite.setCommitsOnRelease(!setup.isEmpty());
    };
    QTEST((played<QtZetoSpinBox, int>(setUp)), "expected");
}

void TestQtZetoComposites::popupOpensAndCloses()
{
    Window<QtZetoSpinBox> window;
    QtZetoSpinBox& composite = window.composite;
    QCOMPARE(composite.button()->text(), QStringLiteral("^"));
    QVERIFY(showActive(&window));

    drive(&composite, QStringLiteral("@button click"));
    const QtZetoSlider* const popup = composite.slider();
    const QRect button(composite.button()->mapToGlobal(QPoint()), composite.button()->size());
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->geometry().bottomLeft(), button.topLeft() - QPoint(0, 1));
    QVERIFY(popup->height() >= 100);
    QTRY_VERIFY(popup->slider()->hasFocus());
    drive(&composite, QStringLiteral("@slider Escape"));
    QVERIFY(!popup->isVisible());
    QTRY_VERIFY(composite.button()->hasFocus());

    composite.setOrientation(Qt::Horizontal);
    QCOMPARE(composite.button()->text(), QStringLiteral(">"));
    drive(&composite, QStringLiteral("@button Space"));
    QCOMPARE(popup->geometry().topLeft(), button.topRight() + QPoint(1, 0));
    QTest::mouseClick(composite.slider(), Qt::LeftButton, {},
                      QPoint(-20, -20)); // as Qt tells it of a click elsewhere
    QVERIFY(!popup->isVisible());

    for (const bool disable : {true, false}) {
        composite.button()->click();
        QVERIFY(popup->isVisible());
        disable ? composite.setEnabled(false) : composite.hide();
        QVERIFY(!popup->isVisible());
        composite.setEnabled(true);
    }
    composite.show();
    composite.button()->click(); // destroyed while open
}

void TestQtZetoComposites::placesPopup()
{
    const auto placed = [](QPoint button, Qt::Orientation orientation,
                           Qt::LayoutDirection direction = Qt::LeftToRight, QSize size = {100, 40}) {
        const QRect screen(1000, 0, 800, 600);
        return popupGeometry(QRect(button, QSize(20, 25)), size, orientation, direction, screen);
    };
    QCOMPARE(placed({1300, 300}, Qt::Horizontal), QRect(1320, 300, 100, 40));
    QCOMPARE(placed({1300, 300}, Qt::Horizontal, Qt::RightToLeft), QRect(1200, 300, 100, 40));
    QCOMPARE(placed({1300, 300}, Qt::Vertical), QRect(1300, 260, 100, 40));
    // no room on that side
    QCOMPARE(placed({1770, 300}, Qt::Horizontal), QRect(1670, 300, 100, 40));
    QCOMPARE(placed({1010, 300}, Qt::Horizontal, Qt::RightToLeft), QRect(1030, 300, 100, 40));
    QCOMPARE(placed({1300, 10}, Qt::Vertical), QRect(1300, 35, 100, 40));
    QCOMPARE(placed({1790, 590}, Qt::Horizontal), QRect(1690, 560, 100, 40));
    QCOMPARE(placed({1300, 300}, Qt::Horizontal, Qt::LeftToRight, {5000, 40}).width(), 800);
    // a button beyond the screen
    QCOMPARE(placed({1850, 300}, Qt::Vertical), QRect(1700, 260, 100, 40));
    QCOMPARE(placed({900, -90}, Qt::Vertical), QRect(1000, 0, 100, 40));
}

void TestQtZetoComposites::labelsComeAndGo()
{
    Window<QtZetoSpinBox> window;
    QtZetoSpinBox& composite = window.composite;
    const int bareHeight = composite.sizeHint().height();
    auto* const outer = new QLabel(QStringLiteral("&Period [us]:"), &window);
    outer->setBuddy(&composite);
    composite.button()->setAccessibleName(QStringLiteral("Open"));
    QVERIFY(showActive(&window));
    QCOMPARE(composite.spinBox()->accessibleName(), QStringLiteral("Period [us]"));
    QCOMPARE(composite.slider()->slider()->accessibleName(), QStringLiteral("Period [us]"));

    composite.setLabelLeft(QStringLiteral("&Width:"));
    composite.setLabelUpper(QStringLiteral("Pulse"));
    auto* const left = composite.findChild<QLabel*>(QStringLiteral("labelLeft"));
    auto* const upper = composite.findChild<QLabel*>(QStringLiteral("labelUpper"));
    QCOMPARE(left->buddy(), composite.spinBox());
    QCOMPARE(composite.spinBox()->accessibleName(), QStringLiteral("Width"));
    QCOMPARE(composite.button()->accessibleName(), QStringLiteral("Open"));
    QTRY_VERIFY(left->isVisible() && left->x() < composite.spinBox()->x());
    QTRY_VERIFY(upper->isVisible() && upper->y() < composite.spinBox()->y());
    QTRY_VERIFY(qAbs(upper->geometry().center().x() - composite.rect().center().x()) <= 1);

    composite.setLabelLeft({});
    composite.setLabelUpper({});
    QVERIFY(!left->isVisible() && !upper->isVisible());
    QCOMPARE(composite.sizeHint().height(), bareHeight);
}

void TestQtZetoComposites::releaseTellsTheTextToo()
{
    Window<QtZetoSliderSpinBox> window;
    QtZetoSliderSpinBox& composite = window.composite;
    composite.spinBox()->setSingleStep(10);
    composite.spinBox()->setSnapToStep(true);
    composite.setValue(50);
    QVERIFY(showActive(&window));
    SignalLog log;
    log.watch(composite.spinBox(), qOverload<int>(&QSpinBox::valueChanged), "number");
    const QSignalSpy texts(composite.spinBox(), SIGNAL(valueChanged(QString)));
    log.watch(&composite, &QtZetoSliderSpinBox::valueChanged, "value");
    drive(&composite, QStringLiteral("@slider press drag:70 drag:53 release"));
    QCOMPARE(log.take(), QStringLiteral("number 50, value 50"));
    QCOMPARE(texts.value(0).value(0).toString(), QStringLiteral("50"));
    QCOMPARE(composite.slider()->value(), 50);
}

ZETO_TEST_MAIN(TestQtZetoComposites)
#include "tst_qtzetocomposites.moc"
