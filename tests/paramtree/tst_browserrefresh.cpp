#include "browserfixture.h"

#include "faultinjector.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>

using ZetoGui::ZetoGenParamTreeView;
using ZetoNodeMap::FaultInjector;
using ZetoNodeMap::NodeMap;

namespace {

/// What a browser asks of a camera.
struct Traffic
{
    void watch(NodeMap& camera)
    {
        camera.setAccessHook([this](const char* call, const GenApi::INode* node) {
            if (qstrcmp(call, "Poll") == 0)
                ++polls;
            else if (qstrcmp(call, "GetValue") == 0 || qstrcmp(call, "ToString") == 0)
                read.append(QString::fromUtf8(node->GetName().c_str()));
        });
    }

    int polls = 0;
    QStringList read; // by name
};

/// One tick of \a view's timer, and what is painted for it.
void tick(ZetoGenParamTreeView& view)
{
    QTimer& timer = *view.findChild<QTimer*>();
    timer.setSingleShot(true);
    timer.start(0);
    QTRY_VERIFY(!timer.isActive());
    QTest::qWait(1);
}

/// Everything that a browser does with a camera, in one go.
void browse(NodeMap& camera, bool clears)
{
    ZetoGenParamTreeView view(&camera);
    view.resize(400, 400);
    view.show();
    view.treeView()->expandAll();
    view.treeView()->setCurrentIndex(view.treeView()->model()->index(0, 0));
    view.setVisibility(ZetoGui::Guru);
    tick(view);
    view.findChild<QLineEdit*>("filterLineEdit")->setText("Gain");
    view.loadState(QByteArray(view.saveState()));
    view.grab();
    if (clears)
        view.clearParams();
}

} // namespace

class TestBrowserRefresh : public QObject
{
    Q_OBJECT

private slots:
    void takesAnyPollingTime();
    void refreshesWhenIdleWithoutATime();
    void readsWhatIsOnScreen_data();
    void readsWhatIsOnScreen();
    void restsWhileNobodyLooks();
    void followsTheCamera();
    void tellsTheElapsedTime();
    void survivesEveryFault();
    void letsGoOfCamerasInUse();
};

void TestBrowserRefresh::takesAnyPollingTime()
{
    constexpr uint64_t longest = 2147483647;
    ZetoGenParamTreeView view;
    QCOMPARE(view.getPollingTime(), uint64_t(0));
    QVERIFY(!view.isPollingEnabled());
    for (const uint64_t time : {uint64_t(500), uint64_t(0), longest, uint64_t(0x100000001)}) {
        view.setPollingTime(time);
        QCOMPARE(view.getPollingTime(), std::min(time, longest));
        QVERIFY(!view.isPollingEnabled());
    }
    for (const bool on : {true, false}) {
        view.enablePolling(on);
        QCOMPARE(view.isPollingEnabled(), on);
    }
}

void TestBrowserRefresh::refreshesWhenIdleWithoutATime()
{
    Browser browser;
    Traffic traffic;
    traffic.watch(*browser.camera);
    browser.view.enablePolling(true);
    QTRY_VERIFY(traffic.polls >= 3);
}

void TestBrowserRefresh::readsWhatIsOnScreen_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<int>("scroll"); // rows
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("reads");
    QTest::newRow("large tree") << 10000 << 0 << ""
                                << "Feature0" << 38;
    QTest::newRow("scrolled") << 1000 << 400 << ""
                              << "Feature400" << 38;
    QTest::newRow("filtered") << 200 << 0 << "Feature11"
                              << "Feature11" << 11;
}

void TestBrowserRefresh::readsWhatIsOnScreen()
{
    QFETCH(int, features);
    QFETCH(int, scroll);
    QFETCH(QString, filter);
    Browser browser(makeCamera(features));
    QTreeView& tree = browser.tree();
    tree.expandAll();
    const int rowHeight = tree.visualRect(tree.model()->index(0, 0)).height();
    browser.view.resize(browser.view.width(),
                        browser.view.height() + 40 * rowHeight - tree.viewport()->height());
    QTRY_COMPARE(tree.viewport()->height(), 40 * rowHeight);
    tree.verticalScrollBar()->setValue(scroll * rowHeight);
    browser.filter().setText(filter);
    tree.collapse(browser.row("Category9"));
    QTest::qWait(1);

    Traffic traffic;
    traffic.watch(*browser.camera);
    for (int i = 0; i < 3; ++i) {
        traffic.read.clear();
        tick(browser.view);
        QTEST(traffic.read.size(), "reads");
        traffic.read.sort();
        QTEST(traffic.read.value(0), "first");
        QCOMPARE(traffic.read.removeDuplicates(), 0);
    }
    QCOMPARE(traffic.polls, 3);
}

