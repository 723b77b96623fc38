#include "digitalgain.h"
#include "framesize.h"
#include "frametiming.h"

#include "testmain.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace ZetoGui;

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr Exposure unlimited = {highest, highest};

} // namespace

class TestFrameArithmetic : public QObject
{
    Q_OBJECT

private slots:
    void converts_periods_data();
    void converts_periods();
    void converts_exposures_data();
    void converts_exposures();
    void splits_exposure_times_data();
    void splits_exposure_times();
    void finds_gains_data();
    void finds_gains();
    void keeps_every_gain();
    void moves_gains_by_the_least_step();
    void fits_ready_made_sizes_data();
    void fits_ready_made_sizes();
    void writes_sizes_in_an_accepted_order();
};

void TestFrameArithmetic::converts_periods_data()
{
    QTest::addColumn<qint64>("lineTime");
    QTest::addColumn<qint64>("pixelClock");
    QTest::addColumn<qint64>("lines");
    QTest::addColumn<qint64>("microseconds");
    QTest::addColumn<qint64>("linesAgain");
    const auto row = [](const char* name, qint64 lineTime, qint64 pixelClock, qint64 lines,
                        qint64 microseconds, qint64 linesAgain) {
        QTest::newRow(name) << lineTime << pixelClock << lines << microseconds << linesAgain;
    };
    row("whole", 1600, 160, 1000, 10000, 1000);
    row("half up", 240, 160, 1, 2, 1);
    row("below half", 200, 160, 1, 1, 1);
    row("negative: a half is added too", 1600, 160, -1000, -9999, -999);
    row("no line time", 0, 160, 1000, 0, 0);
    row("no pixel clock", 1600, 0, 1000, 0, 0);
    row("beyond 64 bits", 1600, 160, highest, 57646075230342352, highest / 1600 + 2);
    row("beyond 64 bits downwards", 1600, 160, lowest, -57646075230342352, lowest / 1600);
    row("quotient beyond 64 bits", 1, -1, lowest, highest, lowest);
}

void TestFrameArithmetic::converts_periods()
{
    QFETCH(qint64, lineTime);
    QFETCH(qint64, pixelClock);
    QFETCH(qint64, lines);
    const LineTiming timing{lineTime, pixelClock};
    const qint64 microseconds = linesToMicroseconds(lines, timing);
    QTEST(microseconds, "microseconds");
    QTEST(qint64(microsecondsToLines(microseconds, timing)), "linesAgain");
}

void TestFrameArithmetic::converts_exposures_data()
{
    QTest::addColumn<qint64>("lines");
    QTest::addColumn<qint64>("clocks");
    QTest::addColumn<qint64>("pixelClock");
    QTest::addColumn<qint64>("microseconds");
    QTest::newRow("truncated") << qint64(10) << qint64(80) << qint64(160) << qint64(100);
    QTest::newRow("nearly one more") << qint64(10) << qint64(159) << qint64(160) << qint64(100);
    QTest::newRow("no pixel clock") << qint64(10) << qint64(80) << qint64(0) << qint64(0);
    QTest::newRow("beyond 64 bits") << highest << highest << qint64(1) << highest;
}

/// Of lines of 1600 clocks.
void TestFrameArithmetic::converts_exposures()
{
    QFETCH(qint64, lines);
    QFETCH(qint64, clocks);
    QFETCH(qint64, pixelClock);
    QTEST(qint64(exposureTime({lines, clocks}, {1600, pixelClock})), "microseconds");
}

void TestFrameArithmetic::splits_exposure_times_data()
{
    QTest::addColumn<qint64>("microseconds");
    QTest::addColumn<qint64>("lineTime");
    QTest::addColumn<qint64>("mostLines");
    QTest::addColumn<QString>("exposure");
    const auto row = [](const char* name, qint64 microseconds, qint64 lineTime, qint64 mostLines,
                        const char* exposure) {
        QTest::newRow(name) << microseconds << lineTime << mostLines << QString::fromLatin1(exposure);
    };
    row("whole lines", 100, 1600, highest, "10+0");
    row("and clocks", 105, 1600, highest, "10+800");
    row("less than a line", 9, 1600, highest, "0+1440");
    row("nothing", 0, 1600, highest, "0+0");
    row("more lines than there are", 1000, 1600, 50, "50+1599");
    row("beyond 64 bits", highest, 1600, highest, "5764607523034234+1407");
    row("negative", -100, 1600, highest, "0+0");
    row("no line time", 100, 0, highest, "none");
}

/// At 160 MHz. The clocks are never as many as those of a line.
void TestFrameArithmetic::splits_exposure_times()
{
    QFETCH(qint64, microseconds);
    QFETCH(qint64, lineTime);
    QFETCH(qint64, mostLines);
    const auto exposure = exposureOfTime(microseconds, {lineTime, 160}, {mostLines, 1599});
    const QString text = exposure ? QStringLiteral("%1+%2").arg(exposure->lines).arg(exposure->clocks)
                                  : QStringLiteral("none");
    QTEST(text, "exposure");
    const LineTiming timing{1600, 160};
    for (const int64_t time : {1, 7, 100, 99999, 1234567})
        QCOMPARE(exposureTime(*exposureOfTime(time, timing, unlimited), timing), time);
}

