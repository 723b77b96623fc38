#include "descriptionnodemap.h"
#include "exceptionname.h"
#include "featurestate.h"
#include "reportrecorder.h"
#include "testmain.h"
#include "writefeatures.h"

#include <GenApi/EnumClasses.h>

#include <QtTest>

#include <atomic>
#include <thread>

using ZetoAravis::DescriptionNodeMap;
using namespace GenApi;

namespace {

using CameraPointer = std::unique_ptr<DescriptionNodeMap>;

CameraPointer openCorners()
{
    return DescriptionNodeMap::open(ZETO_CORNERS_XML, DescriptionNodeMap::InitialMemory::Zero);
}

INode& nodeOf(const CameraPointer& camera, const QByteArray& name)
{
    INode* node = camera->nodeMap().GetNode(name.constData());
    if (!node)
        qFatal("no node %s", name.constData());
    return *node;
}

QByteArray read(const CameraPointer& camera, const QByteArray& name)
{
    return CValuePtr(&nodeOf(camera, name))->ToString().c_str();
}

/// What was reported, each once and in the order of the alphabet.
QByteArray reportedTo(ReportRecorder& recorder)
{
    QStringList names = recorder.take();
    names.sort();
    names.removeDuplicates();
    return names.join(QLatin1Char(' ')).toLatin1();
}

/// Adds a row of texts to a table with as many columns of type QByteArray.
template <class... Texts>
void row(const char* name, Texts... texts)
{
    QTestData& data = QTest::newRow(name);
    (void)(data << ... << QByteArray(texts));
}

void textColumns(std::initializer_list<const char*> names)
{
    for (const char* name : names)
        QTest::addColumn<QByteArray>(name);
}

} // namespace

class TestDescriptionNodeMap : public QObject
{
    Q_OBJECT

private slots:
    void accessModes_data();
    void accessModes();
    void limits();
    void values_data();
    void values();
    void refusedWrites_data();
    void refusedWrites();
    void reports_data();
    void reports();
    void failingReads();
    void lengthsThatNoRegisterHas();
    void entries();
    void commands();
    void pollingAndCaching();
    void whatNodesSayAboutThemselves();
    void initialMemory();
    void openingFails();
    void manyThreads();
};

void TestDescriptionNodeMap::accessModes_data()
{
    textColumns({"settings", "expected"}); // "feature=mode ..."
    row("memory", "", "OverRW=RW OverRO=RO OverWO=WO RegDefault=RO Unlimited=RW");
    row("imposed", "", "ReadOnlyOverRW=RO WriteOnlyOverRO=NA ReadOnlyOverWO=NA");
    row("computed", "", "Knife=RO ConverterRO=RO Doubled=RW Root=RO");
    row("commands", "", "CommandRW=WO CommandWO=WO CommandRO=NA");
    row("dangling", "",
        "DanglingValue=NA DanglingAvailable=NA DanglingImplemented=NI DanglingLocked=RO NoValue=NA");
    row("circles", "", "CircleA=NA CircleB=NA OwnCondition=RW");
    row("chunk and event memory", "", "ChunkValue=NA EventValue=NA");
    row("conditions far below", "",
        "Conditional=RW ConditionalFloat=RW ConditionalChoice=RW ConditionalCommand=WO LockedWriteOnly=WO "
        "ConditionalCategory=RO");
    row("locked", "LockedSwitch=1",
        "Conditional=RO ConditionalFloat=RO ConditionalChoice=RO ConditionalCommand=NA LockedWriteOnly=NA");
    row("NA before locked", "LockedSwitch=1 AvailableSwitch=0",
        "Conditional=NA ConditionalFloat=NA ConditionalCategory=NA");
    row("NI before NA", "AvailableSwitch=0 ImplementedSwitch=0",
        "Conditional=NI ConditionalChoice=NI ConditionalCommand=NI");
    row("condition off again", "AvailableSwitch=0 AvailableSwitch=1", "Conditional=RW");
    row("boolean condition off", "OddBoolean=0", "IfOddBoolean=NA");
    row("boolean condition on", "OddBoolean=1", "IfOddBoolean=RW");
    row("indexed: memory", "Index=0", "Indexed=RW");
    row("indexed: read only", "Index=1", "Indexed=RO");
    row("indexed: constant", "Index=2", "Indexed=RW");
    row("indexed: default", "Index=9 AvailableSwitch=0", "Indexed=NA");
}

