#include "doubleslidergrid.h"
#include "sliderscale.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QtTest>

#include <limits>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr double huge = std::numeric_limits<double>::max();

/// A number of any magnitude and sign, now and then a limit of int.
int anyInt(QRandomGenerator& random)
{
    const int limit = random.bounded(20);
    if (limit < 2)
        return limit == 0 ? lowest : highest;
    return int(random.generate()) >> random.bounded(32);
}

SliderScale anyScale(QRandomGenerator& random)
{
    SliderScale scale;
    scale.mode = SliderScale::Mode(random.bounded(3));
    const auto [minimum, maximum] = std::minmax({anyInt(random), anyInt(random)});
    scale.minimum = minimum;
    scale.maximum = maximum;
    scale.singleStep = anyInt(random);
    scale.snapToStep = random.bounded(2) == 1;
    scale.logScale = std::pow(10.0, random.bounded(9.0) - 1.0);
    return scale;
}

int anyOf(QRandomGenerator& random, qint64 first, qint64 last)
{
    return int(first + qint64(random.generate64() % quint64(last - first + 1)));
}

/// What presses of an arrow key reach from \a value, stopped at the end of the range.
QString walk(const SliderScale& scale, int value, int direction, int presses)
{
    QStringList values;
    for (int i = 0; i < presses; ++i) {
        value = scale.valueForKey(value, scale.positionOf(value) + direction, direction);
        values << QString::number(value);
    }
    return values.join(QLatin1Char(' '));
}

} // namespace

class TestSliderScale : public QObject
{
    Q_OBJECT

private slots:
    void scales_data();
    void scales();
    void keysNeverGetStuck();
    void holdsForAnyRange();
    void doubleGrid_data();
    void doubleGrid();
    void doubleGridHoldsForAnyRange();
};

void TestSliderScale::scales_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("positions");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("value");

    const auto row = [](const char* name, SliderScale::Mode mode, int minimum, int maximum,
                        const char* positions, int position, int value) {
        QTest::newRow(name) << int(mode) << minimum << maximum << positions << position << value;
    };
    using S = SliderScale;
    row("linear", S::Linear, -5, 10, "-5..10", 3, 3);
    row("linear, whole range", S::Linear, lowest, highest, "-2147483648..2147483647", -1, -1);
    row("root, no whole root", S::SquareRoot, 0, 10, "0..4", 2, 4);
    row("root, rounded up already", S::SquareRoot, 0, 8, "0..3", 2, 4);
    row("root, offset", S::SquareRoot, -100, 0, "0..10", 5, -75);
    row("root, empty", S::SquareRoot, 7, 7, "0..0", 0, 7);
    row("root, whole range", S::SquareRoot, lowest, highest, "0..65536", 65535, 2147352577);
    row("logarithmic", S::Logarithmic, 0, 990, "100..300", 200, 90);
    row("logarithmic, falls short", S::Logarithmic, 0, 1009, "100..301", 300, 990);
    row("logarithmic, offset", S::Logarithmic, -45, 945, "100..300", 200, 45);
    row("logarithmic, empty", S::Logarithmic, 7, 7, "100..100", 100, 7);
    row("logarithmic, whole range", S::Logarithmic, lowest, highest, "100..964", 100 + 30, -2147483638);
}

void TestSliderScale::scales()
{
    QFETCH(const int, mode);
    QFETCH(const int, position);
    QFETCH(const int, value);
    SliderScale scale;
    scale.mode = SliderScale::Mode(mode);
    scale.minimum = *static_cast<int*>(QTest::qData("minimum", QMetaType::Int));
    scale.maximum = *static_cast<int*>(QTest::qData("maximum", QMetaType::Int));
    QTEST(QStringLiteral("%1..%2").arg(scale.firstPosition()).arg(scale.lastPosition()), "positions");
    QCOMPARE(scale.valueAt(position), value);
    QCOMPARE(scale.positionOf(value), position);
    QCOMPARE(scale.valueAt(lowest), scale.minimum);
    QCOMPARE(scale.valueAt(highest), scale.maximum);
}

void TestSliderScale::keysNeverGetStuck()
{
    SliderScale scale;
    scale.maximum = 990;
    scale.mode = SliderScale::Logarithmic;
    QCOMPARE(walk(scale, 0, 1, 4), QStringLiteral("1 2 3 4"));
    QCOMPARE(walk(scale, 300, 1, 3), QStringLiteral("306 314 321"));
    QCOMPARE(walk(scale, 987, 1, 3), QStringLiteral("990 990 990"));
    scale.maximum = 1000;
    QCOMPARE(walk(scale, 998, 1, 3), QStringLiteral("1000 1000 1000"));
    scale.singleStep = 10;
    QCOMPARE(walk(scale, 7, -1, 2), QStringLiteral("0 0"));
    scale.snapToStep = true;
    QCOMPARE(walk(scale, 7, 1, 2), QStringLiteral("10 20"));
    scale.mode = SliderScale::SquareRoot;
    scale.maximum = 42;
    QCOMPARE(walk(scale, 42, -1, 6), QStringLiteral("40 30 20 10 0 0"));
}

