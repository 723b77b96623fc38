#include "devicetreenodes.h"
#include "selectorfixture.h"
#include "testmain.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <stdexcept>

using ZetoSimulator::SimulatorSetup;

namespace {

void fetchAll(DeviceTreeModel& model, const QModelIndex& parent = QModelIndex())
{
    model.fetchMore(parent);
    for (int row = 0; row < model.rowCount(parent); ++row)
        fetchAll(model, model.index(row, 0, parent));
}

/// What a model is to show that has scanned now.
QString listedBy(SimulatorFixture& hardware)
{
    QStringList rows;
    for (ZetoCam::Interface* each : hardware.interfaces()) {
        QStringList ids;
        for (ZetoCam::DeviceInfo* camera : SimulatorFixture::cameras(*each))
            ids += idOf(*camera);
        rows += ids.isEmpty() ? idOf(*each)
                              : QStringLiteral("%1(%2)").arg(idOf(*each), ids.join(QLatin1Char(' ')));
    }
    return rows.join(QLatin1Char(' '));
}

const QString standardRows =
    QStringLiteral("sim.gev0(sim.gev0.dual sim.gev0.foreign sim.gev0.held sim.gev0.wanderer sim.gev0.awkward)"
                   " sim.gev1 sim.u3v0(sim.u3v0.plain) sim.cl0(sim.cl0.dual)");

} // namespace

class TestDeviceTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void fetchesLazily();
    void givesTextsAndObjects();
    void findsFetchedRowsById();
    void showsNothingWithoutInterfaces();
    void showsChangesWhenAppliedOrRefreshed();
    void comparesIdentitiesInOrder();
    void staysConsistentThroughRandomSteps();
    void refusesNodeWithoutModel();
};

void TestDeviceTreeModel::fetchesLazily()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    const QSignalSpy inserted(&model, &DeviceTreeModel::rowsInserted);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(model.hasChildren() && model.canFetchMore(QModelIndex()));

    model.fetchMore(QModelIndex());
    QCOMPARE(idsOf(model), "sim.gev0 sim.gev1 sim.u3v0 sim.cl0");
    QVERIFY(!model.canFetchMore(QModelIndex()));
    model.fetchMore(model.index(0, 0));
    QCOMPARE(model.rowCount(model.index(0, 0)), 5);
    QCOMPARE(inserted.size(), 2);
    QVERIFY(!model.hasChildren(model.index(0, 0, model.index(0, 0))));

    const QModelIndex empty = model.index(1, 0);
    model.fetchMore(empty);
    QVERIFY(model.hasChildren(empty) && model.canFetchMore(empty));
    QCOMPARE(model.rowCount(empty), 0);
    QCOMPARE(inserted.size(), 2);
}

void TestDeviceTreeModel::givesTextsAndObjects()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    fetchAll(model);
    const QModelIndex row = model.index(0, 0);
    const QModelIndex camera = model.index(4, 0, row);
    QCOMPARE(row.data().toString(), "GigE Vision: simulated adapter 192.168.10.1");
    QVERIFY(camera.data().toString().startsWith(QString::fromUtf8("K\xc3\xa4mer\xc3\xa4 \xe6\x97\xa5")));
    QCOMPARE(camera.data(Qt::UserRole).value<ZetoCam::DeviceInfo*>(), hardware.camera("sim.gev0.awkward"));
    QCOMPARE(row.data(Qt::UserRole).value<ZetoCam::Interface*>(), hardware.interfaces().front());
    QVERIFY(!row.data(Qt::ToolTipRole).isValid());
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), "Name");
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QCOMPARE(model.flags(camera), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
}

void TestDeviceTreeModel::findsFetchedRowsById()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    QVERIFY(!model.firstIndex().isValid());
    model.fetchMore(QModelIndex());
    QCOMPARE(model.firstIndex(), model.index(0, 0));
    QCOMPARE(model.indexOf(QStringLiteral("sim.cl0")), model.index(3, 0));
    QVERIFY(!model.indexOf(QStringLiteral("sim.cl0.dual")).isValid());
    model.fetchMore(model.index(3, 0));
    QCOMPARE(model.indexOf(QStringLiteral("sim.cl0.dual")), model.index(0, 0, model.index(3, 0)));
    QVERIFY(!model.indexOf(QString()).isValid());
    QCOMPARE(model.idOf(QModelIndex()), QString());
}

