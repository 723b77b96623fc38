#include "descriptionnodemap.h"
#include "featurestate.h"
#include "reportrecorder.h"
#include "testmain.h"

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

void write(const CameraPointer& camera, const QByteArray& name, const QByteArray& value)
{
    CValuePtr(&nodeOf(camera, name))->FromString(value.constData());
}

QByteArray read(const CameraPointer& camera, const QByteArray& name)
{
    return CValuePtr(&nodeOf(camera, name))->ToString().c_str();
}

/// "A=1 B=2": writes these values in turn.
void prepare(const CameraPointer& camera, const QByteArray& assignments)
{
    for (const QByteArray& assignment : assignments.simplified().split(' ')) {
        const int sign = assignment.indexOf('=');
        if (sign > 0)
            write(camera, assignment.left(sign), assignment.mid(sign + 1));
    }
}

QByteArray joined(const std::set<std::string>& names)
{
    QByteArrayList list;
    for (const std::string& name : names)
        list << QByteArray::fromStdString(name);
    return list.join(' ');
}

template <class Action>
QByteArray exceptionOf(Action action)
{
    try {
        action();
    } catch (const GenICam::AccessException&) {
        return "Access";
    } catch (const GenICam::OutOfRangeException&) {
        return "OutOfRange";
    } catch (const GenICam::InvalidArgumentException&) {
        return "InvalidArgument";
    } catch (const GenICam::RuntimeException&) {
        return "Runtime";
    } catch (const GenICam::GenericException& other) {
        return other.what();
    }
    return "none";
}

} // namespace

class TestDescriptionNodeMap : public QObject
{
    Q_OBJECT

private slots:
    void accessModes_data();
    void accessModes();
    void limits_data();
    void limits();
    void values_data();
    void values();
    void refusedWrites_data();
    void refusedWrites();
    void reports_data();
    void reports();
    void failingReads();
    void entries();
    void validValues();
    void selectors();
    void copies();
    void commands();
    void registers();
    void polling();
    void caching();
    void whatNodesSayAboutThemselves();
    void initialMemory();
    void openingFails_data();
    void openingFails();
    void manyThreads();
};

void TestDescriptionNodeMap::accessModes_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("expected"); // "feature=mode ..."
    QTest::newRow("memory") << QByteArray()
                            << QByteArray("OverRW=RW OverRO=RO OverWO=WO RegDefault=RO Unlimited=RW");
    QTest::newRow("imposed") << QByteArray()
                             << QByteArray("ReadOnlyOverRW=RO WriteOnlyOverRO=NA ReadOnlyOverWO=NA");
    QTest::newRow("computed") << QByteArray() << QByteArray("Knife=RO ConverterRO=RO Doubled=RW Root=RO");
    QTest::newRow("commands") << QByteArray() << QByteArray("CommandRW=WO CommandWO=WO CommandRO=NA");
    QTest::newRow("dangling") << QByteArray()
                              << QByteArray("DanglingValue=NA DanglingAvailable=NA "
                                            "DanglingImplemented=NI DanglingLocked=RO NoValue=NA");
    QTest::newRow("circles") << QByteArray() << QByteArray("CircleA=NA CircleB=NA OwnCondition=RW");
    QTest::newRow("chunk and event memory") << QByteArray() << QByteArray("ChunkValue=NA EventValue=NA");
    QTest::newRow("conditions far below")
        << QByteArray()
        << QByteArray("Conditional=RW ConditionalFloat=RW ConditionalChoice=RW ConditionalCommand=WO "
                      "LockedWriteOnly=WO ConditionalCategory=RO");
    QTest::newRow("locked") << QByteArray("LockedSwitch=1")
                            << QByteArray("Conditional=RO ConditionalFloat=RO ConditionalChoice=RO "
                                          "ConditionalCommand=NA LockedWriteOnly=NA");
    QTest::newRow("NA before locked")
        << QByteArray("LockedSwitch=1 AvailableSwitch=0")
        << QByteArray("Conditional=NA ConditionalFloat=NA ConditionalCategory=NA");
    QTest::newRow("NI before NA") << QByteArray("AvailableSwitch=0 ImplementedSwitch=0")
                                  << QByteArray("Conditional=NI ConditionalChoice=NI ConditionalCommand=NI");
    QTest::newRow("condition off again")
        << QByteArray("AvailableSwitch=0 AvailableSwitch=1") << QByteArray("Conditional=RW");
    QTest::newRow("boolean condition off") << QByteArray("OddBoolean=0") << QByteArray("IfOddBoolean=NA");
    QTest::newRow("boolean condition on") << QByteArray("OddBoolean=1") << QByteArray("IfOddBoolean=RW");
    QTest::newRow("indexed: memory") << QByteArray("Index=0") << QByteArray("Indexed=RW");
    QTest::newRow("indexed: read only") << QByteArray("Index=1") << QByteArray("Indexed=RO");
    QTest::newRow("indexed: constant") << QByteArray("Index=2") << QByteArray("Indexed=RW");
    QTest::newRow("indexed: default") << QByteArray("Index=9 AvailableSwitch=0") << QByteArray("Indexed=NA");
}