void TestSliderScale::holdsForAnyRange()
{
    QRandomGenerator random(20180329);
    for (int i = 0; i < 20000; ++i) {
        const SliderScale scale = anyScale(random);
        const QByteArray what = QStringLiteral("mode %1 [%2, %3] step %4 snap %5 scale %6")
                                    .arg(scale.mode)
                                    .arg(scale.minimum)
                                    .arg(scale.maximum)
                                    .arg(scale.singleStep)
                                    .arg(scale.snapToStep)
                                    .arg(scale.logScale)
                                    .toLatin1();
        const auto inRange = [&scale](int value) { return value >= scale.minimum && value <= scale.maximum; };
        const auto [low, high] = std::minmax(
            {anyOf(random, scale.minimum, scale.maximum), anyOf(random, scale.minimum, scale.maximum)});

        QVERIFY2(scale.valueAt(scale.positionOf(scale.minimum)) == scale.minimum, what);
        QVERIFY2(scale.valueAt(scale.positionOf(scale.maximum)) == scale.maximum, what);
        QVERIFY2(scale.positionOf(low) >= scale.firstPosition(), what);
        QVERIFY2(scale.positionOf(low) <= scale.positionOf(high), what);
        QVERIFY2(scale.positionOf(high) <= scale.lastPosition(), what);
        QVERIFY2(inRange(scale.valueAt(scale.positionOf(low))), what);

        const int position = anyOf(random, scale.firstPosition(), scale.lastPosition());
        QVERIFY2(inRange(scale.valueAt(position)), what);
        if (position < highest)
            QVERIFY2(scale.valueAt(position) <= scale.valueAt(position + 1), what);

        if (scale.mode == SliderScale::Linear)
            continue;
        const int up = scale.valueForKey(low, std::min(scale.positionOf(low) + 1, scale.lastPosition()), 1);
        const int down = scale.valueForKey(high, scale.positionOf(high) - 1, -1);
        const qint64 step = scale.snapToStep ? 1 : std::max(scale.singleStep, 1);
        QVERIFY2(inRange(up) && (up >= low + step || up == scale.maximum), what);
        QVERIFY2(inRange(down) && (down <= high - step || down == scale.minimum), what);
    }
}

void TestSliderScale::doubleGrid_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");

    QTest::newRow("whole steps") << 0.0 << 100.0 << 1.0 << 100 << 37 << 37.0;
    QTest::newRow("fractions") << -1.0 << 1.0 << 0.25 << 8 << 3 << -0.25;
    QTest::newRow("no whole number of steps") << 0.0 << 10.2 << 1.0 << 11 << 10 << 10.0;
    QTest::newRow("rounded up already") << 0.0 << 10.7 << 1.0 << 11 << 11 << 10.7;
    QTest::newRow("no step too much by rounding") << 0.1 << 0.8 << 0.1 << 7 << 7 << 0.8;
    QTest::newRow("step beyond the range") << 0.0 << 1.0 << 5.0 << 1 << 1 << 1.0;
    QTest::newRow("empty range") << 4.0 << 4.0 << 1.0 << 0 << 0 << 4.0;
    QTest::newRow("step 0 is the last decimal") << 0.0 << 2.0 << 0.0 << 2000 << 1500 << 1.5;
    QTest::newRow("negative step") << 0.0 << 2.0 << -0.5 << 2000 << 1500 << 1.5;
    QTest::newRow("more steps than positions") << 0.0 << 4e9 << 1.0 << 1000000000 << 250000000 << 1e9;
    QTest::newRow("whole range") << -huge << huge << 1.0 << 1000000000 << 500000000 << 0.0;
    QTest::newRow("whole range, huge step") << -huge << huge << huge << 2 << 1 << 0.0;
}

void TestSliderScale::doubleGrid()
{
    DoubleSliderGrid grid;
    QFETCH(const int, position);
    QFETCH(const double, value);
    grid.minimum = *static_cast<double*>(QTest::qData("minimum", QMetaType::Double));
    grid.maximum = *static_cast<double*>(QTest::qData("maximum", QMetaType::Double));
    grid.singleStep = *static_cast<double*>(QTest::qData("step", QMetaType::Double));
    QTEST(grid.lastPosition(), "last");
    QVERIFY(std::abs(grid.valueAt(position) - value) <= grid.maximum * 1e-15);
    QCOMPARE(grid.positionOf(value), position);
}

void TestSliderScale::doubleGridHoldsForAnyRange()
{
    QRandomGenerator random(20160801);
    const auto anyDouble = [&random] {
        return std::ldexp(random.bounded(2.0) - 1.0, random.bounded(-1070, 1024));
    };
    for (int i = 0; i < 20000; ++i) {
        DoubleSliderGrid grid;
        const auto [minimum, maximum] = std::minmax({anyDouble(), anyDouble()});
        grid.minimum = minimum;
        grid.maximum = maximum;
        grid.singleStep = anyDouble();
        grid.snapToStep = random.bounded(2) == 1;
        const QByteArray what = QStringLiteral("[%1, %2] step %3 snap %4")
                                    .arg(minimum)
                                    .arg(maximum)
                                    .arg(grid.singleStep)
                                    .arg(grid.snapToStep)
                                    .toLatin1();
        QVERIFY2(grid.valueAt(grid.positionOf(minimum)) == minimum, what);
        QVERIFY2(grid.valueAt(grid.positionOf(maximum)) == maximum, what);
        const int last = grid.lastPosition();
        const int position = anyOf(random, 0, last);
        const double value = grid.valueAt(position);
        QVERIFY2(value >= minimum && value <= maximum, what);
        QVERIFY2(value <= grid.valueAt(std::min(position, last - 1) + 1), what);
        QVERIFY2(grid.positionOf(value) >= 0 && grid.positionOf(value) <= last, what);
    }
}

ZETO_TEST_MAIN(TestSliderScale)
#include "tst_sliderscale.moc"
