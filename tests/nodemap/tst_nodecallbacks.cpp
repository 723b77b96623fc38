#include "exceptionname.h"
#include "nodemapbuilder.h"
#include "reportrecorder.h"

#include "testmain.h"

#include <QtTest>

#include <functional>

using namespace ZetoNodeMap;
using Action = std::function<void(NodeMap&)>;
Q_DECLARE_METATYPE(Action)

/// Which callbacks a change fires, in what order, and who owns them.
class TestNodeCallbacks : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void a_change_fires_what_depends_on_it_data();
    void a_change_fires_what_depends_on_it();
    void inside_lock_comes_first_with_the_lock_held();
    void a_callback_may_change_nodes();
    void an_exception_leaves_the_change();
    void a_command_fires_again_when_it_is_done();
    void polling_fires_when_the_interval_is_over();
    void a_callback_may_deregister_itself_and_others();
    void callbacks_are_destroyed_once();

private:
    GenApi::INode& node(const char* name) { return *m_map->GetNode(name); }

    std::unique_ptr<NodeMap> m_map; ///< of the integers A, B, which changes with A, and C
    QStringList m_log;
};

/// Notes when it is called and destroyed.
class Recorder : public GenApi::CNodeCallback
{
public:
    Recorder(GenApi::INode& node, QStringList& log,
             std::function<void(GenApi::ECallbackType)> action = nullptr)
        : CNodeCallback(&node, GenApi::cbPostInsideLock)
        , m_log(log)
        , m_action(std::move(action))
    {
        node.RegisterCallback(this);
    }

    void operator()(GenApi::ECallbackType phase) const override
    {
        const QString name = QString::fromLatin1(m_pNode->GetName().c_str());
        m_log += name + QLatin1Char(phase == GenApi::cbPostInsideLock ? '+' : '-');
        if (m_action)
            m_action(phase);
    }

    void Destroy() override
    {
        m_log += QStringLiteral("destroyed");
        delete this;
    }

    GenApi::CallbackHandleType handle() const { return reinterpret_cast<GenApi::CallbackHandleType>(this); }

private:
    QStringList& m_log;
    std::function<void(GenApi::ECallbackType)> m_action;
};

/// The names of the nodes whose callbacks \a action fires: "A B".
static QString firedBy(NodeMap& map, const Action& action)
{
    GenApi::NodeList_t nodes;
    map.GetNodes(nodes);
    ReportRecorder recorder(nodes);
    exceptionName([&] { action(map); });
    return recorder.take().join(QLatin1Char(' '));
}

static GenApi::CIntegerPtr integer(NodeMap& map, const char* name)
{
    return GenApi::CIntegerPtr(map.GetNode(name));
}

void TestNodeCallbacks::init()
{
    NodeMapBuilder b;
    b.integer("A");
    b.integer("B").invalidatedBy({"A"});
    b.integer("C");
    m_map = b.build();
    m_log.clear();
}

void TestNodeCallbacks::a_change_fires_what_depends_on_it_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("fired");

    const auto row = [](const char* name, const char* fired, const Action& action) {
        QTest::newRow(name) << action << QString::fromLatin1(fired);
    };
    row("write", "Gain Level", [](auto& map) { integer(map, "Gain")->SetValue(3); });
    row("write of the same value", "Gain Level", [](auto& map) { integer(map, "Gain")->SetValue(0); });
    row("write of a text", "Gain Level", [](auto& map) { integer(map, "Gain")->FromString("3"); });
    row("write of a selector", "Selector Gain Level",
        [](auto& map) { integer(map, "Selector")->SetValue(1); });
    row("refused write", "", [](auto& map) { integer(map, "Gain")->SetValue(11); });
    row("write refused by the camera", "", [](auto& map) { integer(map, "Broken")->SetValue(1); });
    row("read", "", [](auto& map) { integer(map, "Gain")->GetValue(); });
    row("write that makes writes", "Gain Level Selector Bundle",
        [](auto& map) { integer(map, "Bundle")->SetValue(1); });
    row("execute", "Reset Selector Gain Level",
        [](auto& map) { GenApi::CCommandPtr(map.GetNode("Reset"))->Execute(); });
    row("invalidate", "Max Gain Level", [](auto& map) { map.GetNode("Max")->InvalidateNode(); });
    row("cycle", "A B", [](auto& map) { map.GetNode("A")->InvalidateNode(); });
    row("impose", "", [](auto& map) {
        map.GetNode("Gain")->ImposeAccessMode(GenApi::RO);
        integer(map, "Gain")->ImposeMax(1);
    });
    row("assign", "Gain Level", [](auto& map) { map.assign("Gain", 200); });
    row("change of access", "Max Gain Level", [](auto& map) { map.setAccessMode("Max", GenApi::NA); });
    row("whole map", "Selector Gain Max Level Broken Bundle Reset A B",
        [](auto& map) { map.InvalidateNodes(); });
}

void TestNodeCallbacks::a_change_fires_what_depends_on_it()
{
    NodeMapBuilder b;
    b.integer("Selector").selects({"Gain"});
    b.integer("Gain").max("Max");
    b.integer("Max").value(10);
    b.integer("Level").invalidatedBy({"Gain"});
    b.integer("Broken").onWrite([](NodeMap& map, int64_t) {
        integer(map, "Gain")->SetValue(1);
        throw TIMEOUT_EXCEPTION("gone");
    });
    b.integer("Bundle").onWrite([](NodeMap& map, int64_t value) {
        integer(map, "Gain")->SetValue(value);
        integer(map, "Selector")->SetValue(value);
        integer(map, "Gain")->SetValue(value);
    });
    b.command("Reset").invalidates({"Selector"});
    b.integer("A").invalidatedBy({"B"});
    b.integer("B").invalidatedBy({"A"});
    const auto map = b.build();
    QFETCH(Action, action);
    QFETCH(QString, fired);
    QCOMPARE(firedBy(*map, action), fired);
}