void TestDescriptionNodeMap::accessModes()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, expected);
    const CameraPointer camera = openCorners();
    writeFeatures(camera->nodeMap(), settings);
    QByteArrayList found;
    for (const QByteArray& each : expected.split(' ')) {
        const QByteArray name = each.left(each.indexOf('='));
        found << name + '=' + QByteArray::fromStdString(modeOf(nodeOf(camera, name)));
    }
    QCOMPARE(found.join(' '), expected);
}

void TestDescriptionNodeMap::limits()
{
    const std::pair<const char*, const char*> expected[] = {
        {"Unsigned1", "0 255 1"},
        {"Signed1", "-128 127 1"},
        {"Unsigned2", "0 65535 1"},
        {"Signed4", "-2147483648 2147483647 1"},
        {"Unsigned8", "0 9223372036854775807 1"},
        {"Signed8", "-9223372036854775808 9223372036854775807 1"},
        {"Field4", "0 15 1"},
        {"SignedField4", "-8 7 1"},
        {"SignedField48", "-140737488355328 140737488355327 1"},
        {"Field64", "0 9223372036854775807 1"},
        {"FieldBit", "0 1 1"},
        {"StructLow", "0 7 1"},
        {"StructFlag", "0 1 1"},
        {"Knife", "-9223372036854775808 9223372036854775807 1"},
        {"Unlimited", "-9223372036854775808 9223372036854775807 1"},
        {"Literal", "-4 20 4"},
        {"Inherited", "-4 20 4"},
        {"Narrowed", "-4 12 4"},
        {"Computed", "0 100 5"},
        {"OverBoolean", "0 1 1"},
        {"OverFloat", "-2 1000 1"},
        {"Doubled", "-8 40 1"},
        {"LimitedFloat", "-1.5 1000 0.5"},
        {"InheritedFloat", "-1.5 1000 0.5"},
        {"OverInteger", "-4 20 4"},
        {"UnlimitedFloat", "-1.7976931348623157e+308 1.7976931348623157e+308 -"},
        {"Single", "-3.4028234663852886e+38 3.4028234663852886e+38 -"},
        {"Double", "-1.7976931348623157e+308 1.7976931348623157e+308 -"},
        {"RealKnife", "-1.7976931348623157e+308 1.7976931348623157e+308 -"},
        {"Reciprocal", "2 100 -"},
    };
    const CameraPointer camera = openCorners();
    for (const auto& [feature, limits] : expected)
        QCOMPARE(feature + (' ' + limitsOf(nodeOf(camera, feature))), feature + (' ' + std::string(limits)));
}

void TestDescriptionNodeMap::values_data()
{
    textColumns({"settings", "feature", "text"});
    row("representation of the value node", "", "Hex", "0xFF");
    row("fixed notation", "", "Fixed", "1234.57");
    row("default precision", "", "Plain", "1.23457e+06");
    row("UTF-8", "", "Text",
        "Gr\xc3\xbc\xc3\x9f"
        "e & <b>");
    row("booleans in formulas", "OddBoolean=1", "FromBooleans", "11");
    row("constant boolean in formulas", "LiteralBoolean=0", "FromBooleans", "0");
    row("enumerations, constants, expressions in formulas", "Choice=A", "FromEnumeration", "202");
    row("limits and entries in formulas", "FenceTop=31", "FromLimits", "303125");
    row("converter", "Doubled=-8", "Literal", "-4");
    row("reciprocal", "Reciprocal=50", "Reciprocal", "50");
    row("negative field", "SignedField4=-3", "SignedField4", "-3");
    row("fields of one register keep apart", "LowByte=1 HighByte=2 LowByte=3", "WholeWord", "515");
    row("single precision is read back", "Single=0.1", "Single", "0.1");
    row("text register", "Short=12345678", "Short", "12345678");
    row("one instance of two", "Selector=Second Selected=5 Selector=First", "Selected", "0");
    row("the other instance", "Selector=Second Selected=5 Selector=First Selector=Second", "Selected", "5");
    row("memory seen from elsewhere", "Selector=Second Selected=5", "SecondInstance", "5");
    row("indexed constant", "Index=2", "Indexed", "77");
    row("first copy", "Copied=7", "CopyA", "7");
    row("second copy", "Copied=7", "CopyB", "7");
    row("bytes", "Bytes=0x01A2FF00", "Bytes", "0x01A2FF00");
}

void TestDescriptionNodeMap::values()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, feature);
    const CameraPointer camera = openCorners();
    writeFeatures(camera->nodeMap(), settings);
    QTEST(read(camera, feature), "text");
}

