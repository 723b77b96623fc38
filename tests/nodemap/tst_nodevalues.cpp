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
    void caches_by_mode();
    void a_write_is_what_the_camera_makes_of_it();
    void a_custom_source_serves_the_node();
    void keeps_one_value_for_each_combination_of_selectors();
    void selector_cycles_end();
    void entries_that_clear_themselves();
    void texts_of_all_kinds_can_be_written_back();
    void any_call_can_be_made_to_fail();
    void links_can_be_followed();
};

static GenApi::CIntegerPtr integer(NodeMap& map, const char* name)
{
    return GenApi::CIntegerPtr(map.GetNode(name));
}

void TestNodeValues::caches_by_mode()
{
    const std::pair<GenApi::ECachingMode, QByteArray> expected[] = {
        {GenApi::NoCache, "111111"}, {GenApi::WriteThrough, "101101"}, {GenApi::WriteAround, "101111"}};
    for (const auto& [mode, readsOfTheCamera] : expected) {
        int reads = 0;
        NodeMapBuilder b;
        b.integer("X").caching(mode).onRead([&] { return ++reads; });
        const auto map = b.build();
        GenApi::CIntegerPtr x = integer(*map, "X");
        QByteArray seen;
        const auto note = [&](bool verify = false, bool ignoreCache = false) {
            const int before = reads;
            x->GetValue(verify, ignoreCache);
            seen += QByteArray::number(reads - before);
        };
        note();
        QCOMPARE(x->IsValueCacheValid(), mode != GenApi::NoCache);
        note();
        note(false, true);
        note(true);
        x->SetValue(5);
        note();
        map->InvalidateNodes();
        note();
        QCOMPARE(seen, readsOfTheCamera);
    }
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
    // node, features; node, name and access of 6; texts but the command's; poll
    QCOMPARE(calls, 1 + 1 + 6 * 3 + 5 + 1);
    for (const FaultInjector::Fault fault : FaultInjector::allFaults()) {
        for (int64_t call = 0; call < calls; ++call) {
            faults->throwAt(call, fault);
            QVERIFY(!exceptionName([&] { visit(*map); }).isEmpty());
            QCOMPARE(faults->callCount(), call + 1);
        }
    }
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
