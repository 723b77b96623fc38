#include "stepgrid.h"
#include "testmain.h"

#include <QtTest>

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr double huge = std::numeric_limits<double>::max();

} // namespace

class TestStepGrid : public QObject
{
    Q_OBJECT

private slots:
    void snapsIntegers();
    void snapsDoubles();
    void steps();
};

void TestStepGrid::snapsIntegers()
{
    const auto snapped = [](qint64 value, qint64 minimum, qint64 maximum, qint64 step) {
        return StepGrid::snapped(value, minimum, maximum, step);
    };
    QCOMPARE(snapped(8, 0, 99, 4), 8);
    QCOMPARE(snapped(5, 0, 99, 4), 4);
    QCOMPARE(snapped(6, 0, 99, 4), 8); // the middle goes up
    QCOMPARE(snapped(7, 0, 99, 4), 8);
    QCOMPARE(snapped(2, 0, 99, 5), 5); // an odd step halves downwards
    QCOMPARE(snapped(12, 3, 99, 10), 13);
    QCOMPARE(snapped(-5, -10, 10, 4), -6);
    QCOMPARE(snapped(97, 0, 98, 10), 98);
    QCOMPARE(snapped(99, 0, 99, 4), 99);
    QCOMPARE(snapped(-5, 0, 99, 4), -4); // below the range stays there
    QCOMPARE(snapped(200, 0, 99, 4), 99);
    for (const qint64 noGrid : {0, -4})
        QCOMPARE(snapped(5, 0, 99, noGrid), 5);
    QCOMPARE(snapped(highest - 1, lowest, highest, 2), highest - 1);
    QCOMPARE(snapped(-2, lowest, highest, highest), lowest + highest);
    QCOMPARE(snapped(highest - 2, lowest, highest, highest), highest - 1);
    QCOMPARE(snapped(lowest + 1, lowest, highest, 4), lowest);
    QCOMPARE(snapped(highest - 1, 4, highest, highest - 1), highest);
}

void TestStepGrid::snapsDoubles()
{
    QCOMPARE(StepGrid::snapped(1.5, 0.0, 10.0, 0.5), 1.5);
    QCOMPARE(StepGrid::snapped(1.2, 0.0, 10.0, 0.5), 1.0);
    QCOMPARE(StepGrid::snapped(1.25, 0.0, 10.0, 0.5), 1.5);
    QCOMPARE(StepGrid::snapped(10.1, 0.0, 10.25, 4.0), 10.25);
    QCOMPARE(StepGrid::snapped(0.3, 0.0, 1.0, 0.1), 0.3); // not quite on the grid
    for (const double noGrid : {0.0, -0.5, qQNaN()})
        QCOMPARE(StepGrid::snapped(1.2, 0.0, 10.0, noGrid), 1.2);
    QCOMPARE(StepGrid::snapped(1.2, -huge, huge, 0.5), 1.2);
    QCOMPARE(StepGrid::snapped(0.9 * huge, 0.0, huge, 0.8 * huge), 0.8 * huge);
}

void TestStepGrid::steps()
{
    const std::optional<qint64> none;
    const auto check = [](qint64 value, qint64 step, int count, std::optional<qint64> plain, qint64 aroundAll,
                          qint64 aroundHundred) {
        QCOMPARE(StepGrid::stepped(value, step, count), plain);
        QCOMPARE(StepGrid::steppedAround(value, step, count, lowest, highest), aroundAll);
        QCOMPARE(StepGrid::steppedAround<qint64>(value, step, count, 0, 99), aroundHundred);
    };
    check(5, 10, 2, 25, 25, 25);
    check(5, 10, -1, -5, -5, 99);
    check(95, 10, 1, 105, 105, 0);
    check(lowest + 1, 1, -1, lowest, lowest, 99);
    check(lowest, 1, -1, none, highest, 99);
    check(highest, 1, 1, none, lowest, 0);
    check(0, highest, 2, none, lowest, 0);
    check(0, highest, -2, none, highest, 99);
    check(0, lowest, -1, none, lowest, 0);
    check(0, lowest, 1, lowest, lowest, 99);
    check(0, lowest, 2, none, highest, 99);
    check(7, 0, 10, 7, 7, 7);
    check(7, -3, 10, -23, -23, 99);
}

ZETO_TEST_MAIN(TestStepGrid)
#include "tst_stepgrid.moc"