void TestDescriptionNodeMap::refusedWrites_data()
{
    textColumns({"settings", "feature", "value", "exception"});
    row("accepted", "", "Literal", "12", "");
    row("off the increment", "", "Literal", "10", "OutOfRange");
    row("off the computed increment", "LimitLow=1", "Computed", "5", "OutOfRange");
    row("above", "", "Narrowed", "16", "OutOfRange");
    row("below", "", "LimitedFloat", "-2", "OutOfRange");
    row("beyond the field", "", "SignedField4", "8", "OutOfRange");
    row("one of the valid values", "", "ValidSet", "4", "");
    row("none of the valid values", "", "ValidSet", "3", "OutOfRange");
    row("read only", "", "OverRO", "1", "Access");
    row("locked", "LockedSwitch=1", "Conditional", "1", "Access");
    row("not available", "AvailableSwitch=0", "Conditional", "1", "Access");
    row("not implemented", "ImplementedSwitch=0", "ConditionalFloat", "1", "Access");
    row("entry not available", "AvailableSwitch=0", "Choice", "C", "Access");
    row("entry not implemented", "ImplementedSwitch=0", "Choice", "D", "Access");
    row("entry available again", "AvailableSwitch=0 AvailableSwitch=1", "Choice", "C", "");
    row("unknown entry", "", "Choice", "X", "InvalidArgument");
    row("no number", "", "Literal", "x", "InvalidArgument");
    row("text too long", "", "Short", "123456789", "InvalidArgument");
    row("too few bytes", "", "Bytes", "0x010203", "InvalidArgument");
    row("no such memory", "", "Beyond", "1", "Runtime");
}

void TestDescriptionNodeMap::refusedWrites()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, feature);
    QFETCH(QByteArray, value);
    const CameraPointer camera = openCorners();
    writeFeatures(camera->nodeMap(), settings);
    camera->nodeMap().InvalidateNodes();
    const std::string before = stateOf(nodeOf(camera, feature));
    const QByteArray exception =
        exceptionName([&] { writeFeatures(camera->nodeMap(), feature + '=' + value); }).toLatin1();
    QTEST(exception, "exception");
    QCOMPARE(stateOf(nodeOf(camera, feature)) == before, !exception.isEmpty());
}

void TestDescriptionNodeMap::reports_data()
{
    textColumns({"value", "reported"});
    row("Unlimited", "1", "Unlimited");
    row("LimitHigh", "200", "Computed LimitHigh");
    row("Inherited", "12", "Doubled Inherited Literal Narrowed OverInteger");
    row("Doubled", "8", "Doubled Inherited Literal Narrowed OverInteger");
    row("LockedSwitch", "1",
        "Conditional ConditionalChoice ConditionalCommand ConditionalFloat Indexed LockedSwitch "
        "LockedWriteOnly "
        "OverUncached");
    row("AvailableSwitch", "0",
        "AvailableSwitch Choice Conditional ConditionalChoice ConditionalCommand ConditionalFloat "
        "FromEnumeration "
        "Indexed");
    row("Choice", "A", "Choice FromEnumeration");
    row("OddBoolean", "1", "FromBooleans IfOddBoolean OddBoolean OverBoolean");
    row("Selector", "Second", "Selected Selector");
    row("Selected", "3", "Selected");
    row("SecondInstance", "3", "SecondInstance");
    row("LowByte", "3", "LowByte WholeWord");
    row("WholeWord", "3", "HighByte LowByte WholeWord");
    row("Copied", "3", "Copied CopyA CopyB");
    row("Index", "1", "Index Indexed");
}

void TestDescriptionNodeMap::reports()
{
    QFETCH(QByteArray, value);
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    writeFeatures(camera->nodeMap(), QTest::currentDataTag() + ('=' + value));
    QTEST(reportedTo(recorder), "reported");
}

void TestDescriptionNodeMap::failingReads()
{
    const CameraPointer camera = openCorners();
    QCOMPARE(exceptionName([&] { read(camera, "Beyond"); }), QStringLiteral("Runtime"));
    QCOMPARE(exceptionName([&] { read(camera, "NoEntry"); }), QStringLiteral("Runtime"));
    QCOMPARE(exceptionName([&] { read(camera, "OverWO"); }), QStringLiteral("Access"));
    QVERIFY(!CEnumerationPtr(&nodeOf(camera, "NoEntry"))->GetCurrentEntry());
}

/// The camera tells the length, and the library takes what memory it asks for.
void TestDescriptionNodeMap::lengthsThatNoRegisterHas()
{
    for (const QByteArray length : {"-4", "0", "0x7FFFFFFFFFFFFFFF"}) {
        for (const QByteArray kind : {"IntReg", "FloatReg", "StringReg", "Register"}) {
            const QByteArray xml = "<RegisterDescription><Port Name='P'/><Integer Name='L'><Value>" + length +
                                   "</Value></Integer><" + kind + " Name='R'><Address>0</Address>" +
                                   "<pLength>L</pLength><pPort>P</pPort></" + kind +
                                   "></RegisterDescription>";
            const CameraPointer camera = DescriptionNodeMap::fromXml(xml.toStdString());
            exceptionName([&] { read(camera, "R"); });
            QCOMPARE(modeOf(nodeOf(camera, "R")), std::string("RO"));
        }
    }
}

