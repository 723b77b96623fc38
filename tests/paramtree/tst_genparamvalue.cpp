#include "addresstext.h"
#include "genparamvalue.h"
#include "testmain.h"

#include <QtTest>

#include <limits>

namespace {

GenParamReading good(const GenParamValue& value)
{
    return {GenParamState::Good, GenApi::RW, value};
}

GenParamReading without(GenParamState state)
{
    return {state, GenApi::NA, {}};
}

} // namespace

class TestGenParamValue : public QObject
{
    Q_OBJECT

private slots:
    void makesTexts();
    void readsDottedAddresses();
    void namesStandForAddresses();
    void comparesReadings();
};

void TestGenParamValue::makesTexts()
{
    using Kind = GenParamKind;
    const QString microseconds = QString::fromUtf8("\xC2\xB5s");
    const GenParamFormat plain;
    const GenParamFormat time{microseconds, 2};
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    const auto check = [](Kind kind, const GenParamReading& reading, const GenParamFormat& format,
                          const QString& display, const QVariant& edit) {
        QCOMPARE(displayText(kind, reading, format), display);
        QCOMPARE(editValue(kind, reading), edit);
    };

    check(Kind::Integer, good(lowest), time, "-9223372036854775808" + microseconds, lowest);
    check(Kind::HexInteger, good(qint64{0xAB12}), time, "ab12", qint64{0xAB12});
    check(Kind::HexInteger, good(qint64{-1}), plain, "ffffffffffffffff", qint64{-1});
    check(Kind::IPv4Address, good(qint64{0xC0A80001}), time, "192.168.0.1", "192.168.0.1");
    check(Kind::MacAddress, good(qint64{0x0011223344AA}), plain, "00:11:22:33:44:aa", qint64{0x0011223344AA});
    check(Kind::Boolean, good(true), plain, "True", true);
    check(Kind::Boolean, good(false), plain, "False", false);
    check(Kind::Command, good({}), plain, "Execute", "Execute");
    check(Kind::Float, good(1.5), {"ms", 2}, "1.50ms", 1.5);
    check(Kind::Float, good(2.999), time, "3.00" + microseconds, 2.999);
    check(Kind::Float, good(1e300), {"", -1}, QString::number(1e300, 'f', 0), 1e300);
    check(Kind::Float, good(0.0), {"", 1000000}, "0." + QString(40, '0'), 0.0);
    check(Kind::String, good(microseconds), plain, microseconds, microseconds);
    check(Kind::String, good(QString("")), plain, "", QString(""));
    check(Kind::Enumeration, good(QString("Continuous")), time, "Continuous", "Continuous");
    check(Kind::Category, good({}), plain, QString(), QVariant());
    check(Kind::Command, without(GenParamState::NotAvailable), plain, "<Value not available>",
          "<Value not available>");
    check(Kind::Integer, without(GenParamState::NotReadable), plain, "<Value not readable>",
          "<Value not readable>");
    check(Kind::Float, without(GenParamState::Failed), plain, "ERROR", "ERROR");
}

void TestGenParamValue::readsDottedAddresses()
{
    QCOMPARE(ipv4FromText("192.168.1.10"), 0xC0A8010Au);
    QCOMPARE(ipv4FromText("1.2.3.4.5"), 0x02030405u);
    QCOMPARE(ipv4FromText("1..3."), 0x01000300u);
    QCOMPARE(ipv4FromText("x.1"), 1u);
    QCOMPARE(ipv4FromText("1.300"), 0x0000012Cu);
    QCOMPARE(ipv4FromText(""), 0u);
}

void TestGenParamValue::namesStandForAddresses()
{
    QCOMPARE(namedAddressKind("GevMACAddress"), GenParamKind::MacAddress);
    QCOMPARE(namedAddressKind("GevSCDA"), GenParamKind::IPv4Address);
    QCOMPARE(namedAddressKind("GevPrimaryApplicationIPAddress"), GenParamKind::IPv4Address);
    QCOMPARE(namedAddressKind("gevscda"), GenParamKind::Unknown);
    QCOMPARE(namedAddressKind("GevSCDA2"), GenParamKind::Unknown);
}

void TestGenParamValue::comparesReadings()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(good(nan) == good(nan));
    QVERIFY(!(good(0.5) == good(nan)));
    QVERIFY(!(good(qint64{1}) == good(true)));
    QVERIFY(!(good(qint64{1}) == GenParamReading{GenParamState::Good, GenApi::RO, qint64{1}}));
}

ZETO_TEST_MAIN(TestGenParamValue)
#include "tst_genparamvalue.moc"
