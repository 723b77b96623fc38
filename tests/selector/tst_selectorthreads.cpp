#include "selectorfixture.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QtTest>

#include <atomic>
#include <thread>

namespace {

/// Plugs and unplugs on a thread of its own until it is destroyed.
class Hand
{
public:
    explicit Hand(ZetoSimulator::SimulatorControl& control)
        : m_thread([this, &control] { work(control); })
    {
    }
    ~Hand()
    {
        m_isStopped = true;
        m_thread.join();
    }
    Q_DISABLE_COPY(Hand)

    int count() const { return m_count; }

private:
    void work(ZetoSimulator::SimulatorControl& control)
    {
        QRandomGenerator random(99);
        const auto cameras = control.cameraIds();
        const auto interfaces = control.interfaceIds();
        const auto oneOf = [&random](const std::vector<std::string>& ids) {
            return ids[random.bounded(static_cast<quint32>(ids.size()))];
        };
        for (; !m_isStopped; ++m_count) {
            if (random.bounded(4) == 0)
                control.setInterfacePlugged(oneOf(interfaces), random.bounded(3));
            else
                control.setCameraPlugged(oneOf(cameras), random.bounded(2));
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        }
    }

    std::atomic<bool> m_isStopped{false};
    std::atomic<int> m_count{0};
    std::thread m_thread;
};

} // namespace

/// Searches on the selector's thread while cameras come and go. Meant for the sanitizers.
class TestSelectorThreads : public QObject
{
    Q_OBJECT

private slots:
    void followsThousandsOfEvents();
    void handsSnapshotsOver();
    void closesAtAnyTime();
};

void TestSelectorThreads::followsThousandsOfEvents()
{
    StandardSelector selector(true);
    selector.dialog.show();
    {
        const Hand hand(selector.control());
        for (int round = 0; round < 200 || hand.count() < 2000; ++round) {
            selector.polling().click(); // every second time a new search begins at once
            selector.tree().setCurrentIndex(selector.tree().indexBelow(selector.tree().currentIndex()));
            QCoreApplication::processEvents();
        }
    }
    if (selector.polling().isChecked())
        selector.polling().click();
    selector.polling().click();
    const auto isCurrent = [&] {
        DeviceTreeModel fresh(&selector.system());
        fresh.fetchMore(QModelIndex());
        for (int row = 0; row < fresh.rowCount(); ++row)
            fresh.fetchMore(fresh.index(row, 0));
        return idsOf(fresh) == selector.ids();
    };
    QTRY_VERIFY(isCurrent());
}

void TestSelectorThreads::handsSnapshotsOver()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    const Hand hand(hardware.control());
    std::atomic<bool> isChanged{false};
    std::atomic<bool> isStopped{false};
    std::thread searcher([&] {
        while (!isStopped) {
            if (model.hasChanged())
                isChanged = true;
        }
    });
    int applied = 0;
    while (applied < 1000) {
        if (isChanged.exchange(false)) {
            model.applyChanges();
            ++applied;
        }
        model.fetchMore(QModelIndex());
        model.fetchMore(model.firstIndex());
        QVERIFY(!model.firstIndex().isValid() || !idsOf(model).isEmpty());
    }
    isStopped = true;
    searcher.join();
}

void TestSelectorThreads::closesAtAnyTime()
{
    SimulatorFixture hardware;
    const Hand hand(hardware.control());
    for (int round = 0; round < 100; ++round) {
        Selector selector(&hardware.system(), true);
        selector.select("sim.gev0.dual");
        for (int i = 0; i < round % 4; ++i)
            QCoreApplication::processEvents();
    }
}

ZETO_TEST_MAIN(TestSelectorThreads)
#include "tst_selectorthreads.moc"