void TestDescriptionNodeMap::accessModes()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, expected);
    const CameraPointer camera = openCorners();
    prepare(camera, settings);
    QByteArrayList found;
    for (const QByteArray& each : expected.split(' ')) {
        const QByteArray name = each.left(each.indexOf('='));
        found << name + '=' + QByteArray::fromStdString(modeOf(nodeOf(camera, name)));
    }
    QCOMPARE(found.join(' '), expected);
}

void TestDescriptionNodeMap::limits_data()
{
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* feature, const char* limits) {
        QTest::newRow(feature) << QByteArray(limits);
    };
    row("Unsigned1", "0 255 1");
    row("Signed1", "-128 127 1");
    row("Unsigned2", "0 65535 1");
    row("Signed4", "-2147483648 2147483647 1");
    row("Unsigned8", "0 9223372036854775807 1");
    row("Signed8", "-9223372036854775808 9223372036854775807 1");
    row("Field4", "0 15 1");
    row("SignedField4", "-8 7 1");
    row("SignedField48", "-140737488355328 140737488355327 1");
    row("Field64", "0 9223372036854775807 1");
    row("FieldBit", "0 1 1");
    row("StructLow", "0 7 1");
    row("StructFlag", "0 1 1");
    row("Knife", "-9223372036854775808 9223372036854775807 1");
    row("Unlimited", "-9223372036854775808 9223372036854775807 1");
    row("Literal", "-4 20 4");
    row("Inherited", "-4 20 4");
    row("Narrowed", "-4 12 4");
    row("Computed", "0 100 5");
    row("OverBoolean", "0 1 1");
    row("OverFloat", "-2 1000 1");
    row("Doubled", "-8 40 1");
    row("LimitedFloat", "-1.5 1000 0.5");
    row("InheritedFloat", "-1.5 1000 0.5");
    row("OverInteger", "-4 20 4");
    row("UnlimitedFloat", "-1.7976931348623157e+308 1.7976931348623157e+308 -");
    row("Single", "-3.4028234663852886e+38 3.4028234663852886e+38 -");
    row("Double", "-1.7976931348623157e+308 1.7976931348623157e+308 -");
    row("RealKnife", "-1.7976931348623157e+308 1.7976931348623157e+308 -");
    row("Reciprocal", "2 100 -");
}

void TestDescriptionNodeMap::limits()
{
    const CameraPointer camera = openCorners();
    QCOMPARE(QByteArray::fromStdString(limitsOf(nodeOf(camera, QTest::currentDataTag()))),
             *static_cast<const QByteArray*>(QTest::qData("expected", QMetaType::QByteArray)));
}

