#include "cameradescription.h"
#include "literal.h"
#include "sparsememory.h"
#include "testmain.h"

#include <QtTest>

#include <array>
#include <cstdint>

using ZetoAravis::CameraDescription;

namespace {

std::string inDescription(const std::string& nodes)
{
    return "<RegisterDescription ModelName=\"M\">" + nodes + "</RegisterDescription>";
}

/// A chain of integers N0 -> N1 -> ..., each the value of the one before.
std::string chain(int length)
{
    std::string nodes;
    for (int i = 0; i < length; ++i)
        nodes += "<Integer Name=\"N" + std::to_string(i) + "\"><pValue>N" + std::to_string(i + 1) +
                 "</pValue></Integer>";
    return nodes;
}

} // namespace

class TestCameraDescription : public QObject
{
    Q_OBJECT

private slots:
    void refusesWhatIsNoDescription_data();
    void refusesWhatIsNoDescription();
    void mendsBrokenDescriptions_data();
    void mendsBrokenDescriptions();
    void readsEveryEncoding();
    void readsLiterals_data();
    void readsLiterals();
    void memoryKeepsWhatLiesAcrossPages();
    void memoryEndsBeforeTheLastAddress();
};

void TestCameraDescription::refusesWhatIsNoDescription_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("nothing") << QByteArray() << QByteArray("line");
    QTest::newRow("text") << QByteArray("hello") << QByteArray("line 1");
    QTest::newRow("text before the prolog")
        << QByteArray("x<?xml version=\"1.0\"?><RegisterDescription/>") << QByteArray("line 1");
    QTest::newRow("cut off") << QByteArray("<RegisterDescription>\n<Integer Name=\"A\">")
                             << QByteArray("line 2");
    QTest::newRow("another document") << QByteArray("<html><body/></html>") << QByteArray("<html>");
    QTest::newRow("binary") << QByteArray("\x7f\x45\x4c\x46\0\0\x01", 7) << QByteArray("line 1");
}

void TestCameraDescription::refusesWhatIsNoDescription()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, reason);
    try {
        const CameraDescription description({bytes.constData(), std::size_t(bytes.size())});
        QFAIL("was accepted");
    } catch (const std::runtime_error& error) {
        QVERIFY2(QByteArray(error.what()).contains(reason), error.what());
    }
}

void TestCameraDescription::mendsBrokenDescriptions_data()
{
    QTest::addColumn<QByteArray>("nodes");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("problem");
    QTest::newRow("sound") << QByteArray("<Group><Integer Name='A'/></Group>") << 1 << QByteArray();
    QTest::newRow("unknown nodes are passed over")
        << QByteArray("<Gadget Name='A'/><Float Name='B'/>") << 1 << QByteArray();
    QTest::newRow("no name") << QByteArray("<Integer/>") << 0 << QByteArray("without a name");
    QTest::newRow("one name twice") << QByteArray("<Integer Name='A'/><Float Name='A'/>") << 1
                                    << QByteArray("A stated twice");
    QTest::newRow("its own value") << QByteArray("<Integer Name='A'><pValue>A</pValue></Integer>") << 1
                                   << QByteArray("A: pValue");
    QTest::newRow("formulas of each other")
        << QByteArray("<IntSwissKnife Name='A'><pVariable Name='X'>B</pVariable></IntSwissKnife>"
                      "<IntSwissKnife Name='B'><pVariable Name='X'>A</pVariable></IntSwissKnife>")
        << 2 << QByteArray("B: pVariable");
    QTest::newRow("an address from its own value")
        << QByteArray("<IntReg Name='A'><pPort>P</pPort><IntSwissKnife><pVariable "
                      "Name='X'>A</pVariable></IntSwissKnife></IntReg>")
        << 1 << QByteArray("A: pVariable");
    QTest::newRow("a register without a port")
        << QByteArray("<IntReg Name='A'><Length>4</Length></IntReg>") << 1 << QByteArray("A has no port");
    for (const char* length : {"0", "-4", "9", "0x7FFFFFFFFFFFFFFF"})
        QTest::addRow("an integer of %s bytes", length)
            << "<IntReg Name='A'><Length>" + QByteArray(length) + "</Length><pPort>P</pPort></IntReg>" << 1
            << "A cannot have the length " + QByteArray(length);
    QTest::newRow("a text of 2 GiB")
        << QByteArray("<StringReg Name='A'><Length>0x7FFFFFFF</Length><pPort>P</pPort></StringReg>") << 1
        << QByteArray("A cannot have the length");
    QTest::newRow("variables that are not supported")
        << QByteArray("<SwissKnife Name='A'><pVariable Name='X.Max'>B</pVariable></SwissKnife>") << 1
        << QByteArray("X.Max");
    QTest::newRow("a limit on itself is no circle")
        << QByteArray("<Integer Name='A'><Value>1</Value><pMax>A</pMax></Integer>") << 1 << QByteArray();
    QTest::newRow("a long chain") << QByteArray::fromStdString(chain(100)) << 100 << QByteArray();
    QTest::newRow("an endless chain")
        << QByteArray::fromStdString(chain(20000)) << 20000 << QByteArray("pValue");
}