void TestBrowserRefresh::restsWhileNobodyLooks()
{
    const auto camera = makeCamera();
    ZetoGenParamTreeView view(camera.get());
    view.treeView()->expandAll();
    Traffic traffic;
    traffic.watch(*camera);
    tick(view); // not shown yet
    QVERIFY(traffic.read.isEmpty());
    view.show();
    tick(view);
    QCOMPARE(traffic.polls, 1);
    traffic.read.clear();
    view.showMinimized();
    tick(view);
    view.hide();
    tick(view);
    QVERIFY(traffic.read.isEmpty());
    QCOMPARE(traffic.polls, 1);
}

void TestBrowserRefresh::followsTheCamera()
{
    Browser browser(makeCamera(40));
    browser.tree().expandAll();
    browser.select("Feature3");
    const QSignalSpy resets(browser.tree().model(), &QAbstractItemModel::modelReset);
    const QSignalSpy removals(browser.tree().model(), &QAbstractItemModel::rowsRemoved);
    std::thread([&browser] { browser.camera->assign("Feature7", 77); }).join();
    tick(browser.view);
    QCOMPARE(browser.row("Feature7", 1).data().toString(), QStringLiteral("77"));
    QCOMPARE(browser.current(), QStringLiteral("Feature3"));
    QCOMPARE(resets.size() + removals.size(), 0);
}

void TestBrowserRefresh::tellsTheElapsedTime()
{
    Browser browser; // the temperature is due once a second
    GenApi::INode* const node = browser.camera->GetNode("DeviceTemperature");
    int calls = 0;
    const std::function<void(GenApi::INode*)> count = [&calls](GenApi::INode*) { ++calls; };
    const GenApi::CallbackHandleType handle = GenApi::Register(node, count);
    QElapsedTimer time;
    time.start();
    browser.view.setPollingTime(100);
    browser.view.enablePolling(true);
    QTRY_COMPARE(calls, 1);
    QVERIFY2(time.elapsed() > 700, QByteArray::number(time.elapsed()));
    node->DeregisterCallback(handle);
}

void TestBrowserRefresh::survivesEveryFault()
{
    const auto camera = makeCamera();
    FaultInjector faults;
    camera->setAccessHook(
        [&faults](const char* call, const GenApi::INode* node) { faults.enter(call, node); });
    const auto& kinds = FaultInjector::allFaults();
    int64_t call = 0;
    do {
        faults.throwAt(call, kinds[static_cast<size_t>(call) % kinds.size()]);
        browse(*camera, call % 2);
    } while (++call <= faults.callCount());
    QVERIFY(call > 100);

    for (unsigned seed = 0; seed < 40; ++seed) {
        faults.throwRandomly(0.3, seed);
        browse(*camera, seed % 2);
    }
}

void TestBrowserRefresh::letsGoOfCamerasInUse()
{
    auto camera = makeCamera(100);
    auto other = makeCamera(100);
    std::atomic<bool> isOver{false};
    const auto write = [&isOver](NodeMap& nodeMap) {
        for (int i = 0; !isOver; ++i)
            nodeMap.assign("Feature" + std::to_string(i % 100), i);
    };
    std::thread writer([&] { write(*camera); });
    std::thread otherWriter([&] { write(*other); });
    std::unique_ptr<ZetoGenParamTreeView> view;
    for (int round = 0; round < 60; ++round) {
        if (round % 10 == 0) {
            view = std::make_unique<ZetoGenParamTreeView>(camera.get());
            view->show();
            view->enablePolling(true);
        }
        view->setParams(round % 2 ? camera.get() : other.get());
        view->treeView()->expandAll();
        view->findChild<QLineEdit*>("filterLineEdit")->setText(QString::number(round % 7));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        if (round % 3 == 0)
            view->clearParams();
    }
    // The camera may go as soon as it is not shown any more, with all else still under way.
    view->setParams(other.get());
    isOver = true;
    writer.join();
    otherWriter.join();
    camera.reset();
    other->assign("Feature1", 4711);
    view->findChild<QLineEdit*>("filterLineEdit")->clear();
    const QAbstractItemModel& rows = *view->treeView()->model();
    const auto shown = [&rows] {
        const QModelIndexList found = rows.match(rows.index(0, 0), Qt::DisplayRole, "Feature1", 1,
                                                 Qt::MatchExactly | Qt::MatchRecursive);
        return found.value(0).siblingAtColumn(1).data().toString();
    };
    QTRY_COMPARE(shown(), "4711");
    view->clearParams();
    other.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ZETO_TEST_MAIN(TestBrowserRefresh)
#include "tst_browserrefresh.moc"
