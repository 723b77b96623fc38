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
    void snapsIntegers_data();
    void snapsIntegers();
    void snapsDoubles_data();
    void snapsDoubles();
    void steps_data();
    void steps();
};

void TestStepGrid::snapsIntegers_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("step");
    QTest::addColumn<qint64>("expected");

    const auto row = [](const char* name, qint64 value, qint64 minimum, qint64 maximum, qint64 step,
                        qint64 expected) {
        QTest::newRow(name) << value << minimum << maximum << step << expected;
    };
    row("on the grid", 8, 0, 99, 4, 8);
    row("below the middle", 5, 0, 99, 4, 4);
    row("the middle goes up", 6, 0, 99, 4, 8);
    row("above the middle", 7, 0, 99, 4, 8);
    row("an odd step halves downwards", 2, 0, 99, 5, 5);
    row("the grid starts at the minimum", 12, 3, 99, 10, 13);
    row("negative minimum", -5, -10, 10, 4, -6);
    row("never above the maximum", 98, 0, 98, 4, 98);
    row("up is limited to the maximum", 97, 0, 98, 10, 98);
    row("an end off the grid is kept", 99, 0, 99, 4, 99);
    row("below the range stays there", -5, 0, 99, 4, -4);
    row("above the range", 200, 0, 99, 4, 99);
    row("no grid for step 0", 5, 0, 99, 0, 5);
    row("no grid for a negative step", 5, 0, 99, -4, 5);
    row("whole range, even step", highest - 1, lowest, highest, 2, highest - 1);
    row("whole range, widest step, down", -2, lowest, highest, highest, lowest + highest);
    row("whole range, widest step, up", highest - 2, lowest, highest, highest, highest - 1);
    row("whole range, lower end", lowest + 1, lowest, highest, 4, lowest);
    row("step beyond the highest", highest - 1, 4, highest, highest - 1, highest);
}

void TestStepGrid::snapsIntegers()
{
    QFETCH(const qint64, value);
    QFETCH(const qint64, minimum);
    QFETCH(const qint64, maximum);
    QFETCH(const qint64, step);
    QTEST(StepGrid::snapped(value, minimum, maximum, step), "expected");
}

void TestStepGrid::snapsDoubles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("expected");

    QTest::newRow("on the grid") << 1.5 << 0.0 << 10.0 << 0.5 << 1.5;
    QTest::newRow("below the middle") << 1.2 << 0.0 << 10.0 << 0.5 << 1.0;
    QTest::newRow("the middle goes up") << 1.25 << 0.0 << 10.0 << 0.5 << 1.5;
    QTest::newRow("limited to the maximum") << 10.1 << 0.0 << 10.25 << 4.0 << 10.25;
    QTest::newRow("not quite on the grid") << 0.3 << 0.0 << 1.0 << 0.1 << 0.3;
    QTest::newRow("no grid for step 0") << 1.2 << 0.0 << 10.0 << 0.0 << 1.2;
    QTest::newRow("no grid for a step that is no number") << 1.2 << 0.0 << 10.0 << qQNaN() << 1.2;
    QTest::newRow("whole range") << 1.2 << -huge << huge << 0.5 << 1.2;
    QTest::newRow("step beyond the upper end") << 0.9 * huge << 0.0 << huge << 0.8 * huge << 0.8 * huge;
}

void TestStepGrid::snapsDoubles()
{
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const double, step);
    QTEST(StepGrid::snapped(value, minimum, maximum, step), "expected");
}

void TestStepGrid::steps_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<qint64>("step");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<qint64>("aroundAll");
    QTest::addColumn<qint64>("aroundHundred");

    QTest::newRow("up") << qint64(5) << qint64(10) << 2 << "25" << qint64(25) << qint64(25);
    QTest::newRow("below the range") << qint64(5) << qint64(10) << -1 << "-5" << qint64(-5) << qint64(99);
    QTest::newRow("above the range") << qint64(95) << qint64(10) << 1 << "105" << qint64(105) << qint64(0);
    QTest::newRow("onto the lowest") << lowest + 1 << qint64(1) << -1 << QString::number(lowest) << lowest
                                     << qint64(99);
    QTest::newRow("beyond the lowest") << lowest << qint64(1) << -1 << "none" << highest << qint64(99);
    QTest::newRow("beyond the highest") << highest << qint64(1) << 1 << "none" << lowest << qint64(0);
    QTest::newRow("too far up") << qint64(0) << highest << 2 << "none" << lowest << qint64(0);
    QTest::newRow("too far down") << qint64(0) << highest << -2 << "none" << highest << qint64(99);
    QTest::newRow("lowest backwards") << qint64(0) << lowest << -1 << "none" << lowest << qint64(0);
    QTest::newRow("lowest forwards") << qint64(0) << lowest << 1 << QString::number(lowest) << lowest
                                     << qint64(99);
    QTest::newRow("lowest twice") << qint64(0) << lowest << 2 << "none" << highest << qint64(99);
    QTest::newRow("step 0") << qint64(7) << qint64(0) << 10 << "7" << qint64(7) << qint64(7);
    QTest::newRow("negative step") << qint64(7) << qint64(-3) << 10 << "-23" << qint64(-23) << qint64(99);
}

void TestStepGrid::steps()
{
    QFETCH(const qint64, value);
    QFETCH(const qint64, step);
    QFETCH(const int, count);
    const std::optional<qint64> target = StepGrid::stepped(value, step, count);
    QTEST(target ? QString::number(*target) : QStringLiteral("none"), "plain");
    QTEST(StepGrid::steppedAround(value, step, count, lowest, highest), "aroundAll");
    QTEST(StepGrid::steppedAround<qint64>(value, step, count, 0, 99), "aroundHundred");
}

ZETO_TEST_MAIN(TestStepGrid)
#include "tst_stepgrid.moc"
