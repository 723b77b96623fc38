#include "exceptionname.h"
#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

#include <functional>

using namespace ZetoNodeMap;
using Action = std::function<void(GenApi::INodeMap&)>;
Q_DECLARE_METATYPE(Action)

/// Access modes and what a refused call throws.
class TestNodeAccess : public QObject
{
    Q_OBJECT

private slots:
    void refuses_calls_by_access_mode_data();
    void refuses_calls_by_access_mode();
    void refuses_values_data();
    void refuses_values();
    void combines_declared_condition_lock_and_imposed_mode_data();
    void combines_declared_condition_lock_and_imposed_mode();
    void conditions_take_effect_at_once();
    void a_category_is_implemented_when_a_member_is();
    void imposed_limits_are_reported_but_not_enforced();
};

static std::unique_ptr<NodeMap> makeMap()
{
    NodeMapBuilder b;
    b.integer("Int").limits(10, 100).increment(4).value(10);
    b.integer("List").validValues({1, 5, 200}).max(100).value(1);
    b.integer("Stuck").increment(0);
    b.floating("Float").limits(0, 1).increment(0.25);
    b.floating("Free");
    b.boolean("Bool");
    b.enumeration("Enum")
        .entries({"Off", "On"})
        .entry(Entry("Never", 7).access(GenApi::NA))
        .entry(Entry("Gone", 8).access(GenApi::NI));
    b.command("Command").access(GenApi::RW);
    b.string("String").maxLength(3);
    b.bytes("Register").value({1, 2});
    return b.build();
}

template <class Pointer>
static Pointer get(GenApi::INodeMap& map, const char* name)
{
    return Pointer(map.GetNode(name));
}

static GenApi::CIntegerPtr integer(GenApi::INodeMap& map, const char* name)
{
    return get<GenApi::CIntegerPtr>(map, name);
}

static GenApi::CFloatPtr number(GenApi::INodeMap& map, const char* name)
{
    return get<GenApi::CFloatPtr>(map, name);
}

static GenApi::CEnumerationPtr enumeration(GenApi::INodeMap& map)
{
    return get<GenApi::CEnumerationPtr>(map, "Enum");
}

static GenApi::CValuePtr value(GenApi::INodeMap& map, const char* name)
{
    return get<GenApi::CValuePtr>(map, name);
}

void TestNodeAccess::refuses_calls_by_access_mode_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("refusedIn");

    const auto row = [](const char* name, const char* node, const char* refusedIn, Action action) {
        QTest::newRow(name) << QString::fromLatin1(node) << action << QString::fromLatin1(refusedIn);
    };
    row("read integer", "Int", "NI NA WO", [](auto& map) { integer(map, "Int")->GetValue(); });
    row("read integer verified", "Int", "NI NA WO", [](auto& map) { integer(map, "Int")->GetValue(true); });
    row("write integer", "Int", "NI NA RO", [](auto& map) { integer(map, "Int")->SetValue(14); });
    row("write integer unverified", "Int", "", [](auto& map) { integer(map, "Int")->SetValue(14, false); });
    row("read limits", "Int", "",
        [](auto& map) { integer(map, "Int")->GetMin(), integer(map, "Int")->GetInc(); });
    row("read text", "Int", "NI NA WO", [](auto& map) { value(map, "Int")->ToString(); });
    row("write text", "Int", "NI NA RO", [](auto& map) { value(map, "Int")->FromString("14"); });
    row("read float", "Float", "NI NA WO", [](auto& map) { number(map, "Float")->GetValue(); });
    row("write float", "Float", "NI NA RO", [](auto& map) { *number(map, "Float") = 0.5; });
    row("read boolean", "Bool", "NI NA WO",
        [](auto& map) { get<GenApi::CBooleanPtr>(map, "Bool")->GetValue(); });
    row("write boolean", "Bool", "NI NA RO",
        [](auto& map) { *get<GenApi::CBooleanPtr>(map, "Bool") = true; });
    row("read entry", "Enum", "NI NA WO", [](auto& map) { enumeration(map)->GetCurrentEntry(); });
    row("write entry", "Enum", "NI NA RO", [](auto& map) { *enumeration(map) = "On"; });
    row("list entries", "Enum", "", [](auto& map) {
        GenApi::NodeList_t l;
        enumeration(map)->GetEntries(l);
    });
    row("execute", "Command", "NI NA RO",
        [](auto& map) { get<GenApi::CCommandPtr>(map, "Command")->Execute(); });
    row("execute unverified", "Command", "",
        [](auto& map) { get<GenApi::CCommandPtr>(map, "Command")->Execute(false); });
    row("is done", "Command", "NI", [](auto& map) { get<GenApi::CCommandPtr>(map, "Command")->IsDone(); });
    row("read string", "String", "NI NA WO",
        [](auto& map) { get<GenApi::CStringPtr>(map, "String")->GetValue(); });
    row("write string", "String", "NI NA RO",
        [](auto& map) { *get<GenApi::CStringPtr>(map, "String") = "abc"; });
    row("read bytes", "Register", "NI NA WO", [](auto& map) {
        uint8_t bytes[2];
        get<GenApi::CRegisterPtr>(map, "Register")->Get(bytes, 2);
    });
    row("write bytes", "Register", "NI NA RO", [](auto& map) {
        const uint8_t bytes[2] = {};
        get<GenApi::CRegisterPtr>(map, "Register")->Set(bytes, 2);
    });
    row("ask about itself", "Int", "", [](auto& map) {
        GenApi::INode& node = *map.GetNode("Int");
        node.GetName(), node.GetToolTip(), node.GetVisibility(), node.GetPrincipalInterfaceType();
        integer(map, "Int")->GetRepresentation(), integer(map, "Int")->GetUnit();
    });
}

