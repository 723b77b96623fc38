#include "digitalgain.h"
#include "framesize.h"
#include "frametiming.h"

#include "testmain.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace ZetoGui;

namespace {

constexpr int64_t lowest = std::numeric_limits<int64_t>::min();
constexpr int64_t highest = std::numeric_limits<int64_t>::max();
constexpr Exposure unlimited = {highest, highest};

} // namespace

class TestFrameArithmetic : public QObject
{
    Q_OBJECT

private slots:
    void converts_periods();
    void converts_exposures();
    void splits_exposure_times();
    void finds_gains();
    void keeps_every_gain();
    void moves_gains_by_the_least_step();
    void fits_ready_made_sizes();
    void writes_sizes_in_an_accepted_order();
};

void TestFrameArithmetic::converts_periods()
{
    struct Period
    {
        LineTiming timing;
        int64_t lines;
        int64_t microseconds;
        int64_t linesAgain;
    };
    const Period periods[] = {
        {{1600, 160}, 1000, 10000, 1000},
        {{240, 160}, 1, 2, 1}, // half up
        {{200, 160}, 1, 1, 1},
        {{1600, 160}, -1000, -9999, -999}, // a half is added too
        {{0, 160}, 1000, 0, 0},
        {{1600, 0}, 1000, 0, 0},
        {{1600, 160}, highest, 57646075230342352, highest / 1600 + 2},
        {{1600, 160}, lowest, -57646075230342352, lowest / 1600},
        {{1, -1}, lowest, highest, lowest},
    };
    for (const Period& period : periods) {
        QCOMPARE(linesToMicroseconds(period.lines, period.timing), period.microseconds);
        QCOMPARE(microsecondsToLines(period.microseconds, period.timing), period.linesAgain);
    }
}

void TestFrameArithmetic::converts_exposures()
{
    QCOMPARE(exposureTime({10, 80}, {1600, 160}), int64_t(100)); // truncated
    QCOMPARE(exposureTime({10, 159}, {1600, 160}), int64_t(100));
    QCOMPARE(exposureTime({10, 80}, {1600, 0}), int64_t(0));
    QCOMPARE(exposureTime({highest, highest}, {1600, 1}), highest);
}

/// At 160 MHz. The clocks are never as many as those of a line.
void TestFrameArithmetic::splits_exposure_times()
{
    const auto split = [](int64_t microseconds, int64_t lineTime, int64_t mostLines) {
        const auto exposure = exposureOfTime(microseconds, {lineTime, 160}, {mostLines, 1599});
        return exposure ? QStringLiteral("%1+%2").arg(exposure->lines).arg(exposure->clocks)
                        : QStringLiteral("none");
    };
    QCOMPARE(split(100, 1600, highest), "10+0");
    QCOMPARE(split(105, 1600, highest), "10+800");
    QCOMPARE(split(9, 1600, highest), "0+1440");
    QCOMPARE(split(0, 1600, highest), "0+0");
    QCOMPARE(split(1000, 1600, 50), "50+1599"); // more lines than there are
    QCOMPARE(split(highest, 1600, highest), "5764607523034234+1407");
    QCOMPARE(split(-100, 1600, highest), "0+0");
    QCOMPARE(split(100, 0, highest), "none");
    const LineTiming timing{1600, 160};
    for (const int64_t time : {1, 7, 100, 99999, 1234567})
        QCOMPARE(exposureTime(*exposureOfTime(time, timing, unlimited), timing), time);
}

void TestFrameArithmetic::finds_gains()
{
    const auto nearest = [](double factor) {
        const DigitalGain gain = DigitalGainRange{{0, 0}, {4, 63}}.nearest(factor);
        return QStringLiteral("%1+%2/64").arg(gain.coarse).arg(gain.fine);
    };
    QCOMPARE(nearest(6.0), "2+32/64");
    QCOMPARE(nearest(1.0), "0+0/64");
    QCOMPARE(nearest(-3.0), "0+0/64");
    QCOMPARE(nearest(31.75), "4+63/64");
    QCOMPARE(nearest(1e300), "4+63/64");
    QCOMPARE(nearest(7.93), "2+63/64");
    QCOMPARE(nearest(7.97), "3+0/64"); // the next power is nearer
    QCOMPARE(nearest(std::nan("")), "0+0/64");
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

/// In steps of 16 and 4.
void TestFrameArithmetic::fits_ready_made_sizes()
{
    const auto fitted = [](int maximumSize, int maximumOffset, int size, int offset) {
        const int64_t whole = sensorSize({size, offset}, maximumSize, maximumOffset);
        const ExtentLimits limits{whole, 64, 16, 0, 4};
        const FrameExtent centred = limits.centred(qfhdWidth);
        return QStringLiteral("%1@%2 %3@%4 %5")
            .arg(limits.full().size)
            .arg(limits.full().offset)
            .arg(centred.size)
            .arg(centred.offset)
            .arg(limits.holds(qfhdWidth) ? "yes" : "no");
    };
    QCOMPARE(fitted(3996, 2096, 2000, 100), "4096@0 3840@128 yes"); // the offset limits the size
    QCOMPARE(fitted(4096, 2096, 2000, 100), "4096@0 3840@128 yes"); // the sensor does
    QCOMPARE(fitted(4096, 4000, 2000, 0), "4096@0 3840@128 yes");
    QCOMPARE(fitted(4103, 0, 4096, 0), "4096@0 3840@128 yes"); // off the grid
    QCOMPARE(fitted(3840, 0, 3840, 0), "3840@0 3840@0 yes");
    QCOMPARE(fitted(2048, 0, 2048, 0), "2048@0 3840@0 no");
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
