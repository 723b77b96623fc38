#include "selectorfixture.h"
#include "testmain.h"
#include "watchedlibrary.h"

#include <QtTest>

using ZetoSimulator::SimulatorSetup;

namespace {

/// Two adapters, a camera on each, and a USB camera.
SimulatorSetup fewCameras()
{
    SimulatorSetup setup = SimulatorSetup::standard();
    setup.interfaces[0].cameras.resize(2);
    setup.interfaces.resize(3);
    return setup;
}

/// Everything that a person can do with the selector; dialogs that open are accepted.
void useSelector(ZetoCam::System& system)
{
    Selector selector(&system, false);
    const ModalScript::Action accept = [](QDialog& dialog) { dialog.accept(); };
    const auto rows = selector.model().rowCount();
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = selector.model().index(row, 0);
        selector.tree().setCurrentIndex(index);
        selector.tree().setCurrentIndex(selector.model().index(0, 0, index));
    }
    selector.select("sim.gev0.foreign");
    const ModalScript script({accept, accept, accept});
    selector.setIp().click();
    selector.rescan().click();
    selector.model().hasChanged();
    selector.model().applyChanges();
    selector.dialog.grab();
    selector.dialog.selectedCamera();
}

} // namespace

/// One call into the camera library after the other fails, once in each round.
class TestSelectorFaults : public QObject
{
    Q_OBJECT

private slots:
    void survivesEachFailingCall();
    void survivesEachFailingParameter();
    void showsWhatCanBeRead();
};

void TestSelectorFaults::survivesEachFailingCall()
{
    int calls = 0;
    int failing = -1;
    QSet<QByteArray> failed;
    const auto watch = [&](const char* call) {
        const bool fails = calls++ == failing;
        if (fails)
            failed.insert(call);
        return fails;
    };
    do {
        SimulatorFixture hardware(fewCameras());
        WatchedLibrary watched(hardware.system(), watch);
        calls = 0;
        useSelector(watched.system());
    } while (++failing < calls);
    QCOMPARE(failed.size(), 23);
}

void TestSelectorFaults::survivesEachFailingParameter()
{
    for (const int32_t code : {ZetoCam::ErrorGenICamAccess, ZetoCam::Success}) {
        int failing = 0;
        int calls = 1;
        for (; failing < calls; ++failing) {
            SimulatorFixture hardware(fewCameras());
            WatchedLibrary watched(hardware.system(), [](const char*) { return false; });
            watched.faults().failAt(failing, code);
            useSelector(watched.system());
            calls = watched.faults().calls();
        }
        QVERIFY(failing > 40);
    }
}

void TestSelectorFaults::showsWhatCanBeRead()
{
    SimulatorFixture hardware(fewCameras());
    QByteArray broken;
    WatchedLibrary watched(hardware.system(), [&](const char* call) { return broken == call; });
    Selector selector(&watched.system(), false);
    const auto linesOfCamera = [&](const char* id) {
        selector.tree().setCurrentIndex(QModelIndex());
        selector.select(id);
        return linesOf(selector.cameraInfo());
    };
    const auto linesWithout = [&](const char* call, const char* id) {
        broken = call;
        const QString lines = linesOfCamera(id);
        broken.clear();
        return lines;
    };
    const QString network = linesOfCamera("sim.gev0.foreign").replace("=02:00:5E:0A:00:11", "=");
    const QString usb = linesOfCamera("sim.u3v0.plain").replace("USB Version=3.2", "USB Version=");
    for (int call = 0; call < 5; ++call) { // all that it takes to read one feature about a camera
        watched.faults().failAt(call, ZetoCam::ErrorGenICamAccess);
        QCOMPARE(linesOfCamera("sim.gev0.foreign"), network);
        watched.faults().failAt(call, ZetoCam::ErrorGenICamAccess);
        QCOMPARE(linesOfCamera("sim.u3v0.plain"), usb);
    }
    watched.faults().stop();
    QCOMPARE(linesWithout("GetDeviceInfoList", "sim.gev0.foreign"), network);
    QVERIFY(linesWithout("GetVendor", "sim.u3v0.plain").contains(QLatin1String("|Vendor=|Model=Zeto U-5|")));
    QVERIFY(linesWithout("GetAccessStatus", "sim.u3v0.plain").endsWith(QLatin1String("=Unknown")));
    QVERIFY(!linesWithout("GetInterface", "sim.gev0.foreign").contains(QLatin1String("MAC")));
    QVERIFY(!selector.setIp().isEnabled());
}

ZETO_TEST_MAIN(TestSelectorFaults)
#include "tst_selectorfaults.moc"
