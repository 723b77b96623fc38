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

Q_DECLARE_METATYPE(std::function<void()>)

/// A feature seen as a parameter has the node's value, and codes instead of exceptions.
class TestNodeMapArray : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void finds_parameters_by_name_and_type_data();
    void finds_parameters_by_name_and_type();
    void reports_what_a_node_throws_as_a_code_data();
    void reports_what_a_node_throws_as_a_code();
    void keeps_64_bits_data();
    void keeps_64_bits();
    void refuses_integers_off_limits();
    void chooses_entries_data();
    void chooses_entries();
    void knows_a_value_without_an_entry();
    void reads_and_writes_other_kinds();
    void calls_sinks_once_for_each_change();
    void lets_sinks_go_in_their_own_call();
    void waits_for_a_sink_on_another_thread();

private:
    std::unique_ptr<NodeMap> m_map;
    std::unique_ptr<ZetoGenParam::NodeMapArray> m_array;
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
    m_map = makeMap();
    m_array = std::make_unique<ZetoGenParam::NodeMapArray>(*m_map);
}

void TestNodeMapArray::cleanup()
{
    m_array.reset();
    m_map.reset();
}

void TestNodeMapArray::finds_parameters_by_name_and_type_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("codeAsInt");
    QTest::addColumn<int>("codeAsEnum");
    QTest::newRow("integer") << QByteArray("Width") << int(ZetoGenParam::TypeInt) << 0 << -40203;
    QTest::newRow("enumeration") << QByteArray("Mode") << int(ZetoGenParam::TypeEnum) << -40203 << 0;
    QTest::newRow("category") << QByteArray("Root") << int(ZetoGenParam::TypeUnknown) << -40203 << -40203;
    QTest::newRow("unknown") << QByteArray("Nope") << -1 << -40205 << -40205;
    QTest::newRow("null") << QByteArray() << -1 << -40205 << -40205;
}

void TestNodeMapArray::finds_parameters_by_name_and_type()
{
    QFETCH(QByteArray, name);
    QFETCH(int, type);
    const char* text = name.isNull() ? nullptr : name.constData();
    int32_t code = 1;
    ZetoGenParam::Param* param = m_array->GetParam(text, &code);
    QCOMPARE(param ? param->GetType() : -1, type);
    QCOMPARE(code, param ? 0 : -40205);
    const bool isInt = m_array->GetInt(text, &code);
    QCOMPARE(isInt, code == 0);
    QTEST(code, "codeAsInt");
    const bool isEnum = m_array->GetEnum(text, &code);
    QCOMPARE(isEnum, code == 0);
    QTEST(code, "codeAsEnum");
    QCOMPARE(m_array->GetParam(text, nullptr), param);
}

void TestNodeMapArray::reports_what_a_node_throws_as_a_code_data()
{
    QTest::addColumn<std::function<void()>>("fail");
    QTest::addColumn<int>("code");
    const auto row = [](const char* name, auto exception, int code) {
        QTest::newRow(name) << std::function<void()>([exception] { throw exception; }) << code;
    };
    row("access", GenICam::AccessException("x", "f", 1), -40202);
    row("range", GenICam::OutOfRangeException("x", "f", 1), -40204);
    row("argument", GenICam::InvalidArgumentException("x", "f", 1), -40206);
    row("type", GenICam::DynamicCastException("x", "f", 1), -40203);
    row("tree", GenICam::LogicalErrorException("x", "f", 1), -40201);
    row("timeout", GenICam::TimeoutException("x", "f", 1), -40006);
    row("other of GenICam", GenICam::RuntimeException("x", "f", 1), -40200);
    row("a code", ZetoGenParam::CodeException(-40101), -40101);
    row("of the standard library", std::runtime_error("x"), -40001);
    row("no exception class", 42, -40001);
}

void TestNodeMapArray::reports_what_a_node_throws_as_a_code()
{
    QFETCH(std::function<void()>, fail);
    ZetoGenParam::Int* width = m_array->GetInt("Width", nullptr);
    m_map->setAccessHook([fail](const char*, const GenApi::INode*) { fail(); });
    QTEST(width->SetValue(64), "code");
    int32_t code = 0;
    QCOMPARE(width->GetValue(&code), int64_t{0});
    QTEST(code, "code");
    QVERIFY(!width->IsWritable());
    m_map->setAccessHook({});
    QCOMPARE(width->GetValue(nullptr), int64_t{640});
}

void TestNodeMapArray::keeps_64_bits_data()
{
    QTest::addColumn<qint64>("value");
    QTest::newRow("least") << std::numeric_limits<qint64>::min();
    QTest::newRow("most") << std::numeric_limits<qint64>::max();
    QTest::newRow("no double") << (qint64{1} << 53) + 1;
}

void TestNodeMapArray::keeps_64_bits()
{
    QFETCH(qint64, value);
    ZetoGenParam::Int* whole = m_array->GetInt("Whole", nullptr);
    QCOMPARE(whole->SetValue(value), 0);
    int32_t code = 1;
    QCOMPARE(qint64{whole->GetValue(&code)}, value);
    QCOMPARE(code, 0);
    QCOMPARE(qint64{whole->GetMin(nullptr)}, std::numeric_limits<qint64>::min());
    QCOMPARE(qint64{whole->GetMax(nullptr)}, std::numeric_limits<qint64>::max());
}