void TestDescriptionNodeMap::entries()
{
    const CameraPointer camera = openCorners();
    writeFeatures(camera->nodeMap(), "AvailableSwitch=0 ImplementedSwitch=0");
    NodeList_t list;
    CEnumerationPtr(&nodeOf(camera, "Choice"))->GetEntries(list);
    QByteArrayList found;
    for (INode* node : list) {
        const CEnumEntryPtr entry(node);
        found << QByteArray(entry->GetSymbolic().c_str()) + ':' + node->GetDisplayName().c_str() + ':' +
                     QByteArray::number(qint64(entry->GetValue())) + ':' +
                     QByteArray::number(entry->GetNumericValue()) + ':' +
                     (entry->IsSelfClearing() ? "clears" : "") + ':' + modeOf(*node).c_str() + ':' +
                     EVisibilityClass::ToString(node->GetVisibility()).c_str();
    }
    QCOMPARE(found.join(' '), QByteArray("B:The B:2:2::RO:Beginner A:A:1:0.5::RO:Beginner "
                                         "C:C:3:3:clears:NA:Guru D:D:4:4::NI:Beginner"));
}

void TestDescriptionNodeMap::commands()
{
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    CCommandPtr(&nodeOf(camera, "Reset"))->Execute();
    QCOMPARE(reportedTo(recorder), QByteArray("Invalidated Reset"));
    for (const char* name : {"CommandRW", "CommandWO", "Reset"}) {
        const CCommandPtr command(&nodeOf(camera, name));
        command->Execute();
        QVERIFY2(command->IsDone(), name);
    }
    CCommandPtr(&nodeOf(camera, "CountUp"))->Execute();
    CCommandPtr(&nodeOf(camera, "CountUp"))->Execute();
    QCOMPARE(read(camera, "Counter"), QByteArray("2"));
    QCOMPARE(exceptionName([&] { CCommandPtr(&nodeOf(camera, "CommandRO"))->Execute(); }),
             QStringLiteral("Access"));
}

void TestDescriptionNodeMap::pollingAndCaching()
{
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    camera->nodeMap().Poll(300);
    QCOMPARE(reportedTo(recorder), QByteArray());
    camera->nodeMap().Poll(300);
    QCOMPARE(reportedTo(recorder), QByteArray("OverPolled"));

    QCOMPARE(nodeOf(camera, "OverUncached").GetCachingMode(), NoCache);
    QCOMPARE(nodeOf(camera, "OverRW").GetCachingMode(), WriteThrough);
    QCOMPARE(nodeOf(camera, "Single").GetCachingMode(), WriteAround);
    QCOMPARE(nodeOf(camera, "OverUncached").IsAccessModeCacheable(), Yes);
    QCOMPARE(nodeOf(camera, "IfUncached").IsAccessModeCacheable(), No);
}

void TestDescriptionNodeMap::whatNodesSayAboutThemselves()
{
    const CameraPointer camera = openCorners();
    const INode& full = nodeOf(camera, "Documented");
    const INode& bare = nodeOf(camera, "Undocumented");
    const auto digest = [](const INode& node) {
        return QByteArrayList{node.GetToolTip().c_str(),
                              node.GetDescription().c_str(),
                              node.GetDisplayName().c_str(),
                              EVisibilityClass::ToString(node.GetVisibility()).c_str(),
                              node.GetDocuURL().c_str(),
                              node.GetEventID().c_str(),
                              ENameSpaceClass::ToString(node.GetNameSpace()).c_str(),
                              node.IsDeprecated() ? "deprecated" : "",
                              node.IsStreamable() ? "streamable" : "",
                              node.GetAlias() ? node.GetAlias()->GetName().c_str() : ""}
            .join('|');
    };
    QCOMPARE(
        digest(full),
        QByteArray("tip|long|A name|Guru|https://www.example.org/|9002|Standard|deprecated|streamable|Text"));
    QCOMPARE(digest(bare), QByteArray("||Undocumented|Beginner|||Custom|||"));
    QCOMPARE(CIntegerPtr(&nodeOf(camera, "Hex"))->GetUnit().c_str(), "px");
    QCOMPARE(CRegisterPtr(&nodeOf(camera, "Bytes"))->GetAddress(), std::int64_t(0x730));
    QCOMPARE(CIntegerPtr(&nodeOf(camera, "ValidSet"))->GetListOfValidValues()[2], std::int64_t(4));
}

