#include "connectionstatus.h"
#include "dialogplacement.h"
#include "informationtext.h"
#include "readingpace.h"

#include "testmain.h"

#include <QtTest>

#include <limits>

using namespace std::chrono_literals;
using ZetoGui::ConnectionStatus;

Q_DECLARE_METATYPE(std::optional<int64_t>)

namespace {

using Value = std::optional<int64_t>;

constexpr int64_t largest = std::numeric_limits<int64_t>::max();
const Value none;

} // namespace

/// The small calculations behind the main window.
class TestConfigTexts : public QObject
{
    Q_OBJECT

private slots:
    void tells_the_size_data();
    void tells_the_size();
    void tells_the_frame_rate_data();
    void tells_the_frame_rate();
    void tells_the_connection_data();
    void tells_the_connection();
    void places_dialogs_beside_the_window_data();
    void places_dialogs_beside_the_window();
    void rests_after_long_readings();
};

void TestConfigTexts::tells_the_size_data()
{
    QTest::addColumn<Value>("width");
    QTest::addColumn<Value>("height");
    QTest::addColumn<QString>("text");
    QTest::newRow("both") << Value(4096) << Value(3072) << "4096x3072";
    QTest::newRow("a line camera") << Value(4096) << none << "4096";
    QTest::newRow("no width") << none << Value(3072) << "";
    QTest::newRow("nothing") << none << none << "";
    QTest::newRow("largest") << Value(largest) << Value(0) << "9223372036854775807x0";
}

void TestConfigTexts::tells_the_size()
{
    QFETCH(Value, width);
    QFETCH(Value, height);
    QTEST(ZetoGui::sizeText(width, height), "text");
}

void TestConfigTexts::tells_the_frame_rate_data()
{
    QTest::addColumn<Value>("frameTime");
    QTest::addColumn<QString>("text");
    QTest::newRow("25 fps") << Value(40000) << "25.00";
    QTest::newRow("a third") << Value(3000000) << "0.33";
    QTest::newRow("fastest") << Value(1) << "1000000.00";
    QTest::newRow("no time") << Value(0) << "0.00";
    QTest::newRow("less than no time") << Value(-5) << "0.00";
    QTest::newRow("slowest") << Value(largest) << "0.00";
    QTest::newRow("unknown") << none << "";
}

void TestConfigTexts::tells_the_frame_rate()
{
    const ScopedLocale german{QLocale(QLocale::German)};
    QFETCH(Value, frameTime);
    QTEST(ZetoGui::frameRateText(frameTime), "text");
}

void TestConfigTexts::tells_the_connection_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << int(ConnectionStatus::Disconnected) << "Disconnected";
    QTest::newRow("there") << int(ConnectionStatus::Connected) << "M%1";
    QTest::newRow("slow") << int(ConnectionStatus::Slow) << "M%1 answers slowly";
    QTest::newRow("silent") << int(ConnectionStatus::NotAnswering) << "M%1 does not answer";
    QTest::newRow("lost") << int(ConnectionStatus::Lost) << "Connection to M%1 lost";
}

void TestConfigTexts::tells_the_connection()
{
    QFETCH(int, state);
    QTEST(ConnectionStatus::text(static_cast<ConnectionStatus::State>(state), QStringLiteral("M%1")), "text");
}

void TestConfigTexts::places_dialogs_beside_the_window_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("shift");
    QTest::addColumn<QPoint>("place");
    const QSize dialog(400, 300);
    QTest::newRow("to the right") << QRect(100, 100, 300, 400) << dialog << 0 << QPoint(408, 100);
    QTest::newRow("the second one") << QRect(100, 100, 300, 400) << dialog << 24 << QPoint(432, 124);
    QTest::newRow("to the left") << QRect(900, 100, 300, 400) << dialog << 0 << QPoint(492, 100);
    QTest::newRow("the second one on the left")
        << QRect(900, 100, 300, 400) << dialog << 24 << QPoint(468, 124);
    QTest::newRow("room on no side") << QRect(400, 100, 700, 400) << dialog << 0 << QPoint(10, 172);
    QTest::newRow("near the bottom") << QRect(100, 900, 300, 90) << dialog << 0 << QPoint(408, 724);
    QTest::newRow("larger than the screen")
        << QRect(100, 100, 300, 400) << QSize(2000, 2000) << 0 << QPoint(10, 0);
    QTest::newRow("window beyond the screen") << QRect(-500, -200, 300, 400) << dialog << 0 << QPoint(10, 0);
}

void TestConfigTexts::places_dialogs_beside_the_window()
{
    QFETCH(QRect, window);
    QFETCH(QSize, size);
    QFETCH(int, shift);
    const QRect screen(10, 0, 1280, 1024);
    QTEST(ZetoGui::placeBeside(window, size, screen, shift), "place");
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