void TestFrameArithmetic::finds_gains_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("coarse");
    QTest::addColumn<int>("fine");
    QTest::newRow("example") << 6.0 << 2 << 32;
    QTest::newRow("least") << 1.0 << 0 << 0;
    QTest::newRow("less than least") << -3.0 << 0 << 0;
    QTest::newRow("most") << 31.75 << 4 << 63;
    QTest::newRow("more than most") << 1e300 << 4 << 63;
    QTest::newRow("end of a power") << 7.93 << 2 << 63;
    QTest::newRow("next power is nearer") << 7.97 << 3 << 0;
    QTest::newRow("no number") << std::nan("") << 0 << 0;
}

void TestFrameArithmetic::finds_gains()
{
    QFETCH(double, factor);
    const DigitalGain gain = DigitalGainRange{{0, 0}, {4, 63}}.nearest(factor);
    QTEST(int(gain.coarse), "coarse");
    QTEST(int(gain.fine), "fine");
}

/// A factor that is shown with three decimals is the same gain when it is entered again.
void TestFrameArithmetic::keeps_every_gain()
{
    const DigitalGainRange range{{0, 0}, {4, 63}};
    for (int64_t coarse = 0; coarse <= 4; ++coarse) {
        for (int64_t fine = 0; fine <= 63; ++fine) {
            const DigitalGain gain{coarse, fine};
            QCOMPARE(range.nearest(std::round(gain.factor() * 1000) / 1000).factor(), gain.factor());
        }
    }
    const DigitalGainRange narrow{{1, 8}, {2, 16}}; // some factors between the powers cannot be had
    QCOMPARE(narrow.nearest(3.0).factor(), 2.5);
    QCOMPARE(narrow.nearest(4.0).factor(), 4.5);
}

void TestFrameArithmetic::moves_gains_by_the_least_step()
{
    const DigitalGainRange range{{0, 0}, {4, 63}};
    const DigitalGain eight{3, 0};
    QCOMPARE(range.towards(8.001, eight).factor(), 8.125);
    QCOMPARE(range.towards(7.999, eight).factor(), 7.9375);
    QCOMPARE(range.towards(8.0, eight).factor(), 8.0);
    QCOMPARE(range.towards(100, range.maximum).factor(), 31.75);
}

void TestFrameArithmetic::fits_ready_made_sizes_data()
{
    QTest::addColumn<int>("maximumSize");
    QTest::addColumn<int>("maximumOffset");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("fitted");
    const auto row = [](const char* name, int maximumSize, int maximumOffset, int size, int offset,
                        const char* fitted) {
        QTest::newRow(name) << maximumSize << maximumOffset << size << offset << QString::fromLatin1(fitted);
    };
    row("size limited by the offset", 3996, 2096, 2000, 100, "4096@0 3840@128 yes");
    row("size limited by the sensor", 4096, 2096, 2000, 100, "4096@0 3840@128 yes");
    row("offset limited by nothing", 4096, 4000, 2000, 0, "4096@0 3840@128 yes");
    row("off the grid", 4103, 0, 4096, 0, "4096@0 3840@128 yes");
    row("just large enough", 3840, 0, 3840, 0, "3840@0 3840@0 yes");
    row("too small", 2048, 0, 2048, 0, "2048@0 3840@0 no");
}

/// In steps of 16 and 4.
void TestFrameArithmetic::fits_ready_made_sizes()
{
    QFETCH(int, maximumSize);
    QFETCH(int, maximumOffset);
    QFETCH(int, size);
    QFETCH(int, offset);
    const int64_t whole = sensorSize({size, offset}, maximumSize, maximumOffset);
    const ExtentLimits limits{whole, 64, 16, 0, 4};
    const FrameExtent full = limits.full();
    const FrameExtent centred = limits.centred(qfhdWidth);
    const QString fitted = QStringLiteral("%1@%2 %3@%4 %5")
                               .arg(full.size)
                               .arg(full.offset)
                               .arg(centred.size)
                               .arg(centred.offset)
                               .arg(limits.holds(qfhdWidth) ? "yes" : "no");
    QTEST(fitted, "fitted");
}

/// Whatever the sizes, the sensor has room for both parts all the way.
void TestFrameArithmetic::writes_sizes_in_an_accepted_order()
{
    const FrameExtent extents[] = {{8, 0}, {2, 6}, {2, 0}, {4, 4}, {5, 1}, {4, 2}};
    for (const FrameExtent& present : extents) {
        for (const FrameExtent& target : extents) {
            FrameExtent camera = present;
            for (const ExtentPart part : writeOrder(present, target)) {
                if (part == ExtentPart::Size)
                    camera.size = target.size;
                else
                    camera.offset = target.offset;
                QVERIFY(camera.size + camera.offset <= 8);
            }
            QVERIFY(camera == target);
        }
    }
}

ZETO_TEST_MAIN(TestFrameArithmetic)

#include "tst_framearithmetic.moc"
