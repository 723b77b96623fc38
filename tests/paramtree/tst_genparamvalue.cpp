#include "addresstext.h"
#include "genparamvalue.h"
#include "testmain.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(GenParamKind)
Q_DECLARE_METATYPE(GenParamReading)
Q_DECLARE_METATYPE(GenParamFormat)

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
    void makesTexts_data();
    void makesTexts();
    void readsDottedAddresses_data();
    void readsDottedAddresses();
    void namesStandForAddresses();
    void comparesReadings();
};

void TestGenParamValue::makesTexts_data()
{
    using Kind = GenParamKind;
    QTest::addColumn<GenParamKind>("kind");
    QTest::addColumn<GenParamReading>("reading");
    QTest::addColumn<GenParamFormat>("format");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QVariant>("edit");

    const QString microseconds = QString::fromUtf8("\xC2\xB5s");
    const GenParamFormat plain;
    const GenParamFormat time{microseconds, 2};
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    const auto row = [](const char* name, Kind kind, const GenParamReading& reading,
                        const GenParamFormat& format, const QString& display, const QVariant& edit) {
        QTest::newRow(name) << kind << reading << format << display << edit;
    };

    row("integer", Kind::Integer, good(qint64{-5}), time, "-5" + microseconds, qint64{-5});
    row("lowest integer", Kind::Integer, good(lowest), plain, "-9223372036854775808", lowest);
    row("hexadecimal, no unit", Kind::HexInteger, good(qint64{0xAB12}), time, "ab12", qint64{0xAB12});
    row("negative hexadecimal", Kind::HexInteger, good(qint64{-1}), plain, "ffffffffffffffff", qint64{-1});
    row("IPv4", Kind::IPv4Address, good(qint64{0xC0A80001}), time, "192.168.0.1", "192.168.0.1");
    row("MAC, zero-filled", Kind::MacAddress, good(qint64{0x0011223344AA}), plain, "00:11:22:33:44:aa",
        qint64{0x0011223344AA});
    row("true", Kind::Boolean, good(true), plain, "True", true);
    row("false", Kind::Boolean, good(false), plain, "False", false);
    row("command", Kind::Command, good({}), plain, "Execute", "Execute");
    row("float with unit", Kind::Float, good(1.5), GenParamFormat{"ms", 2}, "1.50ms", 1.5);
    row("float rounds", Kind::Float, good(2.999), time, "3.00" + microseconds, 2.999);
    row("largest float", Kind::Float, good(1e300), GenParamFormat{"", -1}, QString::number(1e300, 'f', 0),
        1e300);
    row("senseless precision", Kind::Float, good(0.0), GenParamFormat{"", 1000000}, "0." + QString(40, '0'),
        0.0);
    row("string", Kind::String, good(microseconds), plain, microseconds, microseconds);
    row("empty string", Kind::String, good(QString("")), plain, "", QString(""));
    row("enumeration", Kind::Enumeration, good(QString("Continuous")), time, "Continuous", "Continuous");
    row("category", Kind::Category, good({}), plain, QString(), QVariant());
    row("not available", Kind::Command, without(GenParamState::NotAvailable), plain, "<Value not available>",
        "<Value not available>");
    row("write-only", Kind::Integer, without(GenParamState::NotReadable), plain, "<Value not readable>",
        "<Value not readable>");
    row("after an exception", Kind::Float, without(GenParamState::Failed), plain, "ERROR", "ERROR");
}

void TestGenParamValue::makesTexts()
{
    QFETCH(const GenParamKind, kind);
    QFETCH(const GenParamReading, reading);
    QFETCH(const GenParamFormat, format);
    QTEST(displayText(kind, reading, format), "display");
    QTEST(editValue(kind, reading), "edit");
}

void TestGenParamValue::readsDottedAddresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("address");
    QTest::newRow("address") << "192.168.1.10" << 0xC0A8010Au;
    QTest::newRow("a fifth part pushes the first out") << "1.2.3.4.5" << 0x02030405u;
    QTest::newRow("empty parts count as 0") << "1..3." << 0x01000300u;
    QTest::newRow("no number counts as 0") << "x.1" << 1u;
    QTest::newRow("a part of any size") << "1.300" << 0x0000012Cu;
    QTest::newRow("empty") << "" << 0u;
}

void TestGenParamValue::readsDottedAddresses()
{
    QFETCH(const QString, text);
    QTEST(ipv4FromText(text), "address");
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
