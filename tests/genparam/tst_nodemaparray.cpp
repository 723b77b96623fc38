#include "genparamerror.h"
#include "nodemaparray.h"
#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

#include <atomic>
#include <functional>
#include <limits>
#include <thread>

using namespace ZetoNodeMap;

/// A feature seen as a parameter has the node's value, and codes instead of exceptions.
class TestNodeMapArray : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void finds_parameters_by_name_and_type();
    void reports_what_a_node_throws_as_a_code();
    void keeps_64_bits();
    void refuses_integers_off_limits();
    void chooses_entries();
    void knows_a_value_without_an_entry();
    void reads_and_writes_other_kinds();
    void calls_sinks_once_for_each_change();
    void lets_sinks_go_in_their_own_call();
    void waits_for_a_sink_on_another_thread();

private:
    std::unique_ptr<NodeMap> m_map;
    std::unique_ptr<ZetoGenParam::NodeMapArray> m_array;
    ZetoGenParam::Int* m_width = nullptr;
    ZetoGenParam::Enum* m_mode = nullptr;
    QString m_protocol;
};

namespace {

/// Appends its letter to a protocol at each call, then does what it was told.
class Sink : public ZetoGenParam::ParamEventSink
{
public:
    Sink(QString& protocol, char letter)
        : m_protocol(protocol)
        , m_letter(letter)
    {
    }

    void OnParamChanged(ZetoGenParam::Param* param) override
    {
        m_protocol += QLatin1Char(m_letter);
        if (action)
            action(param);
    }

    std::function<void(ZetoGenParam::Param*)> action;

private:
    QString& m_protocol;
    char m_letter;
};

std::unique_ptr<NodeMap> makeMap()
{
    NodeMapBuilder b;
    b.category("Root");
    b.integer("Whole").in("Root").value(5);
    b.integer("Width").in("Root").limits(16, 4096).increment(4).value(640);
    b.integer("Fixed").in("Root").access(GenApi::RO).value(1);
    b.floating("Gain").in("Root").limits(0, 24).value(1.5);
    b.boolean("Flip").in("Root").value(false);
    b.string("Name").in("Root").maxLength(8).value("first");
    b.command("Fire").in("Root").onExecute([](NodeMap& map) { map.assign("Flip", true); });
    b.enumeration("Mode")
        .in("Root")
        .entry("Off", 0)
        .entry("On", 3)
        .entry(Entry("Never", 4).availableIf(false))
        .value("Off");
    return b.build();
}

} // namespace

void TestNodeMapArray::init()
{
    m_array.reset();
    m_map = makeMap();
    m_array = std::make_unique<ZetoGenParam::NodeMapArray>(*m_map);
    m_width = m_array->GetInt("Width", nullptr);
    m_mode = m_array->GetEnum("Mode", nullptr);
    m_protocol.clear();
}

void TestNodeMapArray::finds_parameters_by_name_and_type()
{
    struct Expected
    {
        const char* name;
        int type, code, codeAsInt, codeAsEnum;
    };
    const Expected all[] = {{"Width", ZetoGenParam::TypeInt, 0, 0, -40203},
                            {"Mode", ZetoGenParam::TypeEnum, 0, -40203, 0},
                            {"Root", ZetoGenParam::TypeUnknown, 0, -40203, -40203},
                            {"Nope", -1, -40205, -40205, -40205},
                            {nullptr, -1, -40205, -40205, -40205}};
    for (const Expected& expected : all) {
        int32_t code = 1;
        ZetoGenParam::Param* param = m_array->GetParam(expected.name, &code);
        QCOMPARE(param ? param->GetType() : -1, expected.type);
        QCOMPARE(code, expected.code);
        QCOMPARE(m_array->GetInt(expected.name, &code) == nullptr, expected.codeAsInt != 0);
        QCOMPARE(code, expected.codeAsInt);
        QCOMPARE(m_array->GetEnum(expected.name, &code) == nullptr, expected.codeAsEnum != 0);
        QCOMPARE(code, expected.codeAsEnum);
        QCOMPARE(m_array->GetParam(expected.name, nullptr), param);
    }
}