void TestDescriptionNodeMap::initialMemory()
{
    const auto cell = [](const char* name, int address, const char* mode) {
        return QStringLiteral("<IntReg Name='%1'><Address>%2</Address><Length>4</Length>"
                              "<AccessMode>%3</AccessMode><pPort>Device</pPort></IntReg>")
            .arg(QLatin1String(name))
            .arg(address)
            .arg(QLatin1String(mode));
    };
    const QString xml =
        QStringLiteral("<RegisterDescription ModelName='Model X'>"
                       "<Category Name='Root'><pFeature>F</pFeature><pFeature>DeviceModelName</pFeature>"
                       "<pFeature>E</pFeature></Category><Port Name='Device'/>"
                       "<Integer Name='F'><pIsImplemented>Asked</pIsImplemented><pValue>R</pValue>"
                       "<Min>8</Min><pMax>Most</pMax><pInc>Step</pInc></Integer>"
                       "<IntSwissKnife Name='Asked'><pVariable Name='X'>Inquiry</pVariable>"
                       "<Formula>(X &gt;&gt; 31) &amp; 1</Formula></IntSwissKnife>"
                       "<StringReg Name='DeviceModelName'><Address>16</Address><Length>16</Length>"
                       "<pPort>Device</pPort></StringReg>"
                       "<Enumeration Name='E'><EnumEntry Name='Three'><Value>3</Value></EnumEntry>"
                       "<pValue>R2</pValue></Enumeration>") +
        cell("Inquiry", 0, "RO") + cell("Most", 4, "RO") + cell("Step", 8, "RO") + cell("R", 12, "RW") +
        cell("R2", 32, "RW") + QStringLiteral("</RegisterDescription>");
    const CameraPointer zero =
        DescriptionNodeMap::fromXml(xml.toStdString(), DescriptionNodeMap::InitialMemory::Zero);
    QCOMPARE(stateOf(nodeOf(zero, "F")).substr(0, 2), std::string("NI"));
    const CameraPointer sensible = DescriptionNodeMap::fromXml(xml.toStdString());
    QCOMPARE(QByteArray::fromStdString(stateOf(nodeOf(sensible, "F"))), QByteArray("RW|8|8 4103 1|"));
    QCOMPARE(read(sensible, "DeviceModelName"), QByteArray("Model X"));
    QCOMPARE(read(sensible, "E"), QByteArray("Three"));
}

void TestDescriptionNodeMap::openingFails()
{
    const std::pair<QByteArray, const char*> expected[] = {
        {"no/such/file.xml", "No such file"},
        {".", "directory"},
        {QFile::encodeName(QCoreApplication::applicationFilePath()), "line 1"}};
    for (const auto& [path, reason] : expected) {
        try {
            DescriptionNodeMap::open(path.toStdString());
            QFAIL("was opened");
        } catch (const std::runtime_error& error) {
            const QByteArray text(error.what());
            QVERIFY2(text.startsWith(path + ": ") && text.contains(reason), error.what());
        }
    }
    QVERIFY_EXCEPTION_THROWN(DescriptionNodeMap::fromXml("PK\x03\x04"), std::runtime_error);
}

/// Reads, writes and polls of one node map from several threads, while others open and close theirs.
void TestDescriptionNodeMap::manyThreads()
{
    const CameraPointer camera = openCorners();
    const std::vector<INode*> features = featuresOf(camera->nodeMap());
    std::atomic<int> mistakes{0};
    const auto use = [&](const char* field, std::int64_t value) {
        const CIntegerPtr feature(&nodeOf(camera, field));
        for (int round = 0; round < 30; ++round) {
            feature->SetValue(value);
            if (feature->GetValue(false, true) != value)
                ++mistakes;
            for (INode* node : features)
                stateOf(*node);
            camera->nodeMap().Poll(100);
        }
    };
    const auto openOthers = [] {
        for (int round = 0; round < 20; ++round)
            openCorners();
    };
    std::vector<std::thread> threads;
    threads.emplace_back(use, "LowByte", 1);
    threads.emplace_back(use, "HighByte", 2);
    threads.emplace_back(openOthers);
    threads.emplace_back(openOthers);
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(mistakes.load(), 0);
    QCOMPARE(read(camera, "WholeWord"), QByteArray("513"));
}

ZETO_TEST_MAIN(TestDescriptionNodeMap)
#include "tst_descriptionnodemap.moc"
