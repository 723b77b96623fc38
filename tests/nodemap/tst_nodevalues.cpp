#include "exceptionname.h"
#include "faultinjector.h"
#include "featuretree.h"
#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

using namespace ZetoNodeMap;

/// Where values come from, how long they are kept, and who can interpose.
class TestNodeValues : public QObject
{
    Q_OBJECT

private slots:
    void caches_by_mode_data();
    void caches_by_mode();
    void a_write_is_what_the_camera_makes_of_it();
    void a_custom_source_serves_the_node();
    void keeps_one_value_for_each_combination_of_selectors();
    void selector_cycles_end();
    void entries_that_clear_themselves();
    void a_value_in_a_register_has_bytes();
    void texts_of_all_kinds_can_be_written_back();
    void any_call_can_be_made_to_fail();
    void links_can_be_followed();
};

static GenApi::CIntegerPtr integer(NodeMap& map, const char* name)
{
    return GenApi::CIntegerPtr(map.GetNode(name));
}

void TestNodeValues::caches_by_mode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("reads"); // from the camera, by what happens

    QTest::newRow("no cache") << int(GenApi::NoCache)
                              << "first 1, again 1, fresh 1, verified 1, written 1, dropped 1";
    QTest::newRow("write through") << int(GenApi::WriteThrough)
                                   << "first 1, again 0, fresh 1, verified 1, written 0, dropped 1";
    QTest::newRow("write around") << int(GenApi::WriteAround)
                                  << "first 1, again 0, fresh 1, verified 1, written 1, dropped 1";
}

void TestNodeValues::caches_by_mode()
{
    QFETCH(int, mode);
    int reads = 0;
    NodeMapBuilder b;
    b.integer("X").caching(static_cast<GenApi::ECachingMode>(mode)).onRead([&] { return ++reads; });
    const auto map = b.build();
    GenApi::CIntegerPtr x = integer(*map, "X");
    QStringList seen;
    const auto note = [&](const char* what, auto action) {
        const int before = reads;
        const bool free = x->IsValueCacheValid();
        action();
        seen += QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(reads - before);
        if (free)
            QVERIFY2(reads == before || QByteArray(what) == "fresh" || QByteArray(what) == "verified", what);
    };
    note("first", [&] { x->GetValue(); });
    note("again", [&] { x->GetValue(); });
    note("fresh", [&] { x->GetValue(false, true); });
    note("verified", [&] { x->GetValue(true); });
    x->SetValue(5);
    note("written", [&] { x->GetValue(); });
    map->InvalidateNodes();
    note("dropped", [&] { x->GetValue(); });
    QTEST(seen.join(QLatin1String(", ")), "reads");
}

void TestNodeValues::a_write_is_what_the_camera_makes_of_it()
{
    NodeMapBuilder b;
    b.floating("Exposure").limits(0, 1000).onWrite([](NodeMap& map, double us) {
        if (us > 500)
            throw TIMEOUT_EXCEPTION("no answer");
        map.assign("Rate", 1e6 / us);
        return std::floor(us / 10) * 10;
    });
    b.floating("Rate").access(GenApi::RO);
    const auto map = b.build();
    GenApi::CFloatPtr exposure(map->GetNode("Exposure"));
    *exposure = 125;
    QCOMPARE(exposure->GetValue(), 120.0);
    QCOMPARE(GenApi::CFloatPtr(map->GetNode("Rate"))->GetValue(), 8000.0);
    QCOMPARE(exceptionName([&] { *exposure = 600; }), QStringLiteral("Timeout"));
    QCOMPARE(exposure->GetValue(), 120.0);
    map->assign("Exposure", 990); // the camera itself: no function, no limits
    QCOMPARE(exposure->GetValue(), 990.0);
}

void TestNodeValues::a_custom_source_serves_the_node()
{
    struct Camera : IntegerSource
    {
        int64_t read() override { return m_value; }
        void write(const int64_t& value) override { m_value = value; }
        int64_t max() override { return 8; }
        GenApi::EAccessMode accessMode() override { return m_value == 7 ? GenApi::RO : GenApi::RW; }
        int64_t m_value = 0;
    };
    NodeMapBuilder b;
    b.integer("X").source(std::make_unique<Camera>());
    const auto map = b.build();
    GenApi::CIntegerPtr x = integer(*map, "X");
    QCOMPARE(map->GetNode("X")->GetCachingMode(), GenApi::NoCache);
    *x = 7;
    QCOMPARE(x->GetMax(), 8);
    QCOMPARE(exceptionName([&] { *x = 1; }), QStringLiteral("Access"));
    QCOMPARE(x->GetValue(), 7);
}