void TestNodeAccess::refuses_calls_by_access_mode()
{
    QFETCH(QString, node);
    QFETCH(Action, action);
    QFETCH(QString, refusedIn);
    const std::pair<const char*, GenApi::EAccessMode> modes[] = {
        {"NI", GenApi::NI}, {"NA", GenApi::NA}, {"WO", GenApi::WO}, {"RO", GenApi::RO}, {"RW", GenApi::RW}};
    for (const auto& [name, mode] : modes) {
        const auto map = makeMap();
        map->setAccessMode(node.toStdString(), mode);
        const bool refused = refusedIn.contains(QLatin1String(name));
        QVERIFY2(exceptionName([&] { action(*map); }) == (refused ? QStringLiteral("Access") : QString()),
                 name);
    }
}

void TestNodeAccess::refuses_values_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("exception");

    const auto row = [](const char* name, const char* exception, Action action) {
        QTest::newRow(name) << action << QString::fromLatin1(exception);
    };
    row("integer too small", "OutOfRange", [](auto& map) { *integer(map, "Int") = 6; });
    row("integer too large", "OutOfRange", [](auto& map) { *integer(map, "Int") = 102; });
    row("integer between steps", "OutOfRange", [](auto& map) { *integer(map, "Int") = 12; });
    row("integer too small, unverified", "", [](auto& map) { integer(map, "Int")->SetValue(1, false); });
    row("integer out of range read verified", "OutOfRange", [](auto& map) {
        integer(map, "Int")->SetValue(1, false);
        integer(map, "Int")->GetValue(true);
    });
    row("integer not in the list", "OutOfRange", [](auto& map) { *integer(map, "List") = 2; });
    row("integer in the list, too large", "OutOfRange", [](auto& map) { *integer(map, "List") = 200; });
    row("integer without step", "LogicalError", [](auto& map) { *integer(map, "Stuck") = 1; });
    row("float too large", "OutOfRange", [](auto& map) { *number(map, "Float") = 1.01; });
    row("float between steps", "", [](auto& map) { *number(map, "Float") = 0.3; });
    row("no float step", "Runtime", [](auto& map) { number(map, "Free")->GetInc(); });
    row("no number", "InvalidArgument", [](auto& map) { value(map, "Int")->FromString("1x"); });
    row("no float", "InvalidArgument", [](auto& map) { value(map, "Float")->FromString("0,5"); });
    row("no boolean", "InvalidArgument", [](auto& map) { value(map, "Bool")->FromString("yes"); });
    row("no entry", "InvalidArgument", [](auto& map) { *enumeration(map) = "Other"; });
    row("no entry value", "InvalidArgument", [](auto& map) { enumeration(map)->SetIntValue(9); });
    row("entry not available", "Access", [](auto& map) { *enumeration(map) = "Never"; });
    row("entry not available, unverified", "", [](auto& map) { enumeration(map)->SetIntValue(7, false); });
    row("value without entry", "Runtime", [](auto& map) {
        static_cast<NodeMap&>(map).assign("Enum", 99);
        QVERIFY(!enumeration(map)->GetCurrentEntry());
        value(map, "Enum")->ToString();
    });
    row("string too long", "InvalidArgument", [](auto& map) { value(map, "String")->FromString("four"); });
    row("wrong number of bytes", "InvalidArgument",
        [](auto& map) { value(map, "Register")->FromString("0x01"); });
    row("null pointer", "LogicalError", [](auto& map) { integer(map, "Nothing")->GetValue(); });
}

void TestNodeAccess::refuses_values()
{
    QFETCH(Action, action);
    const auto map = makeMap();
    QTEST(exceptionName([&] { action(*map); }), "exception");
    GenApi::StringList_t symbolics;
    enumeration(*map)->GetSymbolics(symbolics);
    QCOMPARE(symbolics.size(), size_t(3)); // what is not implemented is not offered
}

