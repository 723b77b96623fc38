#include "connectionstatus.h"
#include "dialogplacement.h"
#include "informationtext.h"
#include "readingpace.h"

#include "testmain.h"

#include <QtTest>

#include <limits>

using namespace std::chrono_literals;
using ZetoGui::ConnectionStatus;

/// The small calculations behind the main window.
class TestConfigTexts : public QObject
{
    Q_OBJECT

private slots:
    void tells_the_size();
    void tells_the_frame_rate();
    void tells_the_connection();
    void places_dialogs_beside_the_window();
    void rests_after_long_readings();
};

namespace {

constexpr int64_t largest = std::numeric_limits<int64_t>::max();

} // namespace

void TestConfigTexts::tells_the_size()
{
    QCOMPARE(ZetoGui::sizeText(4096, 3072), "4096x3072");
    QCOMPARE(ZetoGui::sizeText(4096, {}), "4096"); // a line camera
    QCOMPARE(ZetoGui::sizeText({}, 3072), "");
    QCOMPARE(ZetoGui::sizeText({}, {}), "");
    QCOMPARE(ZetoGui::sizeText(largest, 0), "9223372036854775807x0");
}

void TestConfigTexts::tells_the_frame_rate()
{
    const ScopedLocale german{QLocale(QLocale::German)};
    QCOMPARE(ZetoGui::frameRateText(40000), "25.00");
    QCOMPARE(ZetoGui::frameRateText(3000000), "0.33");
    QCOMPARE(ZetoGui::frameRateText(1), "1000000.00");
    QCOMPARE(ZetoGui::frameRateText(0), "0.00");
    QCOMPARE(ZetoGui::frameRateText(-5), "0.00");
    QCOMPARE(ZetoGui::frameRateText(largest), "0.00");
    QCOMPARE(ZetoGui::frameRateText({}), "");
}

void TestConfigTexts::tells_the_connection()
{
    const auto text = [](ConnectionStatus::State state) { return ConnectionStatus::text(state, "M%1"); };
    QCOMPARE(text(ConnectionStatus::Disconnected), "Disconnected");
    QCOMPARE(text(ConnectionStatus::Connected), "M%1");
    QCOMPARE(text(ConnectionStatus::Slow), "M%1 answers slowly");
    QCOMPARE(text(ConnectionStatus::NotAnswering), "M%1 does not answer");
    QCOMPARE(text(ConnectionStatus::Lost), "Connection to M%1 lost");
}

void TestConfigTexts::places_dialogs_beside_the_window()
{
    const QRect screen(10, 0, 1280, 1024);
    const auto place = [&screen](const QRect& window, int shift, const QSize& size = {400, 300}) {
        return ZetoGui::placeBeside(window, size, screen, shift);
    };
    const QRect left(100, 100, 300, 400);
    const QRect right(900, 100, 300, 400);
    QCOMPARE(place(left, 0), QPoint(408, 100));
    QCOMPARE(place(left, 24), QPoint(432, 124));
    QCOMPARE(place(right, 0), QPoint(492, 100));
    QCOMPARE(place(right, 24), QPoint(468, 124));
    QCOMPARE(place({400, 100, 700, 400}, 0), QPoint(10, 172)); // room on no side
    QCOMPARE(place({100, 900, 300, 90}, 0), QPoint(408, 724));
    QCOMPARE(place(left, 0, {2000, 2000}), QPoint(10, 0)); // larger than the screen
    QCOMPARE(place({-500, -200, 300, 400}, 0), QPoint(10, 0));
}

void TestConfigTexts::rests_after_long_readings()
{
    const auto start = std::chrono::steady_clock::time_point(1h);
    ZetoGui::ReadingPace pace;
    QVERIFY(pace.isDue(start));
    pace.finished(start, start + 200ms);
    QVERIFY(pace.isDue(start + 1s));
    pace.finished(start, start + 3s);
    QVERIFY(!pace.isDue(start + 14s));
    QVERIFY(pace.isDue(start + 15s));
}

ZETO_TEST_MAIN(TestConfigTexts)
#include "tst_configtexts.moc"