void TestNodeValues::keeps_one_value_for_each_combination_of_selectors()
{
    NodeMapBuilder b;
    b.enumeration("Selector").entries({"A", "B"}).selects({"Index", "Value"});
    b.integer("Index").selects({"Value"});
    b.integer("Value").value(-1).valueAt({1, 3}, 13);
    const auto map = b.build();
    const auto select = [&](int64_t selector, int64_t index) {
        GenApi::CEnumerationPtr(map->GetNode("Selector"))->SetIntValue(selector);
        integer(*map, "Index")->SetValue(index);
        return integer(*map, "Value")->GetValue();
    };
    QCOMPARE(select(0, 0), -1);
    *integer(*map, "Value") = 5;
    QCOMPARE(select(1, 3), 13);
    QCOMPARE(select(0, 3), -1);
    QCOMPARE(select(0, 0), 5);
    GenApi::FeatureList_t features;
    GenApi::CSelectorPtr selector(map->GetNode("Selector"));
    selector->GetSelectedFeatures(features);
    QVERIFY(selector->IsSelector());
    QCOMPARE(features.size(), size_t(2));
    GenApi::CSelectorPtr(map->GetNode("Value"))->GetSelectingFeatures(features);
    QCOMPARE(features.size(), size_t(2));
    QVERIFY(!GenApi::CSelectorPtr(map->GetNode("Value"))->IsSelector());
}

void TestNodeValues::selector_cycles_end()
{
    NodeMapBuilder b;
    b.integer("A").selects({"B", "A"});
    b.integer("B").selects({"A"});
    const auto map = b.build();
    *integer(*map, "B") = 2;
    *integer(*map, "A") = 1;
    map->GetNode("A")->InvalidateNode();
    QCOMPARE(integer(*map, "A")->GetValue(), 1);
}

void TestNodeValues::entries_that_clear_themselves()
{
    NodeMapBuilder b;
    b.enumeration("Auto")
        .entries({"Off"})
        .entry(Entry("Once", 1).clearsTo(0).numericValue(2.5))
        .pollingTime(100);
    const auto map = b.build();
    GenApi::CEnumerationPtr automatic(map->GetNode("Auto"));
    *automatic = "Once";
    QCOMPARE(automatic->GetIntValue(), 1); // as written
    QVERIFY(automatic->GetCurrentEntry()->IsSelfClearing());
    QCOMPARE(automatic->GetCurrentEntry()->GetNumericValue(), 2.5);
    map->Poll(100);
    QCOMPARE(QByteArray(automatic->ToString().c_str()), QByteArray("Off"));
    QVERIFY(!automatic->GetEntryByName("Off")->IsSelfClearing());
    QCOMPARE(QByteArray(map->GetNode("EnumEntry_Auto_Once")->GetDisplayName().c_str()), QByteArray("Once"));
}

void TestNodeValues::a_value_in_a_register_has_bytes()
{
    NodeMapBuilder b;
    b.integer("Int").inRegister(0x100, 2).value(0x1234);
    b.floating("Float").inRegister(0x104, 4).value(1.5);
    b.string("Text").inRegister(0x108, 4).value("ab");
    const auto map = b.build();
    const auto bytes = [&](const char* name) {
        GenApi::CRegisterPtr place(map->GetNode(name));
        QByteArray bytes(static_cast<int>(place->GetLength()), 0);
        place->Get(reinterpret_cast<uint8_t*>(bytes.data()), bytes.size());
        return bytes;
    };
    QCOMPARE(map->GetNode("Int")->GetPrincipalInterfaceType(), GenApi::intfIInteger);
    QCOMPARE(bytes("Int").toHex(), QByteArray("3412"));
    QCOMPARE(bytes("Float").toHex(), QByteArray("0000c03f"));
    QCOMPARE(bytes("Text"), QByteArray("ab\0\0", 4));
    const uint8_t one[] = {1, 0};
    GenApi::CRegisterPtr(map->GetNode("Int"))->Set(one, 2);
    QCOMPARE(integer(*map, "Int")->GetValue(), 1);
    QCOMPARE(exceptionName([&] { GenApi::CRegisterPtr(map->GetNode("Int"))->Set(one, 1); }),
             QStringLiteral("InvalidArgument"));
    QCOMPARE(GenApi::CRegisterPtr(map->GetNode("Text"))->GetAddress(), 0x108);
}

