#include "gvcp.h"

#include "testmain.h"

#include <QtTest>

using namespace ZetoAravis;

namespace {

QByteArray toBytes(const Gvcp::Datagram& datagram)
{
    return QByteArray(reinterpret_cast<const char*>(datagram.data()), int(datagram.size())).toHex();
}

Gvcp::Datagram fromBytes(const QByteArray& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// The answer of a camera to search number 7.
QByteArray discoveryBytes()
{
    QByteArray bytes = QByteArray::fromHex("0000000300f80007") + QByteArray(0xF8, 0);
    const auto put = [&](int offset, const QByteArray& part) {
        bytes.replace(8 + offset, part.size(), part);
    };
    put(0x0A, QByteArray::fromHex("020304050607"));
    put(0x24, QByteArray::fromHex("c0a80a10"));
    put(0x34, QByteArray::fromHex("ffffff00"));
    put(0x44, QByteArray::fromHex("c0a80a01"));
    put(0x48, "Maker");
    put(0x68, QByteArray(32, 'm'));
    put(0x88, "1.\x01"
              "2");
    put(0xD8, "S\xE9riel");
    put(0xE8, "Ger\xC3\xA4t");
    return bytes;
}

} // namespace

/// The datagrams, byte by byte as GigE Vision has them.
class TestGvcp : public QObject
{
    Q_OBJECT

private slots:
    void writes_commands();
    void reads_discovery_answers();
    void passes_over_other_datagrams_data();
    void passes_over_other_datagrams();
    void reads_register_answers_data();
    void reads_register_answers();
};

void TestGvcp::writes_commands()
{
    QCOMPARE(toBytes(Gvcp::discoveryCommand(7)), QByteArray("4201000200000007"));
    QCOMPARE(toBytes(Gvcp::readRegisterCommand(0x1234, 0xA00)), QByteArray("420100800004123400000a00"));
    QCOMPARE(toBytes(Gvcp::forceAddressCommand(9, 0x020304050607, {0xC0A80A10, 0xFFFFFF00, 0xC0A80A01})),
             QByteArray("4201000400380009"
                        "0000020304050607"
                        "000000000000000000000000c0a80a10"
                        "000000000000000000000000ffffff00"
                        "000000000000000000000000c0a80a01"));
}

void TestGvcp::reads_discovery_answers()
{
    const auto answer = Gvcp::discoveryAnswer(fromBytes(discoveryBytes()), 7);
    QVERIFY(answer);
    QCOMPARE(answer->mac, std::uint64_t(0x020304050607));
    QCOMPARE(answer->address.ip, 0xC0A80A10);
    QCOMPARE(answer->address.mask, 0xFFFFFF00);
    QCOMPARE(answer->address.gateway, 0xC0A80A01);
    QCOMPARE(answer->vendor, std::string("Maker"));
    QCOMPARE(answer->model, std::string(32, 'm'));
    QCOMPARE(answer->version, std::string("1.2"));
    QCOMPARE(answer->serialNumber, std::string("S\xEF\xBF\xBDriel"));
    QCOMPARE(answer->userName, std::string("Ger\xC3\xA4t"));
}

void TestGvcp::passes_over_other_datagrams_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = discoveryBytes();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("header only") << good.left(8);
    QTest::newRow("short") << good.left(good.size() - 1);
    QTest::newRow("short and says so") << QByteArray(good.left(20)).replace(4, 2, QByteArray("\0\x0c", 2));
    QTest::newRow("another id") << QByteArray(good).replace(6, 2, "\1\7");
    QTest::newRow("another command") << QByteArray(good).replace(2, 2, QByteArray("\0\x81", 2));
    QTest::newRow("an error") << QByteArray(good).replace(0, 2, "\x80\6");
}

void TestGvcp::passes_over_other_datagrams()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!Gvcp::discoveryAnswer(fromBytes(bytes), 7));
}

void TestGvcp::reads_register_answers_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<bool>("isAnswer");
    QTest::addColumn<int>("status");
    QTest::addColumn<quint32>("value");
    QTest::newRow("value") << QByteArray("000000810004000900000002") << true << 0 << 2u;
    QTest::newRow("refused") << QByteArray("8006008100000009") << true << 0x8006 << 0u;
    QTest::newRow("refused with a value") << QByteArray("800600810004000900000000") << true << 0x8006 << 0u;
    QTest::newRow("no value") << QByteArray("0000008100000009") << false << 0 << 0u;
    QTest::newRow("another id") << QByteArray("000000810004000800000002") << false << 0 << 0u;
}

void TestGvcp::reads_register_answers()
{
    QFETCH(QByteArray, hex);
    const auto answer = Gvcp::registerAnswer(fromBytes(QByteArray::fromHex(hex)), 9);
    QTEST(answer.has_value(), "isAnswer");
    if (answer) {
        QTEST(int(answer->status), "status");
        QTEST(quint32(answer->value), "value");
    }
}

ZETO_TEST_MAIN(TestGvcp)
#include "tst_gvcp.moc"