void TestDescriptionNodeMap::values_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("representation of the value node")
        << QByteArray() << QByteArray("Hex") << QByteArray("0xFF");
    QTest::newRow("fixed notation") << QByteArray() << QByteArray("Fixed") << QByteArray("1234.57");
    QTest::newRow("default precision") << QByteArray() << QByteArray("Plain") << QByteArray("1.23457e+06");
    QTest::newRow("UTF-8") << QByteArray() << QByteArray("Text")
                           << QByteArray("Gr\xc3\xbc\xc3\x9f"
                                         "e & <b>");
    QTest::newRow("booleans in formulas")
        << QByteArray("OddBoolean=1") << QByteArray("FromBooleans") << QByteArray("11");
    QTest::newRow("constant boolean in formulas")
        << QByteArray("LiteralBoolean=0") << QByteArray("FromBooleans") << QByteArray("0");
    QTest::newRow("enumerations, constants, expressions in formulas")
        << QByteArray("Choice=A") << QByteArray("FromEnumeration") << QByteArray("202");
    QTest::newRow("limits and entries in formulas")
        << QByteArray("FenceTop=31") << QByteArray("FromLimits") << QByteArray("303125");
    QTest::newRow("converter") << QByteArray("Doubled=-8") << QByteArray("Literal") << QByteArray("-4");
    QTest::newRow("reciprocal") << QByteArray("Reciprocal=50") << QByteArray("Reciprocal")
                                << QByteArray("50");
    QTest::newRow("negative field") << QByteArray("SignedField4=-3") << QByteArray("SignedField4")
                                    << QByteArray("-3");
    QTest::newRow("fields of one register keep apart")
        << QByteArray("LowByte=1 HighByte=2 LowByte=3") << QByteArray("WholeWord") << QByteArray("515");
    QTest::newRow("single precision is read back")
        << QByteArray("Single=0.1") << QByteArray("Single") << QByteArray("0.1");
    QTest::newRow("text register") << QByteArray("Short=12345678") << QByteArray("Short")
                                   << QByteArray("12345678");
    QTest::newRow("one instance of two") << QByteArray("Selector=Second Selected=5 Selector=First")
                                         << QByteArray("Selected") << QByteArray("0");
    QTest::newRow("the other instance")
        << QByteArray("Selector=Second Selected=5 Selector=First Selector=Second") << QByteArray("Selected")
        << QByteArray("5");
    QTest::newRow("memory seen from elsewhere")
        << QByteArray("Selector=Second Selected=5") << QByteArray("SecondInstance") << QByteArray("5");
    QTest::newRow("indexed constant") << QByteArray("Index=2") << QByteArray("Indexed") << QByteArray("77");
}

void TestDescriptionNodeMap::values()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, feature);
    const CameraPointer camera = openCorners();
    prepare(camera, settings);
    QTEST(read(camera, feature), "text");
}

void TestDescriptionNodeMap::refusedWrites_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("exception");
    const auto row = [](const char* name, const char* settings, const char* feature, const char* value,
                        const char* exception) {
        QTest::newRow(name) << QByteArray(settings) << QByteArray(feature) << QByteArray(value)
                            << QByteArray(exception);
    };
    row("accepted", "", "Literal", "12", "none");
    row("off the increment", "", "Literal", "10", "OutOfRange");
    row("off the computed increment", "LimitLow=1", "Computed", "5", "OutOfRange");
    row("above", "", "Narrowed", "16", "OutOfRange");
    row("below", "", "LimitedFloat", "-2", "OutOfRange");
    row("beyond the field", "", "SignedField4", "8", "OutOfRange");
    row("outside the valid values", "", "ValidSet", "3", "OutOfRange");
    row("read only", "", "OverRO", "1", "Access");
    row("locked", "LockedSwitch=1", "Conditional", "1", "Access");
    row("not available", "AvailableSwitch=0", "Conditional", "1", "Access");
    row("not implemented", "ImplementedSwitch=0", "ConditionalFloat", "1", "Access");
    row("entry not available", "AvailableSwitch=0", "Choice", "C", "Access");
    row("entry not implemented", "ImplementedSwitch=0", "Choice", "D", "Access");
    row("entry available again", "AvailableSwitch=0 AvailableSwitch=1", "Choice", "C", "none");
    row("unknown entry", "", "Choice", "X", "InvalidArgument");
    row("no number", "", "Literal", "x", "InvalidArgument");
    row("text too long", "", "Short", "123456789", "InvalidArgument");
    row("no such memory", "", "Beyond", "1", "Runtime");
}