void TestNodeMapArray::reports_what_a_node_throws_as_a_code()
{
    ZetoGenParam::String* name = m_array->GetString("Name", nullptr);
    const auto check = [&](auto exception, int expected) {
        m_map->setAccessHook([=](const char*, const GenApi::INode*) { throw exception; });
        int32_t codes[2] = {};
        QCOMPARE(m_width->SetValue(64), expected);
        QCOMPARE(m_width->GetValue(&codes[0]), int64_t{0});
        QCOMPARE(name->GetValue(&codes[1]), "");
        QVERIFY(codes[0] == expected && codes[1] == expected);
        QVERIFY(!m_width->IsWritable());
    };
    check(GenICam::AccessException("x", "f", 1), -40202);
    check(GenICam::OutOfRangeException("x", "f", 1), -40204);
    check(GenICam::InvalidArgumentException("x", "f", 1), -40206);
    check(GenICam::DynamicCastException("x", "f", 1), -40203);
    check(GenICam::LogicalErrorException("x", "f", 1), -40201);
    check(GenICam::PropertyException("x", "f", 1), -40201);
    check(GenICam::TimeoutException("x", "f", 1), -40006);
    check(GenICam::RuntimeException("x", "f", 1), -40200);
    check(ZetoGenParam::CodeException(-40101), -40101);
    check(std::runtime_error("x"), -40001);
    check(42, -40001);
    m_map->setAccessHook({});
    QCOMPARE(m_width->GetValue(nullptr), int64_t{640});
}

void TestNodeMapArray::keeps_64_bits()
{
    using Limits = std::numeric_limits<int64_t>;
    ZetoGenParam::Int* whole = m_array->GetInt("Whole", nullptr);
    for (const int64_t value : {Limits::min(), Limits::max(), (int64_t{1} << 53) + 1}) {
        QCOMPARE(whole->SetValue(value), 0);
        QCOMPARE(whole->GetValue(nullptr), value);
    }
    QCOMPARE(whole->GetMin(nullptr), Limits::min());
    QCOMPARE(whole->GetMax(nullptr), Limits::max());
}

void TestNodeMapArray::refuses_integers_off_limits()
{
    QCOMPARE(m_width->GetIncrement(nullptr), int64_t{4});
    QCOMPARE(m_width->SetValue(4100), -40204);
    QCOMPARE(m_width->SetValue(642), -40204);
    QCOMPARE(m_array->GetInt("Fixed", nullptr)->SetValue(2), -40202);
    QCOMPARE(m_width->GetValue(nullptr), int64_t{640});
}

void TestNodeMapArray::chooses_entries()
{
    struct Choice
    {
        const char* symbolic;
        int64_t value;
        int32_t code;
    };
    for (const Choice& choice :
         {Choice{"On", 3, 0}, {"Never", 4, -40202}, {"on", 1, -40206}, {nullptr, -1, -40206}}) {
        QCOMPARE(m_mode->SetValueStr(choice.symbolic), choice.code);
        QCOMPARE(m_mode->GetValueStr(nullptr), choice.code ? "Off" : choice.symbolic);
        QCOMPARE(m_mode->SetValueStr("Off"), 0);
        QCOMPARE(m_mode->SetValue(choice.value), choice.code);
        QCOMPARE(m_mode->GetValue(nullptr), choice.code ? 0 : choice.value);
        QCOMPARE(m_mode->SetValue(0), 0);
    }
}

void TestNodeMapArray::knows_a_value_without_an_entry()
{
    QCOMPARE(m_mode->GetEntriesCount(), uint64_t{3});
    QCOMPARE(m_mode->GetEntry(1)->GetSymbolic(), "On");
    QCOMPARE(m_mode->GetEntry(1)->GetValue(), int64_t{3});
    QVERIFY(!m_mode->GetEntry(2)->IsAvailable());
    QVERIFY(!m_mode->GetEntry(3));
    m_map->assign("Mode", 99);
    int32_t code = 0;
    QCOMPARE(m_mode->GetValueStr(&code), "");
    QCOMPARE(code, -40200);
    QCOMPARE(m_mode->GetValue(&code), int64_t{99});
    QCOMPARE(code, 0);
}

