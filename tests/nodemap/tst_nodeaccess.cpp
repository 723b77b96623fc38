#include "exceptionname.h"
#include "nodemapbuilder.h"

#include "testmain.h"
#include "writefeatures.h"

#include <QtTest>

using namespace ZetoNodeMap;
using namespace GenApi;

/// Access modes and what a refused call throws.
class TestNodeAccess : public QObject
{
    Q_OBJECT

private slots:
    void refuses_calls_by_access_mode();
    void refuses_values();
    void refuses_what_else_makes_no_sense();
    void says_the_limits_as_the_feature_shows_them();
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
        .entry(Entry("Never", 7).access(NA))
        .entry(Entry("Gone", 8).access(NI));
    b.command("Command").access(RW);
    b.string("String").maxLength(3);
    b.bytes("Register").value({1, 2});
    return b.build();
}

void TestNodeAccess::refuses_calls_by_access_mode()
{
    const std::pair<const char*, const char*> writes[] = {{"Int", "14"},     {"Float", "0.5"},
                                                          {"Bool", "1"},     {"Enum", "On"},
                                                          {"String", "abc"}, {"Register", "0x0A0B"}};
    for (const EAccessMode mode : {NI, NA, WO, RO, RW}) {
        const auto map = makeMap();
        const QString onRead = IsReadable(mode) ? QString() : QStringLiteral("Access");
        const QString onWrite = IsWritable(mode) ? QString() : QStringLiteral("Access");
        for (const auto& write : writes) {
            const CValuePtr value(map->GetNode(write.first));
            map->setAccessMode(write.first, mode);
            QCOMPARE(exceptionName([&] { value->ToString(); }), onRead);
            QCOMPARE(exceptionName([&] { value->ToString(true); }), onRead);
            QCOMPARE(exceptionName([&] { value->FromString(write.second); }), onWrite);
            QCOMPARE(exceptionName([&] { value->FromString(write.second, false); }), QString());
        }
        const CIntegerPtr integer(map->GetNode("Int"));
        QCOMPARE(exceptionName([&] { integer->GetMin(), integer->GetInc(); }), QString());
        const CEnumerationPtr enumeration(map->GetNode("Enum"));
        QCOMPARE(exceptionName([&] { enumeration->GetCurrentEntry(); }), onRead);
        const CRegisterPtr bytes(map->GetNode("Register"));
        uint8_t two[2] = {};
        QCOMPARE(exceptionName([&] { bytes->Get(two, 2); }), onRead);
        QCOMPARE(exceptionName([&] { bytes->Set(two, 2); }), onWrite);
        const CCommandPtr command(map->GetNode("Command"));
        map->setAccessMode("Command", mode);
        QCOMPARE(exceptionName([&] { command->Execute(); }), onWrite);
        QCOMPARE(exceptionName([&] { command->Execute(false); }), QString());
        QCOMPARE(exceptionName([&] { command->IsDone(); }),
                 mode == NI ? QStringLiteral("Access") : QString());
    }
}

void TestNodeAccess::refuses_values()
{
    const std::pair<const char*, const char*> expected[] = {
        {"OutOfRange", "Int=6 Int=102 Int=12 List=2 List=200 Float=1.01"}, // also between steps
        {"InvalidArgument", "Int=1x Float=0,5 Bool=yes Enum=Other String=four Register=0x01"},
        {"LogicalError", "Stuck=1"},
        {"Access", "Enum=Never"},
        {"", "Int=14 List=5 Float=0.3 Enum=On"}, // a float's steps are a hint
    };
    for (const auto& [exception, writes] : expected) {
        for (const QByteArray& write : QByteArray(writes).split(' ')) {
            const auto map = makeMap();
            const QString thrown = exceptionName([&] { writeFeatures(*map, write); });
            QVERIFY2(thrown == QLatin1String(exception), write.constData());
        }
    }
}