void TestDescriptionNodeMap::refusedWrites()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, feature);
    QFETCH(QByteArray, value);
    const CameraPointer camera = openCorners();
    prepare(camera, settings);
    camera->nodeMap().InvalidateNodes();
    const std::string before = stateOf(nodeOf(camera, feature));
    const QByteArray exception = exceptionOf([&] { write(camera, feature, value); });
    QTEST(exception, "exception");
    QCOMPARE(stateOf(nodeOf(camera, feature)) == before, exception != "none");
}

void TestDescriptionNodeMap::reports_data()
{
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("reported");
    const auto row = [](const char* feature, const char* value, const char* reported) {
        QTest::newRow(feature) << QByteArray(feature) << QByteArray(value) << QByteArray(reported);
    };
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
    QFETCH(QByteArray, feature);
    QFETCH(QByteArray, value);
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    write(camera, feature, value);
    QTEST(joined(recorder.take()), "reported");
}

void TestDescriptionNodeMap::failingReads()
{
    const CameraPointer camera = openCorners();
    QCOMPARE(exceptionOf([&] { read(camera, "Beyond"); }), QByteArray("Runtime"));
    QCOMPARE(exceptionOf([&] { read(camera, "NoEntry"); }), QByteArray("Runtime"));
    QCOMPARE(exceptionOf([&] { read(camera, "OverWO"); }), QByteArray("Access"));
    QVERIFY(!CEnumerationPtr(&nodeOf(camera, "NoEntry"))->GetCurrentEntry());
}