void TestNodeMapArray::reads_and_writes_other_kinds()
{
    ZetoGenParam::Float* gain = m_array->GetFloat("Gain", nullptr);
    QCOMPARE(gain->SetValue(25), -40204);
    QCOMPARE(gain->SetValue(2.25), 0);
    QCOMPARE(gain->GetValue(nullptr), 2.25);
    QCOMPARE(gain->GetIncrement(nullptr), 0.0);

    ZetoGenParam::String* name = m_array->GetString("Name", nullptr);
    QVERIFY(name->SetValue("much too long") != 0);
    QCOMPARE(name->GetValue(nullptr), "first");
    QCOMPARE(name->SetValue(nullptr), 0);
    QCOMPARE(name->GetValue(nullptr), "");

    ZetoGenParam::Command* fire = m_array->GetCommand("Fire", nullptr);
    QVERIFY(fire->IsWritable() && !fire->IsReadable());
    QCOMPARE(fire->Execute(), 0);
    QVERIFY(fire->IsDone(nullptr));
    QVERIFY(m_array->GetBoolean("Flip", nullptr)->GetValue(nullptr));
    QCOMPARE(m_array->GetNodeMap(0), static_cast<GenApi::INodeMap*>(m_map.get()));
    QVERIFY(!m_array->GetNodeMap(1));
}

void TestNodeMapArray::calls_sinks_once_for_each_change()
{
    Sink a(m_protocol, 'a');
    Sink b(m_protocol, 'b');
    for (Sink* sink : {&a, &a, &b})
        QCOMPARE(m_width->RegisterEventSink(sink), 0);
    QCOMPARE(m_width->RegisterEventSink(nullptr), -40007);
    m_width->SetValue(64);
    m_width->SetValue(4100);
    GenApi::CIntegerPtr(m_map->GetNode("Width"))->SetValue(68);
    for (Sink* sink : {&a, &a})
        QCOMPARE(m_width->UnregisterEventSink(sink), 0);
    m_width->SetValue(72);
    QCOMPARE(m_protocol, QStringLiteral("ababb"));
    m_width->UnregisterEventSink(&b);
}

void TestNodeMapArray::lets_sinks_go_in_their_own_call()
{
    Sink a(m_protocol, 'a');
    Sink b(m_protocol, 'b');
    Sink c(m_protocol, 'c');
    Sink other(m_protocol, 'o');
    ZetoGenParam::Boolean* flip = m_array->GetBoolean("Flip", nullptr);
    for (Sink* sink : {&a, &b, &c})
        m_width->RegisterEventSink(sink);
    flip->RegisterEventSink(&other);
    a.action = [&](ZetoGenParam::Param* param) {
        param->UnregisterEventSink(&a);
        param->UnregisterEventSink(&b);
        flip->SetValue(true);
    };
    m_width->SetValue(64);
    m_width->SetValue(68);
    QCOMPARE(QString(m_protocol).remove(QLatin1Char('o')), QStringLiteral("acc"));
    QCOMPARE(m_protocol.count(QLatin1Char('o')), 1);
    m_width->UnregisterEventSink(&c);
    flip->UnregisterEventSink(&other);
}

void TestNodeMapArray::waits_for_a_sink_on_another_thread()
{
    Sink sink(m_protocol, 's');
    std::atomic<bool> isInside{false};
    std::atomic<bool> isOver{false};
    sink.action = [&](ZetoGenParam::Param*) {
        isInside = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        isOver = true;
    };
    m_width->RegisterEventSink(&sink);
    std::thread writer([this] { m_width->SetValue(64); });
    while (!isInside)
        std::this_thread::yield();
    m_width->UnregisterEventSink(&sink);
    QVERIFY(isOver);
    writer.join();
}

ZETO_TEST_MAIN(TestNodeMapArray)
#include "tst_nodemaparray.moc"