void TestCameraDescription::mendsBrokenDescriptions()
{
    QFETCH(QByteArray, nodes);
    QFETCH(int, count);
    QFETCH(QByteArray, problem);
    const CameraDescription description(inDescription(nodes.toStdString()));
    QCOMPARE(int(description.nodes().size()), count);
    QCOMPARE(description.problems().empty(), problem.isEmpty());
    if (!problem.isEmpty())
        QVERIFY2(QByteArray::fromStdString(description.problems().front()).contains(problem),
                 description.problems().front().c_str());
}

void TestCameraDescription::readsEveryEncoding()
{
    const CameraDescription description("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                                        "<RegisterDescription VendorName=\"M\xfcller\"/>");
    QCOMPARE(QString::fromStdString(description.root().attribute("VendorName")),
             QStringLiteral("M\u00fcller"));
}

void TestCameraDescription::readsLiterals_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("integer");
    QTest::addColumn<double>("real");
    QTest::newRow("decimal") << QByteArray("-12") << qint64(-12) << -12.0;
    QTest::newRow("with a plus") << QByteArray("+3") << qint64(3) << 3.0;
    QTest::newRow("hexadecimal") << QByteArray("0xfF") << qint64(255) << 255.0;
    QTest::newRow("all bits") << QByteArray("0xFFFFFFFFFFFFFFFF") << qint64(-1) << -1.0;
    QTest::newRow("above the signed range")
        << QByteArray("18446744073709551615") << qint64(-1) << 18446744073709551615.0;
    QTest::newRow("lowest") << QByteArray("-9223372036854775808") << qint64(INT64_MIN)
                            << -9223372036854775808.0;
    QTest::newRow("fraction") << QByteArray("1.5E-3") << qint64(0) << 0.0015;
    QTest::newRow("infinite") << QByteArray("-INF") << qint64(0) << -std::numeric_limits<double>::infinity();
    QTest::newRow("nothing") << QByteArray() << qint64(0) << 0.0;
    QTest::newRow("a word") << QByteArray("12px") << qint64(0) << 0.0;
}

void TestCameraDescription::readsLiterals()
{
    QFETCH(QByteArray, text);
    QTEST(qint64(ZetoAravis::integerLiteral(text.constData())), "integer");
    QTEST(ZetoAravis::realLiteral(text.constData()), "real");
}

void TestCameraDescription::memoryKeepsWhatLiesAcrossPages()
{
    ZetoAravis::SparseMemory memory;
    const std::uint64_t address = (std::uint64_t(1) << 40) + 4094;
    const std::array<std::uint8_t, 4> written{1, 2, 3, 4};
    std::array<std::uint8_t, 6> read{9, 9, 9, 9, 9, 9};
    QVERIFY(memory.write(address, written.data(), written.size()));
    QVERIFY(memory.read(address - 1, read.data(), read.size()));
    QCOMPARE(read, (std::array<std::uint8_t, 6>{0, 1, 2, 3, 4, 0}));
}

void TestCameraDescription::memoryEndsBeforeTheLastAddress()
{
    ZetoAravis::SparseMemory memory;
    std::array<std::uint8_t, 2> bytes{1, 2};
    QVERIFY(memory.write(INT64_MAX - 2, bytes.data(), 2));
    QVERIFY(!memory.write(INT64_MAX - 1, bytes.data(), 2));
    QVERIFY(!memory.read(UINT64_MAX, bytes.data(), 2));
}

ZETO_TEST_MAIN(TestCameraDescription)
#include "tst_cameradescription.moc"
