#include "doubleslidergrid.h"
#include "sliderscale.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QtTest>

#include <limits>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

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

} // namespace

class TestSliderScale : public QObject
{
    Q_OBJECT

private slots:
    void scales();
    void holdsForAnyRange();
    void doubleGrid();
    void doubleGridHoldsForAnyRange();
};

void TestSliderScale::scales()
{
    // The positions, the value at one of them and the position of that.
    const auto at = [](SliderScale::Mode mode, int minimum, int maximum, int position) {
        SliderScale scale;
        scale.mode = mode;
        scale.minimum = minimum;
        scale.maximum = maximum;
        const int value = scale.valueAt(position);
        return QStringLiteral("%1..%2 %3 %4")
            .arg(scale.firstPosition())
            .arg(scale.lastPosition())
            .arg(value)
            .arg(scale.positionOf(value));
    };
    constexpr auto linear = SliderScale::Linear;
    constexpr auto root = SliderScale::SquareRoot;
    constexpr auto logarithmic = SliderScale::Logarithmic;
    QCOMPARE(at(linear, -5, 10, 3), QStringLiteral("-5..10 3 3"));
    QCOMPARE(at(linear, lowest, highest, -1), QStringLiteral("-2147483648..2147483647 -1 -1"));
    QCOMPARE(at(root, 0, 10, 2), QStringLiteral("0..4 4 2"));
    QCOMPARE(at(root, 0, 8, 2), QStringLiteral("0..3 4 2"));
    QCOMPARE(at(root, -100, 0, 5), QStringLiteral("0..10 -75 5"));
    QCOMPARE(at(root, 7, 7, 0), QStringLiteral("0..0 7 0"));
    QCOMPARE(at(root, lowest, highest, 65535), QStringLiteral("0..65536 2147352577 65535"));
    QCOMPARE(at(logarithmic, 0, 990, 200), QStringLiteral("100..300 90 200"));
    QCOMPARE(at(logarithmic, 0, 1009, 300), QStringLiteral("100..301 990 300"));
    QCOMPARE(at(logarithmic, -45, 945, 200), QStringLiteral("100..300 45 200"));
    QCOMPARE(at(logarithmic, 7, 7, 100), QStringLiteral("100..100 7 100"));
    QCOMPARE(at(logarithmic, lowest, highest, 130), QStringLiteral("100..964 -2147483638 130"));
    QCOMPARE(at(logarithmic, 0, 990, lowest), QStringLiteral("100..300 0 100"));
    QCOMPARE(at(logarithmic, 0, 990, highest), QStringLiteral("100..300 990 300"));
}

void TestSliderScale::holdsForAnyRange()
{
    QRandomGenerator random(20180329);
    for (int i = 0; i < 20000; ++i) {
        const SliderScale scale = anyScale(random);
        const QByteArray what = QByteArray::number(i);
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

void TestSliderScale::doubleGrid()
{
    // The last position, the value at one and the position of that.
    const auto at = [](double minimum, double maximum, double step, int position) {
        DoubleSliderGrid grid;
        grid.minimum = minimum;
        grid.maximum = maximum;
        grid.singleStep = step;
        const double value = grid.valueAt(position);
        return QStringLiteral("%1 %2 %3").arg(grid.lastPosition()).arg(value).arg(grid.positionOf(value));
    };
    QCOMPARE(at(-1, 1, 0.25, 3), QStringLiteral("8 -0.25 3"));
    QCOMPARE(at(0, 10.2, 1, 10), QStringLiteral("11 10 10"));
    QCOMPARE(at(0, 10.7, 1, 11), QStringLiteral("11 10.7 11"));
    QCOMPARE(at(0.1, 0.8, 0.1, 7), QStringLiteral("7 0.8 7")); // no step too much by rounding
    QCOMPARE(at(0, 1, 5, 1), QStringLiteral("1 1 1"));
    QCOMPARE(at(4, 4, 1, 0), QStringLiteral("0 4 0"));
    for (const double lastDecimal : {0.0, -0.5})
        QCOMPARE(at(0, 2, lastDecimal, 1500), QStringLiteral("2000 1.5 1500"));
    // more steps than positions
    QCOMPARE(at(0, 4e9, 1, 250000000), QStringLiteral("1000000000 1e+09 250000000"));
    QCOMPARE(at(-1.7e308, 1.7e308, 1, 250000000), QStringLiteral("1000000000 -8.5e+307 250000000"));
    QCOMPARE(at(-1.7e308, 1.7e308, 1.7e308, 1), QStringLiteral("2 0 1"));
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
        const QByteArray what = QByteArray::number(i);
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