void TestNodeCallbacks::inside_lock_comes_first_with_the_lock_held()
{
    QVector<bool> free;
    const auto checkLock = [&](GenApi::ECallbackType) {
        std::thread([&] {
            free += m_map->GetLock().TryLock();
            if (free.last())
                m_map->GetLock().Unlock();
        }).join();
    };
    new Recorder(node("B"), m_log, checkLock);
    new Recorder(node("A"), m_log, checkLock);
    integer(*m_map, "A")->SetValue(1);
    QCOMPARE(m_log, QStringList({"A+", "B+", "A-", "B-"}));
    QCOMPARE(free, QVector<bool>({false, false, true, true}));
}

void TestNodeCallbacks::a_callback_may_change_nodes()
{
    new Recorder(node("B"), m_log, [&](GenApi::ECallbackType phase) {
        integer(*m_map, "C")->SetValue(phase == GenApi::cbPostInsideLock ? 1 : 2);
    });
    new Recorder(node("C"), m_log);
    integer(*m_map, "B")->SetValue(10);
    QCOMPARE(m_log, QStringList({"B+", "C+", "B-", "C+", "C-", "C-"}));
    QCOMPARE(integer(*m_map, "C")->GetValue(), 2);
}

void TestNodeCallbacks::an_exception_leaves_the_change()
{
    auto* thrower =
        new Recorder(node("A"), m_log, [](GenApi::ECallbackType) { throw RUNTIME_EXCEPTION("callback"); });
    new Recorder(node("B"), m_log);
    QCOMPARE(exceptionName([&] { integer(*m_map, "A")->SetValue(5); }), QStringLiteral("Runtime"));
    QCOMPARE(integer(*m_map, "A")->GetValue(), 5);
    QVERIFY(node("A").DeregisterCallback(thrower->handle()));
    integer(*m_map, "B")->SetValue(1); // nothing is left over from the failed delivery
    QCOMPARE(m_log, QStringList({"A+", "destroyed", "B+", "B-"}));
}

void TestNodeCallbacks::a_command_fires_again_when_it_is_done()
{
    bool done = false;
    NodeMapBuilder b;
    b.command("Save").doneWhen([&] { return done; }).pollingTime(100).invalidates({"State"});
    b.integer("State");
    b.command("Broken").doneWhen([]() -> bool { throw TIMEOUT_EXCEPTION("gone"); }).pollingTime(100);
    b.integer("Later").pollingTime(300);
    const auto map = b.build();
    GenApi::CCommandPtr save(map->GetNode("Save"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { save->Execute(); }), QStringLiteral("Save State"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(!save->IsDone()); }), QString());
    done = true;
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(save->IsDone()); }), QStringLiteral("Save State"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(save->IsDone()); }), QString());

    QCOMPARE(firedBy(*map, [](NodeMap& map) { map.Poll(100); }), QString());
    save->Execute();
    GenApi::CCommandPtr(map->GetNode("Broken"))->Execute(); // keeps no other node from being polled
    QCOMPARE(firedBy(*map, [](NodeMap& map) { map.Poll(100); }), QStringLiteral("Save State"));
    QCOMPARE(firedBy(*map, [](NodeMap& map) { map.Poll(100); }), QStringLiteral("Later"));
}

void TestNodeCallbacks::polling_fires_when_the_interval_is_over()
{
    NodeMapBuilder b;
    b.integer("Slow").pollingTime(1000);
    b.integer("Fast").pollingTime(250);
    b.integer("Dependent").invalidatedBy({"Fast"});
    const auto map = b.build();
    QStringList fired;
    for (int step = 0; step < 10; ++step)
        fired += firedBy(*map, [](NodeMap& map) { map.Poll(100); });
    QCOMPARE(fired.join(QLatin1Char(',')),
             QStringLiteral(",,Fast Dependent,,,Fast Dependent,,,Fast Dependent,Slow"));
}

void TestNodeCallbacks::a_callback_may_deregister_itself_and_others()
{
    Recorder* second = nullptr;
    Recorder* first = nullptr;
    first = new Recorder(node("A"), m_log, [&](GenApi::ECallbackType) {
        node("A").DeregisterCallback(second->handle());
        node("A").DeregisterCallback(first->handle());
    });
    second = new Recorder(node("A"), m_log);
    integer(*m_map, "A")->SetValue(1); // the second is removed before its turn
    QCOMPARE(m_log, QStringList({"A+", "destroyed", "destroyed"}));
}

void TestNodeCallbacks::callbacks_are_destroyed_once()
{
    const auto handle = (new Recorder(node("A"), m_log))->handle();
    new Recorder(node("A"), m_log);
    QVERIFY(!node("B").DeregisterCallback(handle));
    QVERIFY(node("A").DeregisterCallback(handle));
    QCOMPARE(m_log.size(), 1);
    QVERIFY(!node("A").DeregisterCallback(handle));
    QCOMPARE(exceptionName([&] { node("A").RegisterCallback(nullptr); }), QStringLiteral("InvalidArgument"));
    GenApi::Deregister((new Recorder(node("B"), m_log))->handle());
    QCOMPARE(m_log.size(), 2);
    m_map.reset();
    QCOMPARE(m_log, QStringList({"destroyed", "destroyed", "destroyed"}));
}

ZETO_TEST_MAIN(TestNodeCallbacks)
#include "tst_nodecallbacks.moc"