void TestDeviceTreeModel::showsNothingWithoutInterfaces()
{
    SimulatorFixture hardware(SimulatorSetup{});
    for (ZetoCam::System* system : {&hardware.system(), static_cast<ZetoCam::System*>(nullptr)}) {
        DeviceTreeModel model(system);
        fetchAll(model);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.hasChildren() && model.canFetchMore(QModelIndex()));
        QVERIFY(!model.hasChanged());
        QVERIFY(!model.firstIndex().isValid());
    }
}

void TestDeviceTreeModel::showsChangesWhenAppliedOrRefreshed()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    const QSignalSpy reset(&model, &DeviceTreeModel::modelReset);
    fetchAll(model);
    QVERIFY(!model.hasChanged());
    hardware.control().setCameraPlugged("sim.gev0.held", false);
    hardware.control().setInterfacePlugged("sim.cl0", false);
    QVERIFY(model.hasChanged());
    QCOMPARE(idsOf(model), standardRows);
    QVERIFY(reset.isEmpty());

    model.applyChanges();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(model.rowCount(), 0);
    fetchAll(model);
    QCOMPARE(idsOf(model), listedBy(hardware));
    QVERIFY(!model.hasChanged());

    hardware.control().setCameraPlugged("sim.u3v0.wanderer", true);
    model.refresh();
    fetchAll(model);
    QVERIFY(model.indexOf("sim.u3v0.wanderer").isValid());
}

void TestDeviceTreeModel::comparesIdentitiesInOrder()
{
    SimulatorFixture hardware;
    const CameraSnapshot found = scanCameras(&hardware.system());
    QVERIFY(listSameCameras(found, found));
    const auto differsWhen = [&found](const std::function<void(CameraSnapshot&)>& change) {
        CameraSnapshot other = found;
        change(other);
        return !listSameCameras(found, other) && !listSameCameras(other, found);
    };
    QVERIFY(differsWhen([](CameraSnapshot& s) { std::swap(s.interfaces[0], s.interfaces[1]); }));
    QVERIFY(differsWhen([](CameraSnapshot& s) { s.interfaces.pop_back(); }));
    QVERIFY(differsWhen([](CameraSnapshot& s) { s.cameras["sim.gev0"].pop_back(); }));
    QVERIFY(differsWhen([](CameraSnapshot& s) {
        auto& cameras = s.cameras["sim.gev0"];
        std::swap(cameras[0], cameras[1]);
    }));
}

void TestDeviceTreeModel::staysConsistentThroughRandomSteps()
{
    SimulatorFixture hardware;
    DeviceTreeModel model(&hardware.system());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QRandomGenerator random(20240229);
    const auto cameras = hardware.control().cameraIds();
    const auto interfaces = hardware.control().interfaceIds();
    const auto oneOf = [&random](const std::vector<std::string>& ids) {
        return ids[random.bounded(static_cast<quint32>(ids.size()))];
    };
    const auto randomRow = [&](const QModelIndex& parent) {
        const int rows = model.rowCount(parent);
        return rows == 0 ? QModelIndex() : model.index(random.bounded(rows), 0, parent);
    };
    const std::function<void()> steps[] = {
        [&] { hardware.control().setCameraPlugged(oneOf(cameras), random.bounded(2)); },
        [&] { hardware.control().setInterfacePlugged(oneOf(interfaces), random.bounded(3)); },
        [&] { model.fetchMore(QModelIndex()); },
        [&] { model.fetchMore(randomRow(QModelIndex())); },
        [&] { model.fetchMore(randomRow(randomRow(QModelIndex()))); },
        [&] { model.refresh(); },
        [&] {
            if (model.hasChanged())
                model.applyChanges();
            fetchAll(model);
            QCOMPARE(idsOf(model), listedBy(hardware));
        },
    };
    for (int i = 0; i < 5000; ++i) {
        steps[random.bounded(static_cast<quint32>(std::size(steps)))]();
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(i)));
    }
}

void TestDeviceTreeModel::refusesNodeWithoutModel()
{
    class Orphan : public DeviceTreeNode
    {
    public:
        Orphan()
            : DeviceTreeNode(nullptr, nullptr)
        {
        }
        QVariant data(int, int) const override { return {}; }
        bool hasChildren() const override { return false; }
        bool canFetchMore() const override { return false; }
        void fetchMore() override {}
    };
    try {
        const Orphan orphan;
        QFAIL("no exception");
    } catch (const std::invalid_argument& error) {
        QCOMPARE(error.what(), "Both parentItem and model should not be null");
    }
}

ZETO_TEST_MAIN(TestDeviceTreeModel)
#include "tst_devicetreemodel.moc"