void TestNodeAccess::refuses_what_else_makes_no_sense()
{
    const auto map = makeMap();
    const CIntegerPtr integer(map->GetNode("Int"));
    const CEnumerationPtr enumeration(map->GetNode("Enum"));
    integer->SetValue(1, false); // unverified
    QCOMPARE(integer->GetValue(), 1);
    QCOMPARE(exceptionName([&] { integer->GetValue(true); }), QStringLiteral("OutOfRange"));
    QCOMPARE(exceptionName([&] { CFloatPtr(map->GetNode("Free"))->GetInc(); }), QStringLiteral("Runtime"));
    QCOMPARE(exceptionName([&] { enumeration->SetIntValue(9); }), QStringLiteral("InvalidArgument"));
    enumeration->SetIntValue(7, false); // not available
    QCOMPARE(enumeration->GetIntValue(), 7);
    map->assign("Enum", 99);
    QVERIFY(!enumeration->GetCurrentEntry());
    QCOMPARE(exceptionName([&] { enumeration->ToString(); }), QStringLiteral("Runtime"));
    StringList_t symbolics;
    enumeration->GetSymbolics(symbolics);
    QCOMPARE(symbolics.size(), size_t(3)); // what is not implemented is not offered
}

void TestNodeAccess::says_the_limits_as_the_feature_shows_them()
{
    NodeMapBuilder b;
    b.floating("Exposure").min(0.5);
    const auto map = b.build();
    try {
        *CFloatPtr(map->GetNode("Exposure")) = 0.25;
        QFAIL("was accepted");
    } catch (const GenICam::OutOfRangeException& error) {
        QCOMPARE(error.GetDescription(), "Exposure: 0.25 is not within 0.5 and 1.79769e+308");
    }
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
        .access(static_cast<EAccessMode>(declared))
        .implementedIf("implemented")
        .availableIf("available")
        .lockedIf("locked");
    const auto map = b.build();
    INode& node = *map->GetNode("X");
    node.ImposeAccessMode(static_cast<EAccessMode>(imposed));
    QCOMPARE(int(node.GetAccessMode()), effective);
    QCOMPARE(int(node.GetAccessMode()), effective); // now from the cache
    QCOMPARE(node.IsAccessModeCacheable(), Yes);
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
    QCOMPARE(mode("Delay"), NA);
    QCOMPARE(mode("EnumEntry_Source_Line"), NA);
    *CEnumerationPtr(map->GetNode("Mode")) = "On";
    QCOMPARE(mode("Delay"), RW);
    QCOMPARE(mode("EnumEntry_Source_Line"), RO);
    *CIntegerPtr(map->GetNode("Width")) = 77;
    QCOMPARE(CIntegerPtr(map->GetNode("Delay"))->GetMax(), 77);
    QCOMPARE(map->GetNode("Width")->IsAccessModeCacheable(), No);
    streaming = true;
    QCOMPARE(mode("Width"), RO);
}

void TestNodeAccess::a_category_is_implemented_when_a_member_is()
{
    NodeMapBuilder b;
    b.category("Root").contains("Inner", "Root");
    b.category("Inner").contains("X");
    b.integer("X").access(NI);
    const auto map = b.build();
    QCOMPARE(map->GetNode("Root")->GetAccessMode(), NI);
    map->setAccessMode("X", NA);
    QCOMPARE(map->GetNode("Root")->GetAccessMode(), RO);
}

void TestNodeAccess::imposed_limits_are_reported_but_not_enforced()
{
    const auto map = makeMap();
    CIntegerPtr(map->GetNode("Int"))->ImposeMin(14);
    CIntegerPtr(map->GetNode("Int"))->ImposeMax(1000);
    QCOMPARE(CIntegerPtr(map->GetNode("Int"))->GetMin(), 14);
    QCOMPARE(CIntegerPtr(map->GetNode("Int"))->GetMax(), 100);
    *CIntegerPtr(map->GetNode("Int")) = 10;
    CFloatPtr(map->GetNode("Float"))->ImposeMax(0.5);
    QCOMPARE(CFloatPtr(map->GetNode("Float"))->GetMax(), 0.5);
    const int64_autovector_t bounded = CIntegerPtr(map->GetNode("List"))->GetListOfValidValues();
    QCOMPARE(bounded.size(), size_t(2));
    QCOMPARE(CIntegerPtr(map->GetNode("List"))->GetListOfValidValues(false).size(), size_t(3));
    QCOMPARE(CIntegerPtr(map->GetNode("List"))->GetIncMode(), listIncrement);
    QCOMPARE(CFloatPtr(map->GetNode("Free"))->GetIncMode(), noIncrement);
}

ZETO_TEST_MAIN(TestNodeAccess)
#include "tst_nodeaccess.moc"
