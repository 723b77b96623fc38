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
    void refusesWhatIsNoDescription();
    void mendsBrokenDescriptions_data();
    void mendsBrokenDescriptions();
    void readsEveryEncoding();
    void readsLiterals();
    void memoryKeepsWhatLiesAcrossPages();
};

void TestCameraDescription::refusesWhatIsNoDescription()
{
    const std::pair<std::string, const char*> refused[] = {
        {"", "line"},
        {"hello", "line 1"},
        {"x<?xml version=\"1.0\"?><RegisterDescription/>", "line 1"},
        {"<RegisterDescription>\n<Integer Name=\"A\">", "line 2"},
        {"<html><body/></html>", "<html>"},
        {std::string("\x7f\x45\x4c\x46\0\0\x01", 7), "line 1"}};
    for (const auto& [bytes, reason] : refused) {
        try {
            const CameraDescription description(bytes);
            QFAIL(bytes.c_str());
        } catch (const std::runtime_error& error) {
            QVERIFY2(QByteArray(error.what()).contains(reason), error.what());
        }
    }
}

void TestCameraDescription::mendsBrokenDescriptions_data()
{
    QTest::addColumn<QByteArray>("nodes");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("problem");
    const auto row = [](const char* name, const QByteArray& nodes, int count, const QByteArray& problem) {
        QTest::newRow(name) << nodes << count << problem;
    };
    row("sound", "<Group><Integer Name='A'/></Group>", 1, "");
    row("unknown nodes are passed over", "<Gadget Name='A'/><Float Name='B'/>", 1, "");
    row("no name", "<Integer/>", 0, "without a name");
    row("one name twice", "<Integer Name='A'/><Float Name='A'/>", 1, "A stated twice");
    row("its own value", "<Integer Name='A'><pValue>A</pValue></Integer>", 1, "A: pValue");
    row("formulas of each other",
        "<IntSwissKnife Name='A'><pVariable Name='X'>B</pVariable></IntSwissKnife>"
        "<IntSwissKnife Name='B'><pVariable Name='X'>A</pVariable></IntSwissKnife>",
        2, "B: pVariable");
    row("an address from its own value",
        "<IntReg Name='A'><pPort>P</pPort><IntSwissKnife><pVariable "
        "Name='X'>A</pVariable></IntSwissKnife></IntReg>",
        1, "A: pVariable");
    row("a register without a port", "<IntReg Name='A'><Length>4</Length></IntReg>", 1, "A has no port");
    for (const char* length : {"0", "-4", "9", "0x7FFFFFFFFFFFFFFF"})
        row(length, "<IntReg Name='A'><Length>" + QByteArray(length) + "</Length><pPort>P</pPort></IntReg>",
            1, "A cannot have the length " + QByteArray(length));
    row("a text of 2 GiB", "<StringReg Name='A'><Length>0x7FFFFFFF</Length><pPort>P</pPort></StringReg>", 1,
        "A cannot have the length");
    row("variables that are not supported",
        "<SwissKnife Name='A'><pVariable Name='X.Max'>B</pVariable></SwissKnife>", 1, "X.Max");
    row("a limit on itself is no circle", "<Integer Name='A'><Value>1</Value><pMax>A</pMax></Integer>", 1,
        "");
    row("a long chain", QByteArray::fromStdString(chain(100)), 100, "");
    row("an endless chain", QByteArray::fromStdString(chain(20000)), 20000, "pValue");
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

void TestCameraDescription::readsLiterals()
{
    struct Literal
    {
        const char* text;
        std::int64_t integer;
        double real;
    };
    const Literal literals[] = {{"-12", -12, -12},
                                {"+3", 3, 3},
                                {"0xfF", 255, 255},
                                {"0xFFFFFFFFFFFFFFFF", -1, -1},
                                {"18446744073709551615", -1, 18446744073709551615.0},
                                {"-9223372036854775808", INT64_MIN, -9223372036854775808.0},
                                {"1.5E-3", 0, 0.0015},
                                {"-INF", 0, -std::numeric_limits<double>::infinity()},
                                {"", 0, 0},
                                {"12px", 0, 0}};
    for (const Literal& literal : literals) {
        QVERIFY2(ZetoAravis::integerLiteral(literal.text) == literal.integer, literal.text);
        QVERIFY2(ZetoAravis::realLiteral(literal.text) == literal.real, literal.text);
    }
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
    QVERIFY(memory.write(INT64_MAX - 4, written.data(), written.size()));
    QVERIFY(!memory.write(INT64_MAX - 3, written.data(), written.size())); // the last address is none
    QVERIFY(!memory.read(UINT64_MAX, read.data(), 2));
}

ZETO_TEST_MAIN(TestCameraDescription)
#include "tst_cameradescription.moc"
