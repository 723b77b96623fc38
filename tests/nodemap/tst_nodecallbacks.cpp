#include "exceptionname.h"
#include "nodemapbuilder.h"

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
    void a_change_fires_what_depends_on_it_data();
    void a_change_fires_what_depends_on_it();
    void inside_lock_comes_first_with_the_lock_held();
    void a_callback_may_change_nodes();
    void an_exception_leaves_the_change();
    void a_command_fires_again_when_it_is_done();
    void polling_fires_when_the_interval_is_over();
    void a_callback_may_deregister_itself_and_others();
    void callbacks_are_destroyed_once();
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

static QStringList taken(QStringList& log)
{
    return std::exchange(log, {});
}

/// The names of the nodes whose callbacks \a action fires: "A B".
static QString firedBy(NodeMap& map, const Action& action)
{
    QStringList fired;
    std::vector<std::pair<GenApi::INode*, GenApi::CallbackHandleType>> handles;
    GenApi::NodeList_t nodes;
    map.GetNodes(nodes);
    const std::function<void(GenApi::INode*)> note = [&](GenApi::INode* node) {
        fired += QString::fromLatin1(node->GetName().c_str());
    };
    for (GenApi::INode* node : nodes)
        handles.emplace_back(node, GenApi::Register(node, note, GenApi::cbPostOutsideLock));
    exceptionName([&] { action(map); });
    for (const auto& [node, handle] : handles)
        node->DeregisterCallback(handle);
    return fired.join(QLatin1Char(' '));
}

static GenApi::CIntegerPtr integer(NodeMap& map, const char* name)
{
    return GenApi::CIntegerPtr(map.GetNode(name));
}

void TestNodeCallbacks::a_change_fires_what_depends_on_it_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("fired");

    const auto row = [](const char* name, const char* fired, Action action) {
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
    row("event", "Level", [](auto& map) { map.deliverEvent("9001"); });
    row("another event", "", [](auto& map) { map.deliverEvent("9002"); });
    row("whole map", "Selector Gain Max Level Broken Bundle Reset A B",
        [](auto& map) { map.InvalidateNodes(); });
}

void TestNodeCallbacks::a_change_fires_what_depends_on_it()
{
    NodeMapBuilder b;
    b.integer("Selector").selects({"Gain"});
    b.integer("Gain").max("Max");
    b.integer("Max").value(10);
    b.integer("Level").invalidatedBy({"Gain"}).eventId("9001");
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
    NodeMapBuilder b;
    b.integer("A");
    b.integer("B").invalidatedBy({"A"});
    const auto map = b.build();
    QStringList log;
    QVector<bool> free;
    const auto checkLock = [&](GenApi::ECallbackType) {
        std::thread([&] {
            free += map->GetLock().TryLock();
            if (free.last())
                map->GetLock().Unlock();
        }).join();
    };
    new Recorder(*map->GetNode("B"), log, checkLock);
    new Recorder(*map->GetNode("A"), log, checkLock);
    integer(*map, "A")->SetValue(1);
    QCOMPARE(taken(log), QStringList({"A+", "B+", "A-", "B-"}));
    QCOMPARE(free, QVector<bool>({false, false, true, true}));
}

void TestNodeCallbacks::a_callback_may_change_nodes()
{
    NodeMapBuilder b;
    b.integer("A");
    b.integer("B");
    const auto map = b.build();
    QStringList log;
    new Recorder(*map->GetNode("A"), log, [&](GenApi::ECallbackType phase) {
        integer(*map, "B")->SetValue(integer(*map, "A")->GetValue() +
                                     (phase == GenApi::cbPostInsideLock ? 1 : 2));
    });
    new Recorder(*map->GetNode("B"), log);
    integer(*map, "A")->SetValue(10);
    QCOMPARE(taken(log), QStringList({"A+", "B+", "A-", "B+", "B-", "B-"}));
    QCOMPARE(integer(*map, "B")->GetValue(), 12);
}

void TestNodeCallbacks::an_exception_leaves_the_change()
{
    NodeMapBuilder b;
    b.integer("A");
    b.integer("B").invalidatedBy({"A"});
    const auto map = b.build();
    QStringList log;
    auto* thrower = new Recorder(*map->GetNode("A"), log,
                                 [](GenApi::ECallbackType) { throw RUNTIME_EXCEPTION("callback"); });
    new Recorder(*map->GetNode("B"), log);
    QCOMPARE(exceptionName([&] { integer(*map, "A")->SetValue(5); }), QStringLiteral("Runtime"));
    QCOMPARE(taken(log), QStringList({"A+"}));
    QCOMPARE(integer(*map, "A")->GetValue(), 5);
    QVERIFY(map->GetNode("A")->DeregisterCallback(thrower->handle()));
    taken(log);
    integer(*map, "B")->SetValue(1); // nothing is left over from the failed delivery
    QCOMPARE(taken(log), QStringList({"B+", "B-"}));
}

void TestNodeCallbacks::a_command_fires_again_when_it_is_done()
{
    bool done = false;
    NodeMapBuilder b;
    b.command("Save").doneWhen([&] { return done; }).pollingTime(100).invalidates({"State"});
    b.integer("State");
    const auto map = b.build();
    GenApi::CCommandPtr save(map->GetNode("Save"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { save->Execute(); }), QStringLiteral("Save State"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(!save->IsDone()); }), QString());
    done = true;
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(save->IsDone()); }), QStringLiteral("Save State"));
    QCOMPARE(firedBy(*map, [&](NodeMap&) { QVERIFY(save->IsDone()); }), QString());

    QCOMPARE(firedBy(*map, [](NodeMap& map) { map.Poll(100); }), QString());
    save->Execute();
    QCOMPARE(firedBy(*map, [](NodeMap& map) { map.Poll(100); }), QStringLiteral("Save State"));
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
    NodeMapBuilder b;
    b.integer("A");
    const auto map = b.build();
    GenApi::INode& node = *map->GetNode("A");
    QStringList log;
    Recorder* second = nullptr;
    Recorder* first = nullptr;
    first = new Recorder(node, log, [&](GenApi::ECallbackType) {
        node.DeregisterCallback(second->handle());
        node.DeregisterCallback(first->handle());
    });
    second = new Recorder(node, log);
    integer(*map, "A")->SetValue(1);
    QCOMPARE(log.count("A+"), 1); // the second was removed before its turn
    QCOMPARE(log.count("destroyed"), 2);
}

void TestNodeCallbacks::callbacks_are_destroyed_once()
{
    QStringList log;
    {
        NodeMapBuilder b;
        b.integer("A");
        b.integer("B");
        const auto map = b.build();
        const auto handle = (new Recorder(*map->GetNode("A"), log))->handle();
        new Recorder(*map->GetNode("A"), log);
        QVERIFY(!map->GetNode("B")->DeregisterCallback(handle));
        QVERIFY(map->GetNode("A")->DeregisterCallback(handle));
        QCOMPARE(taken(log), QStringList({"destroyed"}));
        QVERIFY(!map->GetNode("A")->DeregisterCallback(handle));
        QCOMPARE(exceptionName([&] { map->GetNode("A")->RegisterCallback(nullptr); }),
                 QStringLiteral("InvalidArgument"));
        GenApi::Deregister((new Recorder(*map->GetNode("B"), log))->handle());
        QCOMPARE(taken(log), QStringList({"destroyed"}));
    }
    QCOMPARE(log, QStringList({"destroyed"}));
}

ZETO_TEST_MAIN(TestNodeCallbacks)
#include "tst_nodecallbacks.moc"
