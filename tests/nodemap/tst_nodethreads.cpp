#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

#include <atomic>
#include <functional>
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
void TestNodeThreads::callbacks_come_and_go_while_threads_write()
{
    struct Target
    {
        std::atomic<bool> attached{true};
        std::atomic<int> calls{0};
    };
    const auto map = makeMap();
    std::atomic<bool> stop{false};
    std::thread writer([&] {
        for (int64_t value = 0; !stop; ++value)
            integer(*map, "Selector")->SetValue(value % 4);
    });
    GenApi::INode* node = map->GetNode("Value");
    std::vector<std::shared_ptr<Target>> targets;
    for (int calls = 0; targets.size() < 1000 || calls == 0; calls += targets.back()->calls) {
        const auto target = targets.emplace_back(std::make_shared<Target>());
        const std::function<void(GenApi::INode*)> forward = [target](GenApi::INode*) {
            if (target->attached)
                ++target->calls;
        };
        const auto handle = GenApi::Register(node, forward, GenApi::cbPostOutsideLock);
        if (targets.size() % 10 == 0)
            QTest::qSleep(1);
        target->attached = false;
        QVERIFY(node->DeregisterCallback(handle));
    }
    stop = true;
    writer.join();
    for (const auto& target : targets)
        QCOMPARE(target.use_count(), 1L); // its callback is destroyed
}

ZETO_TEST_MAIN(TestNodeThreads)
#include "tst_nodethreads.moc"