void TestNodeAccess::combines_declared_condition_lock_and_imposed_mode_data()
{
    QTest::addColumn<int>("declared");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("imposed");
    QTest::addColumn<int>("effective");

    const auto row = [](const char* name, int declared, const char* state, int imposed, int effective) {
        QTest::newRow(name) << declared << QString::fromLatin1(state) << imposed << effective;
    };
    using namespace GenApi;
    row("nothing restricts", RW, "implemented available", RW, RW);
    row("not available", RW, "implemented", RW, NA);
    row("not implemented goes before not available", RW, "", RW, NI);
    row("locked", RW, "implemented available locked", RW, RO);
    row("locked write-only", WO, "implemented available locked", RW, NA);
    row("locked read-only", RO, "implemented available locked", RW, RO);
    row("not available goes before locked", RW, "implemented locked", RW, NA);
    row("imposed read-only", RW, "implemented available", RO, RO);
    row("imposed against each other", RO, "implemented available", WO, NA);
}

void TestNodeAccess::combines_declared_condition_lock_and_imposed_mode()
{
    QFETCH(int, declared);
    QFETCH(QString, state);
    QFETCH(int, imposed);
    QFETCH(int, effective);
    NodeMapBuilder b;
    b.boolean("implemented").value(state.contains(QLatin1String("implemented")));
    b.boolean("available").value(state.contains(QLatin1String("available")));
    b.boolean("locked").value(state.contains(QLatin1String("locked")));
    b.integer("X")
        .access(static_cast<GenApi::EAccessMode>(declared))
        .implementedIf("implemented")
        .availableIf("available")
        .lockedIf("locked");
    const auto map = b.build();
    GenApi::INode& node = *map->GetNode("X");
    node.ImposeAccessMode(static_cast<GenApi::EAccessMode>(imposed));
    QCOMPARE(int(node.GetAccessMode()), effective);
    QCOMPARE(int(node.GetAccessMode()), effective); // now from the cache
    QCOMPARE(node.IsAccessModeCacheable(), GenApi::Yes);
}

void TestNodeAccess::conditions_take_effect_at_once()
{
    bool streaming = false;
    NodeMapBuilder b;
    b.enumeration("Mode").entries({"Off", "On"});
    b.integer("Width").lockedIf([&] { return streaming; });
    b.integer("Delay").availableIf(isEntry("Mode", "On")).max("Width");
    b.enumeration("Source").entry(Entry("Line", 1).availableIf("Mode"));
    const auto map = b.build();
    const auto mode = [&](const char* name) { return map->GetNode(name)->GetAccessMode(); };
    QCOMPARE(mode("Delay"), GenApi::NA);
    QCOMPARE(mode("EnumEntry_Source_Line"), GenApi::NA);
    *get<GenApi::CEnumerationPtr>(*map, "Mode") = "On";
    QCOMPARE(mode("Delay"), GenApi::RW);
    QCOMPARE(mode("EnumEntry_Source_Line"), GenApi::RO);
    *integer(*map, "Width") = 77;
    QCOMPARE(integer(*map, "Delay")->GetMax(), 77);
    QCOMPARE(map->GetNode("Width")->IsAccessModeCacheable(), GenApi::No);
    streaming = true;
    QCOMPARE(mode("Width"), GenApi::RO);
}

void TestNodeAccess::a_category_is_implemented_when_a_member_is()
{
    NodeMapBuilder b;
    b.category("Root").contains("Inner", "Root");
    b.category("Inner").contains("X");
    b.integer("X").access(GenApi::NI);
    const auto map = b.build();
    QCOMPARE(map->GetNode("Root")->GetAccessMode(), GenApi::NI);
    map->setAccessMode("X", GenApi::NA);
    QCOMPARE(map->GetNode("Root")->GetAccessMode(), GenApi::RO);
}

void TestNodeAccess::imposed_limits_are_reported_but_not_enforced()
{
    const auto map = makeMap();
    integer(*map, "Int")->ImposeMin(14);
    integer(*map, "Int")->ImposeMax(1000);
    QCOMPARE(integer(*map, "Int")->GetMin(), 14);
    QCOMPARE(integer(*map, "Int")->GetMax(), 100);
    *integer(*map, "Int") = 10;
    number(*map, "Float")->ImposeMax(0.5);
    QCOMPARE(number(*map, "Float")->GetMax(), 0.5);
    const GenApi::int64_autovector_t bounded = integer(*map, "List")->GetListOfValidValues();
    QCOMPARE(bounded.size(), size_t(2));
    QCOMPARE(integer(*map, "List")->GetListOfValidValues(false).size(), size_t(3));
    QCOMPARE(integer(*map, "List")->GetIncMode(), GenApi::listIncrement);
    QCOMPARE(number(*map, "Free")->GetIncMode(), GenApi::noIncrement);
}

ZETO_TEST_MAIN(TestNodeAccess)
#include "tst_nodeaccess.moc"