void TestNodeValues::texts_of_all_kinds_can_be_written_back()
{
    NodeMapBuilder b;
    b.integer("Int").representation(GenApi::IPV4Address).value(0x7F000001);
    b.floating("Float").value(0.1);
    b.boolean("Bool").value(true);
    b.enumeration("Enum").entries({"A", "B"}).value("B");
    b.string("String").value("text");
    b.bytes("Bytes").value({0x0A, 0xFF});
    const auto map = b.build();
    const std::pair<const char*, const char*> texts[] = {{"Int", "127.0.0.1"}, {"Float", "0.1"},
                                                         {"Bool", "1"},        {"Enum", "B"},
                                                         {"String", "text"},   {"Bytes", "0x0AFF"}};
    for (const auto& [name, text] : texts) {
        GenApi::CValuePtr value(map->GetNode(name));
        QCOMPARE(value->ToString().c_str(), text);
        value->FromString(value->ToString());
        QCOMPARE(map->text(name), std::string(text));
    }
}

/// What a browser asks of a feature.
static void visit(NodeMap& map)
{
    GenApi::FeatureList_t features;
    GenApi::CCategoryPtr(map.GetNode("Category0"))->GetFeatures(features);
    for (GenApi::IValue* feature : features) {
        GenApi::INode* node = feature->GetNode();
        node->GetDisplayName();
        if (GenApi::IsReadable(feature))
            feature->ToString();
    }
    map.Poll(10);
}

void TestNodeValues::any_call_can_be_made_to_fail()
{
    NodeMapBuilder b;
    declareFeatureTree(b, 6);
    const auto map = b.build();
    const auto faults = std::make_shared<FaultInjector>();
    map->setAccessHook([faults](const char* call, const GenApi::INode* node) { faults->enter(call, node); });
    visit(*map);
    const int64_t calls = faults->callCount();
    QCOMPARE(calls, 1 + 1 + 6 * 3 + 5 +
                        1); // node, features; node, name and access of 6; texts but the command's; poll
    for (const FaultInjector::Fault fault : FaultInjector::allFaults()) {
        for (int64_t call = 0; call < calls; ++call) {
            faults->throwAt(call, fault);
            QVERIFY(!exceptionName([&] { visit(*map); }).isEmpty());
            QCOMPARE(faults->callCount(), call + 1);
        }
    }
    faults->setFilter([](const char* call, const GenApi::INode*) { return QByteArray(call) == "ToString"; });
    faults->throwRandomly(0.5, 1);
    for (int round = 0; round < 100; ++round)
        exceptionName([&] { visit(*map); });
    QVERIFY(faults->faultCount() > faults->callCount() / 3);
    map->setAccessHook(nullptr);
    visit(*map);
    QVERIFY(map->GetLock().TryLock()); // no failure left the lock behind
    map->GetLock().Unlock();
}

void TestNodeValues::links_can_be_followed()
{
    NodeMapBuilder b;
    b.category("Root").contains("Width");
    b.integer("Width").max("Max").invalidatedBy({"Binning"});
    b.integer("Max");
    b.integer("Binning");
    b.integer("Size").invalidatedBy({"Width"});
    const auto map = b.build();
    const auto names = [&](const char* node, GenApi::ELinkType type) {
        GenApi::NodeList_t list;
        map->GetNode(node)->GetChildren(list, type);
        QStringList names;
        for (GenApi::INode* linked : list)
            names += QString::fromLatin1(linked->GetName().c_str());
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(names("Width", GenApi::ctReadingChildren), QStringLiteral("Max"));
    QCOMPARE(names("Width", GenApi::ctInvalidatingChildren), QStringLiteral("Binning"));
    QCOMPARE(names("Width", GenApi::ctParentNodes), QStringLiteral("Root"));
    QCOMPARE(names("Max", GenApi::ctDependingNodes), QStringLiteral("Width Size"));
    QCOMPARE(names("Width", GenApi::ctTerminalNodes), QStringLiteral("Width"));
}

ZETO_TEST_MAIN(TestNodeValues)
#include "tst_nodevalues.moc"
