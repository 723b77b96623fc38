#include "exceptionname.h"
#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

#include <atomic>
#include <thread>

using namespace ZetoNodeMap;

/// Any thread may use a node map at any time.
class TestNodeThreads : public QObject
{
    Q_OBJECT

private slots:
    void all_calls_wait_for_the_lock();
    void values_stay_consistent_while_threads_write();
    void callbacks_come_and_go_while_threads_write();
};

static std::unique_ptr<NodeMap> makeMap()
{
    NodeMapBuilder b;
    b.integer("Selector").limits(0, 3).selects({"Value"});
    b.integer("Value");
    b.integer("Twice").onRead([](const NodeMap& map) { return 2 * map.integer("Value"); });
    b.enumeration("Mode").entries({"Off", "On"}).pollingTime(1).invalidates({"Twice"});
    return b.build();
}

static GenApi::CIntegerPtr integer(NodeMap& map, const char* name)
{
    return GenApi::CIntegerPtr(map.GetNode(name));
}

void TestNodeThreads::all_calls_wait_for_the_lock()
{
    const auto map = makeMap();
    std::atomic<int> value{-1};
    map->GetLock().Lock();
    std::thread reader([&] { value = static_cast<int>(integer(*map, "Value")->GetValue()); });
    QTest::qSleep(20);
    QCOMPARE(value.load(), -1);
    integer(*map, "Value")->SetValue(7); // the owner of the lock passes
    map->GetLock().Unlock();
    reader.join();
    QCOMPARE(value.load(), 7);
}

void TestNodeThreads::values_stay_consistent_while_threads_write()
{
    const auto map = makeMap();
    std::atomic<bool> stop{false};
    const auto write = [&](int64_t start) {
        for (int64_t value = start; !stop; ++value) {
            integer(*map, "Selector")->SetValue(value % 4);
            integer(*map, "Value")->SetValue(value);
            GenApi::CEnumerationPtr(map->GetNode("Mode"))->SetIntValue(value % 2);
            map->Poll(1);
        }
    };
    std::thread first(write, 0);
    std::thread second(write, 1000);
    bool consistent = true;
    for (int round = 0; round < 3000; ++round) {
        const GenApi::AutoLock lock(map->GetLock());
        consistent &= integer(*map, "Twice")->GetValue() == 2 * integer(*map, "Value")->GetValue();
    }
    stop = true;
    first.join();
    second.join();
    QVERIFY(consistent);
}

/// A callback as thin as a client makes it: what it refers to is detached first and outlives it.
class Forwarder : public GenApi::CNodeCallback
{
public:
    struct Target
    {
        std::atomic<bool> attached{true};
        std::atomic<int> calls{0};
    };

    Forwarder(GenApi::INode* node, std::shared_ptr<Target> target, std::atomic<int>& alive)
        : CNodeCallback(node, GenApi::cbPostOutsideLock)
        , m_target(std::move(target))
        , m_alive(alive)
    {
        ++m_alive;
    }
    void operator()(GenApi::ECallbackType phase) const override
    {
        if (phase == m_CallbackType && m_target->attached)
            ++m_target->calls;
    }
    void Destroy() override
    {
        --m_alive;
        delete this;
    }

private:
    std::shared_ptr<Target> m_target;
    std::atomic<int>& m_alive;
};

void TestNodeThreads::callbacks_come_and_go_while_threads_write()
{
    const auto map = makeMap();
    std::atomic<bool> stop{false};
    std::atomic<int> alive{0};
    std::thread writer([&] {
        for (int64_t value = 0; !stop; ++value)
            integer(*map, "Selector")->SetValue(value % 4);
    });
    GenApi::INode* node = map->GetNode("Value");
    int calls = 0;
    for (int round = 0; round < 1000 || calls == 0; ++round) {
        const auto target = std::make_shared<Forwarder::Target>();
        const auto handle = node->RegisterCallback(new Forwarder(node, target, alive));
        if (round % 10 == 0)
            QTest::qSleep(1);
        target->attached = false;
        QVERIFY(node->DeregisterCallback(handle));
        calls += target->calls;
    }
    stop = true;
    writer.join();
    QCOMPARE(alive.load(), 0);
}

ZETO_TEST_MAIN(TestNodeThreads)
#include "tst_nodethreads.moc"