void TestNodeMapArray::refuses_integers_off_limits()
{
    ZetoGenParam::Int* width = m_array->GetInt("Width", nullptr);
    QCOMPARE(width->GetIncrement(nullptr), int64_t{4});
    QCOMPARE(width->SetValue(4100), -40204);
    QCOMPARE(width->SetValue(642), -40204);
    QCOMPARE(m_array->GetInt("Fixed", nullptr)->SetValue(2), -40202);
    QCOMPARE(width->GetValue(nullptr), int64_t{640});
}

void TestNodeMapArray::chooses_entries_data()
{
    QTest::addColumn<QByteArray>("symbolic");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("code");
    QTest::newRow("there") << QByteArray("On") << 3 << 0;
    QTest::newRow("not now") << QByteArray("Never") << 4 << -40202;
    QTest::newRow("unknown") << QByteArray("on") << 1 << -40206;
    QTest::newRow("null") << QByteArray() << -1 << -40206;
}

void TestNodeMapArray::chooses_entries()
{
    QFETCH(QByteArray, symbolic);
    QFETCH(int, value);
    QFETCH(int, code);
    ZetoGenParam::Enum* mode = m_array->GetEnum("Mode", nullptr);
    QCOMPARE(mode->SetValueStr(symbolic.isNull() ? nullptr : symbolic.constData()), code);
    QCOMPARE(mode->GetValueStr(nullptr), code ? "Off" : symbolic.constData());
    QCOMPARE(mode->SetValueStr("Off"), 0);
    QCOMPARE(mode->SetValue(value), code);
    QCOMPARE(mode->GetValue(nullptr), int64_t{code ? 0 : value});
}

void TestNodeMapArray::knows_a_value_without_an_entry()
{
    ZetoGenParam::Enum* mode = m_array->GetEnum("Mode", nullptr);
    QCOMPARE(mode->GetEntriesCount(), uint64_t{3});
    QCOMPARE(mode->GetEntry(1)->GetSymbolic(), "On");
    QCOMPARE(mode->GetEntry(1)->GetValue(), int64_t{3});
    QVERIFY(!mode->GetEntry(2)->IsAvailable());
    QVERIFY(!mode->GetEntry(3));
    m_map->assign("Mode", 99);
    int32_t code = 0;
    QCOMPARE(mode->GetValueStr(&code), "");
    QCOMPARE(code, -40200);
    QCOMPARE(mode->GetValue(&code), int64_t{99});
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
    QString protocol;
    Sink a(protocol, 'a');
    Sink b(protocol, 'b');
    ZetoGenParam::Int* width = m_array->GetInt("Width", nullptr);
    QCOMPARE(width->RegisterEventSink(&a), 0);
    QCOMPARE(width->RegisterEventSink(&a), 0);
    QCOMPARE(width->RegisterEventSink(&b), 0);
    QCOMPARE(width->RegisterEventSink(nullptr), -40007);
    width->SetValue(64);
    width->SetValue(4100);
    GenApi::CIntegerPtr(m_map->GetNode("Width"))->SetValue(68);
    QCOMPARE(width->UnregisterEventSink(&a), 0);
    QCOMPARE(width->UnregisterEventSink(&a), 0);
    width->SetValue(72);
    QCOMPARE(protocol, QStringLiteral("ababb"));
    width->UnregisterEventSink(&b);
}

void TestNodeMapArray::lets_sinks_go_in_their_own_call()
{
    QString protocol;
    Sink a(protocol, 'a');
    Sink b(protocol, 'b');
    Sink c(protocol, 'c');
    Sink other(protocol, 'o');
    ZetoGenParam::Int* width = m_array->GetInt("Width", nullptr);
    ZetoGenParam::Boolean* flip = m_array->GetBoolean("Flip", nullptr);
    for (Sink* sink : {&a, &b, &c})
        width->RegisterEventSink(sink);
    flip->RegisterEventSink(&other);
    a.action = [&](ZetoGenParam::Param* param) {
        param->UnregisterEventSink(&a);
        param->UnregisterEventSink(&b);
        flip->SetValue(true);
    };
    width->SetValue(64);
    width->SetValue(68);
    QCOMPARE(QString(protocol).remove(QLatin1Char('o')), QStringLiteral("acc"));
    QCOMPARE(protocol.count(QLatin1Char('o')), 1);
    width->UnregisterEventSink(&c);
    flip->UnregisterEventSink(&other);
}

void TestNodeMapArray::waits_for_a_sink_on_another_thread()
{
    QString protocol;
    Sink sink(protocol, 's');
    std::atomic<bool> isInside{false};
    std::atomic<bool> isOver{false};
    sink.action = [&](ZetoGenParam::Param*) {
        isInside = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        isOver = true;
    };
    ZetoGenParam::Int* width = m_array->GetInt("Width", nullptr);
    width->RegisterEventSink(&sink);
    std::thread writer([width] { width->SetValue(64); });
    while (!isInside)
        std::this_thread::yield();
    width->UnregisterEventSink(&sink);
    QVERIFY(isOver);
    writer.join();
}

ZETO_TEST_MAIN(TestNodeMapArray)
#include "tst_nodemaparray.moc"