void TestDescriptionNodeMap::entries()
{
    const CameraPointer camera = openCorners();
    prepare(camera, "AvailableSwitch=0 ImplementedSwitch=0");
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

void TestDescriptionNodeMap::validValues()
{
    const CameraPointer camera = openCorners();
    const CIntegerPtr feature(&nodeOf(camera, "ValidSet"));
    const int64_autovector_t values = feature->GetListOfValidValues();
    QCOMPARE(int(values.size()), 3);
    QCOMPARE(QList<qint64>({values[0], values[1], values[2]}), QList<qint64>({1, 2, 4}));
    QCOMPARE(feature->GetIncMode(), listIncrement);
}

void TestDescriptionNodeMap::selectors()
{
    const CameraPointer camera = openCorners();
    const CSelectorPtr selector(&nodeOf(camera, "Selector"));
    const CSelectorPtr selected(&nodeOf(camera, "Selected"));
    FeatureList_t features;
    selector->GetSelectedFeatures(features);
    QCOMPARE(int(features.size()), 1);
    QCOMPARE(features[0]->GetNode()->GetName().c_str(), "Selected");
    selected->GetSelectingFeatures(features);
    QCOMPARE(features[0]->GetNode()->GetName().c_str(), "Selector");
    QVERIFY(selector->IsSelector() && !selected->IsSelector());
}

void TestDescriptionNodeMap::copies()
{
    const CameraPointer camera = openCorners();
    write(camera, "Copied", "7");
    QCOMPARE(read(camera, "CopyA") + ' ' + read(camera, "CopyB"), QByteArray("7 7"));
}

void TestDescriptionNodeMap::commands()
{
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    CCommandPtr(&nodeOf(camera, "Reset"))->Execute();
    QCOMPARE(joined(recorder.take()), QByteArray("Invalidated Reset"));
    for (const char* name : {"CommandRW", "CommandWO", "Reset"}) {
        const CCommandPtr command(&nodeOf(camera, name));
        command->Execute();
        QVERIFY2(command->IsDone(), name);
    }
    CCommandPtr(&nodeOf(camera, "CountUp"))->Execute();
    CCommandPtr(&nodeOf(camera, "CountUp"))->Execute();
    QCOMPARE(read(camera, "Counter"), QByteArray("2"));
    QCOMPARE(exceptionOf([&] { CCommandPtr(&nodeOf(camera, "CommandRO"))->Execute(); }),
             QByteArray("Access"));
}

void TestDescriptionNodeMap::registers()
{
    const CameraPointer camera = openCorners();
    const CRegisterPtr bytes(&nodeOf(camera, "Bytes"));
    QCOMPARE(qint64(bytes->GetLength()), qint64(4));
    QCOMPARE(qint64(bytes->GetAddress()), qint64(0x730));
    write(camera, "Bytes", "0x01A2FF00");
    QCOMPARE(read(camera, "Bytes").toUpper(), QByteArray("0X01A2FF00"));
    const std::uint8_t three[3]{1, 2, 3};
    QVERIFY(exceptionOf([&] { bytes->Set(three, 3); }) != "none");
}

void TestDescriptionNodeMap::polling()
{
    const CameraPointer camera = openCorners();
    ReportRecorder recorder(featuresOf(camera->nodeMap()));
    camera->nodeMap().Poll(300);
    QCOMPARE(joined(recorder.take()), QByteArray());
    camera->nodeMap().Poll(300);
    QCOMPARE(joined(recorder.take()), QByteArray("OverPolled"));
}

void TestDescriptionNodeMap::caching()
{
    const CameraPointer camera = openCorners();
    const auto mode = [&](const char* name) { return nodeOf(camera, name).GetCachingMode(); };
    QCOMPARE(mode("OverUncached"), NoCache);
    QCOMPARE(mode("OverRW"), WriteThrough);
    QCOMPARE(mode("Single"), WriteAround);
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
}

void TestDescriptionNodeMap::initialMemory()
{
    const QByteArray xml =
        "<RegisterDescription ModelName='Model X'>"
        "<Category Name='Root'><pFeature>F</pFeature><pFeature>DeviceModelName</pFeature>"
        "<pFeature>E</pFeature></Category><Port Name='Device'/>"
        "<Integer Name='F'><pIsImplemented>Asked</pIsImplemented><pValue>R</pValue>"
        "<Min>8</Min><pMax>Most</pMax><pInc>Step</pInc></Integer>"
        "<IntSwissKnife Name='Asked'><pVariable Name='X'>Inquiry</pVariable>"
        "<Formula>(X &gt;&gt; 31) &amp; 1</Formula></IntSwissKnife>"
        "<IntReg Name='Inquiry'><Address>0</Address><Length>4</Length><pPort>Device</pPort></IntReg>"
        "<IntReg Name='Most'><Address>4</Address><Length>4</Length><pPort>Device</pPort></IntReg>"
        "<IntReg Name='Step'><Address>8</Address><Length>4</Length><pPort>Device</pPort></IntReg>"
        "<IntReg Name='R'><Address>12</Address><Length>4</Length><AccessMode>RW</AccessMode>"
        "<pPort>Device</pPort></IntReg>"
        "<StringReg Name='DeviceModelName'><Address>16</Address><Length>16</Length>"
        "<pPort>Device</pPort></StringReg>"
        "<Enumeration Name='E'><EnumEntry Name='Three'><Value>3</Value></EnumEntry>"
        "<pValue>R2</pValue></Enumeration>"
        "<IntReg Name='R2'><Address>32</Address><Length>4</Length><AccessMode>RW</AccessMode>"
        "<pPort>Device</pPort></IntReg></RegisterDescription>";
    const CameraPointer zero =
        DescriptionNodeMap::fromXml(xml.toStdString(), DescriptionNodeMap::InitialMemory::Zero);
    QCOMPARE(stateOf(nodeOf(zero, "F")).substr(0, 2), std::string("NI"));
    const CameraPointer sensible = DescriptionNodeMap::fromXml(xml.toStdString());
    QCOMPARE(QByteArray::fromStdString(stateOf(nodeOf(sensible, "F"))), QByteArray("RW|8|8 4103 1|"));
    QCOMPARE(read(sensible, "DeviceModelName"), QByteArray("Model X"));
    QCOMPARE(read(sensible, "E"), QByteArray("Three"));
}

void TestDescriptionNodeMap::openingFails_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("no such file") << QByteArray("no/such/file.xml") << QByteArray("No such file");
    QTest::newRow("a directory") << QByteArray(".") << QByteArray("directory");
    QTest::newRow("this program") << QFile::encodeName(QCoreApplication::applicationFilePath())
                                  << QByteArray("line 1");
}

void TestDescriptionNodeMap::openingFails()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, reason);
    try {
        DescriptionNodeMap::open(path.toStdString());
        QFAIL("was opened");
    } catch (const std::runtime_error& error) {
        const QByteArray text(error.what());
        QVERIFY2(text.startsWith(path + ": ") && text.contains(reason), error.what());
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
