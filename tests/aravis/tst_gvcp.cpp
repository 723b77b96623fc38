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
    void passes_over_other_datagrams();
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

void TestGvcp::passes_over_other_datagrams()
{
    const QByteArray good = discoveryBytes();
    const QByteArray others[] = {
        {},
        good.left(8), // the header only
        good.left(good.size() - 1),
        QByteArray(good.left(20)).replace(4, 2, QByteArray("\0\x0c", 2)), // short, and says so
        QByteArray(good).replace(6, 2, "\1\7"),                           // another id
        QByteArray(good).replace(2, 2, QByteArray("\0\x81", 2)),          // another command
        QByteArray(good).replace(0, 2, "\x80\6"),                         // an error
    };
    for (const QByteArray& bytes : others)
        QVERIFY2(!Gvcp::discoveryAnswer(fromBytes(bytes), 7), bytes.toHex().constData());
}

void TestGvcp::reads_register_answers()
{
    const auto read = [](const QByteArray& hex) -> QByteArray {
        const auto answer = Gvcp::registerAnswer(fromBytes(QByteArray::fromHex(hex)), 9);
        return answer ? QByteArray::number(answer->status, 16) + ' ' + QByteArray::number(answer->value)
                      : QByteArray("none");
    };
    QCOMPARE(read("000000810004000900000002"), QByteArray("0 2"));
    QCOMPARE(read("8006008100000009"), QByteArray("8006 0"));
    QCOMPARE(read("800600810004000900000000"), QByteArray("8006 0"));
    QCOMPARE(read("0000008100000009"), QByteArray("none"));         // no value
    QCOMPARE(read("000000810004000800000002"), QByteArray("none")); // another id
}

ZETO_TEST_MAIN(TestGvcp)
#include "tst_gvcp.moc"
