#include "doubleslidergrid.h"
#include "sliderscale.h"
#include "testmain.h"
#include "widgetdriver.h"

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
    // setup: mode (0 linear, 1 logarithmic, 2 square root) and range; script: a position; expected: the
    // positions, the value there and the position of that
    addScripts({
        {"linear", "0 -5 10", "3", "-5..10 3 3"},
        {"linear, whole range", "0 -2147483648 2147483647", "-1", "-2147483648..2147483647 -1 -1"},
        {"root, no whole root", "2 0 10", "2", "0..4 4 2"},
        {"root, rounded up already", "2 0 8", "2", "0..3 4 2"},
        {"root, offset", "2 -100 0", "5", "0..10 -75 5"},
        {"root, empty", "2 7 7", "0", "0..0 7 0"},
        {"root, whole range", "2 -2147483648 2147483647", "65535", "0..65536 2147352577 65535"},
        {"logarithmic", "1 0 990", "200", "100..300 90 200"},
        {"logarithmic, falls short", "1 0 1009", "300", "100..301 990 300"},
        {"logarithmic, offset", "1 -45 945", "200", "100..300 45 200"},
        {"logarithmic, empty", "1 7 7", "100", "100..100 7 100"},
        {"logarithmic, whole range", "1 -2147483648 2147483647", "130", "100..964 -2147483638 130"},
        {"before the first", "1 0 990", "-2147483648", "100..300 0 100"},
        {"behind the last", "1 0 990", "2147483647", "100..300 990 300"},
    });
}

void TestSliderScale::scales()
{
    QFETCH(const QString, setup);
    QFETCH(const QString, script);
    const QStringList words = setup.split(QLatin1Char(' '));
    SliderScale scale;
    scale.mode = SliderScale::Mode(words[0].toInt());
    scale.minimum = words[1].toInt();
    scale.maximum = words[2].toInt();
    const int value = scale.valueAt(script.toInt());
    QTEST(QStringLiteral("%1..%2 %3 %4")
              .arg(scale.firstPosition())
              .arg(scale.lastPosition())
              .arg(value)
              .arg(scale.positionOf(value)),
          "expected");
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
    // setup: range and step; script: a position; expected: the last position, the value there and the
    // position of that
    addScripts({
        {"whole steps", "0 100 1", "37", "100 37 37"},
        {"fractions", "-1 1 0.25", "3", "8 -0.25 3"},
        {"no whole number of steps", "0 10.2 1", "10", "11 10 10"},
        {"rounded up already", "0 10.7 1", "11", "11 10.7 11"},
        {"no step too much by rounding", "0.1 0.8 0.1", "7", "7 0.8 7"},
        {"step beyond the range", "0 1 5", "1", "1 1 1"},
        {"empty range", "4 4 1", "0", "0 4 0"},
        {"step 0 is the last decimal", "0 2 0", "1500", "2000 1.5 1500"},
        {"negative step", "0 2 -0.5", "1500", "2000 1.5 1500"},
        {"more steps than positions", "0 4e9 1", "250000000", "1000000000 1e+09 250000000"},
        {"whole range", "-1.7e308 1.7e308 1", "250000000", "1000000000 -8.5e+307 250000000"},
        {"whole range, huge step", "-1.7e308 1.7e308 1.7e308", "1", "2 0 1"},
    });
}

void TestSliderScale::doubleGrid()
{
    QFETCH(const QString, setup);
    QFETCH(const QString, script);
    const QStringList words = setup.split(QLatin1Char(' '));
    DoubleSliderGrid grid;
    grid.minimum = words[0].toDouble();
    grid.maximum = words[1].toDouble();
    grid.singleStep = words[2].toDouble();
    const double value = grid.valueAt(script.toInt());
    QTEST(QStringLiteral("%1 %2 %3").arg(grid.lastPosition()).arg(value).arg(grid.positionOf(value)),
          "expected");
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
