#include "browserfixture.h"

#include "faultinjector.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
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

/// Makes exactly \a rows rows visible.
void showRows(ZetoGenParamTreeView& view, int rows)
{
    QTreeView& tree = *view.treeView();
    const int rowHeight = tree.visualRect(tree.model()->index(0, 0)).height();
    view.resize(view.width(), view.height() + rows * rowHeight - tree.viewport()->height());
    QTRY_COMPARE(tree.viewport()->height(), rows * rowHeight);
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
    view.findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->setText(QStringLiteral("Gain"));
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
    void takesAnyPollingTime_data();
    void takesAnyPollingTime();
    void refreshesWhenIdle();
    void readsWhatIsOnScreen_data();
    void readsWhatIsOnScreen();
    void restsWhileNobodyLooks();
    void followsTheCamera();
    void tellsTheElapsedTime();
    void leavesAnOpenEditorAlone();
    void survivesEveryFault();
    void letsGoOfCamerasInUse();
};

void TestBrowserRefresh::takesAnyPollingTime_data()
{
    QTest::addColumn<quint64>("time");
    QTest::addColumn<quint64>("taken");
    QTest::newRow("usual") << quint64(500) << quint64(500);
    QTest::newRow("idle") << quint64(0) << quint64(0);
    QTest::newRow("longest") << quint64(2147483647) << quint64(2147483647);
    QTest::newRow("beyond") << quint64(0x100000001) << quint64(2147483647);
}

void TestBrowserRefresh::takesAnyPollingTime()
{
    QFETCH(quint64, time);
    ZetoGenParamTreeView view;
    QCOMPARE(view.getPollingTime(), uint64_t(0));
    QVERIFY(!view.isPollingEnabled());
    view.setPollingTime(time);
    QTEST(quint64(view.getPollingTime()), "taken");
    view.enablePolling(true);
    QVERIFY(view.isPollingEnabled());
    view.enablePolling(false);
    QVERIFY(!view.isPollingEnabled());
}

void TestBrowserRefresh::refreshesWhenIdle()
{
    const auto camera = makeCamera();
    ZetoGenParamTreeView view(camera.get());
    view.show();
    Traffic traffic;
    traffic.watch(*camera);
    view.enablePolling(true);
    QTRY_VERIFY(traffic.polls >= 3);
}

void TestBrowserRefresh::readsWhatIsOnScreen_data()
{
    QTest::addColumn<int>("features");
    QTest::addColumn<int>("scroll"); // rows
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("reads");
    QTest::newRow("small tree") << 100 << 0 << QString() << QStringLiteral("Feature0") << 38;
    QTest::newRow("large tree") << 10000 << 0 << QString() << QStringLiteral("Feature0") << 38;
    QTest::newRow("scrolled") << 1000 << 400 << QString() << QStringLiteral("Feature400") << 38;
    QTest::newRow("filtered") << 200 << 0 << QStringLiteral("Feature11") << QStringLiteral("Feature11") << 11;
}

void TestBrowserRefresh::readsWhatIsOnScreen()
{
    QFETCH(int, features);
    QFETCH(int, scroll);
    QFETCH(QString, filter);
    const auto camera = makeCamera(features);
    ZetoGenParamTreeView view(camera.get());
    view.show();
    view.treeView()->expandAll();
    showRows(view, 40);
    view.treeView()->verticalScrollBar()->setValue(
        scroll * view.treeView()->visualRect(view.treeView()->model()->index(0, 0)).height());
    view.findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->setText(filter);
    view.treeView()->collapse(rowOf(view, QStringLiteral("Category9")));
    QTest::qWait(1);

    Traffic traffic;
    traffic.watch(*camera);
    for (int i = 0; i < 3; ++i) {
        traffic.read.clear();
        tick(view);
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
    const auto camera = makeCamera(40);
    ZetoGenParamTreeView view(camera.get());
    view.show();
    view.treeView()->expandAll();
    view.treeView()->setCurrentIndex(rowOf(view, QStringLiteral("Feature3")));
    const QSignalSpy resets(view.treeView()->model(), &QAbstractItemModel::modelReset);
    const QSignalSpy removals(view.treeView()->model(), &QAbstractItemModel::rowsRemoved);
    std::thread([&camera] { camera->assign("Feature7", 77); }).join();
    tick(view);
    QCOMPARE(rowOf(view, QStringLiteral("Feature7"), 1).data().toString(), QStringLiteral("77"));
    QCOMPARE(view.treeView()->currentIndex(), rowOf(view, QStringLiteral("Feature3")));
    QCOMPARE(resets.size() + removals.size(), 0);
}

void TestBrowserRefresh::tellsTheElapsedTime()
{
    const auto camera = makeCamera(); // the temperature is due once a second
    ZetoGenParamTreeView view(camera.get());
    view.show();
    view.treeView()->expandAll();
    const QSignalSpy changes(view.treeView()->model(), &QAbstractItemModel::dataChanged);
    GenApi::INode* const node = camera->GetNode("DeviceTemperature");
    int calls = 0;
    const std::function<void(GenApi::INode*)> count = [&calls](GenApi::INode*) { ++calls; };
    const GenApi::CallbackHandleType handle = GenApi::Register(node, count);
    QElapsedTimer time;
    time.start();
    view.setPollingTime(100);
    view.enablePolling(true);
    QTRY_COMPARE(calls, 1);
    QVERIFY2(time.elapsed() > 700, QByteArray::number(time.elapsed()));
    node->DeregisterCallback(handle);
}

void TestBrowserRefresh::leavesAnOpenEditorAlone()
{
    const auto camera = makeCamera();
    ZetoGenParamTreeView view(camera.get());
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.treeView()->expandAll();
    view.treeView()->setFocus();
    view.treeView()->setCurrentIndex(rowOf(view, QStringLiteral("Gain")));
    QTest::keyClick(view.treeView(), Qt::Key_F2);
    QWidget* const editor = QApplication::focusWidget();
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("12"));
    camera->assign("Gain", 99);
    tick(view);
    QCOMPARE(QApplication::focusWidget(), editor);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(camera->integer("Gain"), 12);
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
    auto view = std::make_unique<ZetoGenParamTreeView>();
    view->show();
    view->enablePolling(true);
    for (int round = 0; round < 60; ++round) {
        view->setParams(round % 2 ? camera.get() : other.get());
        view->treeView()->expandAll();
        view->findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->setText(QString::number(round % 7));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        if (round % 3 == 0)
            view->clearParams();
        if (round % 10 == 0) {
            view = std::make_unique<ZetoGenParamTreeView>(camera.get());
            view->show();
        }
    }
    // The camera may go as soon as it is not shown any more, with all else still under way.
    view->setParams(other.get());
    isOver = true;
    writer.join();
    otherWriter.join();
    camera.reset();
    other->assign("Feature1", 4711);
    view->findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->clear();
    QTRY_COMPARE(rowOf(*view, QStringLiteral("Feature1"), 1).data().toString(), QStringLiteral("4711"));
    view->clearParams();
    other.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ZETO_TEST_MAIN(TestBrowserRefresh)
#include "tst_browserrefresh.moc"
