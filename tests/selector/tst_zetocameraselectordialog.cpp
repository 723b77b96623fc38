#include "handsonkeys.h"
#include "selectorfixture.h"
#include "testmain.h"
#include "watchedlibrary.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <atomic>
#include <thread>

using ZetoSimulator::SimulatorSetup;

namespace {

/// The standard cameras and a selector on the screen.
struct Shown
{
    explicit Shown(bool poll = false)
        : hardware(SimulatorSetup::standard())
        , selector(&hardware.system(), poll)
    {
        selector.show();
    }

    SimulatorFixture hardware;
    Selector selector;
};

QString adapterLines()
{
    return QStringLiteral("Description=GigE Vision: simulated adapter 192.168.10.1|Type=GigE Vision|"
                          "Version=2.2.0|MAC Address=02:00:5E:0A:00:01|IP Address=192.168.10.1|"
                          "Netmask=255.255.255.0");
}

QColor colourOfStatus(const InfoView& view)
{
    const auto& model = *static_cast<QStandardItemModel*>(view.model());
    const QStandardItem* const name = model.findItems(QStringLiteral("Access status")).value(0);
    return model.item(name->row(), 1)->foreground().color();
}

} // namespace

class TestZetoCameraSelectorDialog : public QObject
{
    Q_OBJECT

private slots:
    void showsEachKindOfCamera_data();
    void showsEachKindOfCamera();
    void allowsWhatIsPossible_data();
    void allowsWhatIsPossible();
    void choosesByKeys();
    void choosesByDoubleClick();
    void isUsableByKeysAlone();
    void copiesDetails();
    void keepsColumnWidth();
    void offersAddressInMenu();
    void searchesOnlyWhenAsked();
    void followsWhatIsPlugged();
    void keepsPlaceThroughRescan();
    void dropsWhatRescanOvertook();
    void answersDuringLongSearch();
    void waitsForSearchWhenClosed();
};

void TestZetoCameraSelectorDialog::showsEachKindOfCamera_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("interfaceLines");
    QTest::addColumn<QString>("cameraLines");
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
    QTest::newRow("interface") << "sim.gev0" << adapterLines() << "";
    QTest::newRow("GigE Vision")
        << "sim.gev0.dual" << adapterLines()
        << "Display name=Zeto DF-12C (120447)|Vendor=Zeto|Model=Zeto DF-12C|Serial number=120447|"
           "Version=2.4.0|User name=Left|Access status=ReadWrite|MAC Address=02:00:5E:0A:00:10|"
           "IP Address=192.168.10.16|Netmask=255.255.255.0|Gateway=192.168.10.1";
    QTest::newRow("foreign subnet")
        << "sim.gev0.foreign" << adapterLines()
        << "Display name=Zeto M-2 (200113)|Vendor=Zeto|Model=Zeto M-2|Serial number=200113|"
           "Version=1.1.7|User name=|Access status=IP Subnet Mismatch|MAC Address=02:00:5E:0A:00:11|"
           "IP Address=10.0.0.7|Netmask=255.0.0.0|Gateway=10.0.0.1";
    QTest::newRow("USB3 Vision")
        << "sim.u3v0.plain"
        << "Description=USB3 Vision: simulated controller|Type=USB3 Vision|Version=1.0.1"
        << "Display name=Zeto U-5 (500117)|Vendor=Zeto|Model=Zeto U-5|Serial number=500117|"
           "Version=1.1.7|User name=|USB Version=3.2|Access status=ReadWrite";
    QTest::newRow("Camera Link")
        << "sim.cl0.dual"
        << "Description=Camera Link: simulated frame grabber, port 0|Type=CameraLink|Version=5.3"
        << "Display name=Zeto DF-12C (120512)|Vendor=Zeto|Model=Zeto DF-12C|Serial number=120512|"
           "Version=2.4.0|User name=|Access status=ReadWrite";
}

void TestZetoCameraSelectorDialog::showsEachKindOfCamera()
{
    QFETCH(QString, id);
    SimulatorFixture hardware(SimulatorSetup::standard());
    Selector selector(&hardware.system(), false);
    selector.select(qPrintable(id));
    QTEST(linesOf(selector.interfaceInfo()), "interfaceLines");
    QTEST(linesOf(selector.cameraInfo()), "cameraLines");
}

void TestZetoCameraSelectorDialog::allowsWhatIsPossible_data()
{
    QTest::addColumn<bool>("canBeChosen");
    QTest::addColumn<bool>("hasAddress");
    QTest::addColumn<bool>("isRed");
    QTest::newRow("") << false << false << false;
    QTest::newRow("sim.gev0") << false << false << false;
    QTest::newRow("sim.gev0.dual") << true << true << false;
    QTest::newRow("sim.gev0.foreign") << false << true << true;
    QTest::newRow("sim.gev0.held") << false << true << true;
    QTest::newRow("sim.u3v0.plain") << true << false << false;
    QTest::newRow("sim.cl0.dual") << true << false << false;
}

void TestZetoCameraSelectorDialog::allowsWhatIsPossible()
{
    SimulatorFixture hardware(SimulatorSetup::standard());
    Selector selector(&hardware.system(), false);
    const char* const id = QTest::currentDataTag();
    selector.select(id);
    QTEST(selector.ok().isEnabled(), "canBeChosen");
    QTEST(selector.setIp().isEnabled(), "hasAddress");
    const bool isCamera = selector.cameraInfo().model()->rowCount() > 0;
    QTEST(isCamera && colourOfStatus(selector.cameraInfo()) == QColor(Qt::red), "isRed");
    QCOMPARE(selector.dialog.selectedCamera(), isCamera ? hardware.camera(id) : nullptr);
}

void TestZetoCameraSelectorDialog::choosesByKeys()
{
    Shown shown;
    Selector& selector = shown.selector;
    const QSignalSpy accepted(&selector.dialog, &QDialog::accepted);
    selector.tree().setFocus();
    pressKeys(QStringLiteral("Home Return"));
    QCOMPARE(selector.current(), QStringLiteral("sim.gev0"));
    QVERIFY(selector.dialog.isVisible());
    pressKeys(QStringLiteral("Down Down Return"));
    QCOMPARE(selector.current(), QStringLiteral("sim.gev0.foreign"));
    QVERIFY(selector.dialog.isVisible());
    pressKeys(QStringLiteral("Up Return"));
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(selector.dialog.result(), int{QDialog::Accepted});
    QCOMPARE(selector.dialog.selectedCamera(), shown.hardware.camera("sim.gev0.dual"));
    selector.dialog.setSelectedCamera(shown.hardware.camera("sim.cl0.dual"));
    QCOMPARE(selector.current(), QStringLiteral("sim.gev0.dual"));
}

void TestZetoCameraSelectorDialog::choosesByDoubleClick()
{
    Shown shown;
    QTreeView& tree = shown.selector.tree();
    const QPoint place = tree.visualRect(shown.selector.model().indexOf("sim.gev0.dual")).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(shown.selector.dialog.result(), int{QDialog::Accepted});
    QVERIFY(!shown.selector.dialog.isVisible());
}

void TestZetoCameraSelectorDialog::isUsableByKeysAlone()
{
    Shown shown;
    Selector& selector = shown.selector;
    selector.select("sim.gev0.dual");
    selector.tree().setFocus();
    QStringList visited;
    for (int i = 0; i < 8; ++i) {
        const QWidget* const focus = QApplication::focusWidget();
        const auto* const button = qobject_cast<const QPushButton*>(focus);
        visited += button ? button->text().remove(QLatin1Char('&')) : focus->objectName();
        pressKeys(QStringLiteral("Tab"));
    }
    QCOMPARE(visited.join(QLatin1Char(' ')),
             QStringLiteral("cameraTreeView interfaceInfoTreeView deviceInfoTreeView Set IP Address chPoll "
                            "OK Rescan Cancel"));
    QCOMPARE(QApplication::focusWidget(), &selector.tree());
    pressKeys(QStringLiteral("Alt+D"));
    QCOMPARE(QApplication::focusWidget(), &selector.cameraInfo());
    pressKeys(QStringLiteral("Alt+I"));
    QCOMPARE(QApplication::focusWidget(), &selector.interfaceInfo());
    pressKeys(QStringLiteral("Escape"));
    QVERIFY(!selector.dialog.isVisible());
}

void TestZetoCameraSelectorDialog::copiesDetails()
{
    Shown shown;
    shown.selector.select("sim.u3v0.plain");
    shown.selector.cameraInfo().setFocus();
    pressKeys(QStringLiteral("Home Down Ctrl+C"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Zeto"));
    pressKeys(QStringLiteral("Ctrl+Shift+C"));
    QCOMPARE(QApplication::clipboard()->text().section(QLatin1Char('\n'), 0, 1),
             QStringLiteral("Display name\tZeto U-5 (500117)\nVendor\tZeto"));
}

void TestZetoCameraSelectorDialog::keepsColumnWidth()
{
    Shown shown;
    InfoView& view = shown.selector.cameraInfo();
    QVERIFY(view.columnWidth(0) >= 130);
    view.setColumnWidth(0, 71);
    for (const char* id : {"sim.gev0.dual", "sim.gev0", "sim.u3v0.plain"}) {
        shown.selector.select(id);
        QCOMPARE(view.columnWidth(0), 71);
    }
}

void TestZetoCameraSelectorDialog::offersAddressInMenu()
{
    Shown shown;
    Selector& selector = shown.selector;
    auto& menu = *selector.dialog.findChild<QMenu*>();
    const auto ask = [&](const char* id) {
        selector.tree().scrollTo(selector.model().indexOf(id));
        emit selector.tree().customContextMenuRequested(
            selector.tree().visualRect(selector.model().indexOf(id)).center());
        const bool isShown = menu.isVisible();
        menu.hide();
        return isShown;
    };
    QVERIFY(ask("sim.gev0.held"));
    QVERIFY(!ask("sim.gev0"));
    QVERIFY(!ask("sim.u3v0.plain"));
}

void TestZetoCameraSelectorDialog::searchesOnlyWhenAsked()
{
    SimulatorFixture hardware(SimulatorSetup::standard());
    std::atomic<int> searches{0};
    WatchedLibrary watched(hardware.system(), [&](const char* call) {
        searches += qstrcmp(call, "GetInterfaceList") == 0;
        return false;
    });
    Selector selector(&watched.system(), false);
    selector.show();
    selector.select("sim.gev0.held");
    QTest::qWait(20);
    QCOMPARE(searches.load(), 1);
    QVERIFY(!selector.dialog.isPollChecked());
    selector.rescan().click();
    QCOMPARE(searches.load(), 2);

    selector.polling().click();
    QVERIFY(selector.dialog.isPollChecked() && !selector.rescan().isEnabled());
    QTRY_COMPARE(searches.load(), 3);
    selector.polling().click();
    QVERIFY(!selector.dialog.isPollChecked() && selector.rescan().isEnabled());
}

void TestZetoCameraSelectorDialog::followsWhatIsPlugged()
{
    Shown shown(true);
    Selector& selector = shown.selector;
    QVERIFY(selector.dialog.isPollChecked() && selector.polling().isChecked());
    QVERIFY(!selector.rescan().isEnabled());
    selector.select("sim.gev0.held");
    selector.tree().collapse(selector.model().indexOf("sim.u3v0"));

    shown.hardware.control().setCameraPlugged("sim.gev0.foreign", false);
    QTRY_VERIFY(!selector.ids().contains(QLatin1String("sim.gev0.foreign")));
    QCOMPARE(selector.current(), QStringLiteral("sim.gev0.held"));
    QVERIFY(selector.tree().selectionModel()->isSelected(selector.tree().currentIndex()));
    QVERIFY(selector.tree().isExpanded(selector.model().indexOf("sim.gev0")));
    QVERIFY(!selector.tree().isExpanded(selector.model().indexOf("sim.u3v0")));
    QVERIFY(linesOf(selector.cameraInfo()).contains(QLatin1String("MAC Address=02:00:5E:0A:00:12")));

    shown.hardware.control().setCameraPlugged("sim.gev0.held", false);
    QTRY_COMPARE(selector.current(), QStringLiteral("sim.gev0"));
    QCOMPARE(linesOf(selector.cameraInfo()), QString());
}

void TestZetoCameraSelectorDialog::keepsPlaceThroughRescan()
{
    Shown shown;
    Selector& selector = shown.selector;
    selector.select("sim.u3v0.plain");
    selector.tree().collapse(selector.model().indexOf("sim.u3v0"));
    QScrollBar& scrollBar = *selector.tree().verticalScrollBar();
    scrollBar.setValue(scrollBar.maximum());
    const int place = scrollBar.value();
    selector.rescan().click();
    QCoreApplication::processEvents();
    QVERIFY(place > 0);
    QCOMPARE(scrollBar.value(), place);
    QCOMPARE(selector.current(), QStringLiteral("sim.u3v0.plain"));
    QVERIFY(!selector.tree().isExpanded(selector.model().indexOf("sim.u3v0")));
    QVERIFY(selector.tree().isExpanded(selector.model().indexOf("sim.gev0")));

    shown.hardware.control().setInterfacePlugged("sim.u3v0", false);
    selector.rescan().click();
    QCOMPARE(selector.current(), QStringLiteral("sim.gev0"));
    for (const std::string& id : shown.hardware.control().interfaceIds())
        shown.hardware.control().setInterfacePlugged(id, false);
    selector.rescan().click();
    QCOMPARE(selector.ids(), QString());
    QCOMPARE(linesOf(selector.interfaceInfo()), QString());
    QVERIFY(!selector.ok().isEnabled() && !selector.dialog.selectedCamera());
}

void TestZetoCameraSelectorDialog::dropsWhatRescanOvertook()
{
    Shown shown(true);
    Selector& selector = shown.selector;
    const QSignalSpy found(&selector.model(), &DeviceTreeModel::modelReset);
    shown.hardware.control().setCameraPlugged("sim.gev0.held", false);
    selector.polling().click();
    selector.polling().click(); // a search begins at once and sees it
    selector.polling().click(); // and has ended
    shown.hardware.control().setCameraPlugged("sim.gev0.held", true);
    selector.rescan().click();
    QCoreApplication::processEvents();
    QVERIFY(selector.ids().contains(QLatin1String("sim.gev0.held")));
    QCOMPARE(found.size(), 1);
}

void TestZetoCameraSelectorDialog::answersDuringLongSearch()
{
    SimulatorFixture hardware(SimulatorSetup::standard());
    const auto guiThread = std::this_thread::get_id();
    QSemaphore begun;
    QSemaphore mayGoOn;
    WatchedLibrary watched(hardware.system(), [&](const char* call) {
        if (std::this_thread::get_id() != guiThread && qstrcmp(call, "ReEnumerateDevices") == 0) {
            begun.release();
            mayGoOn.acquire();
        }
        return false;
    });
    Selector selector(&watched.system(), true);
    selector.show();
    begun.acquire();
    selector.tree().setFocus();
    pressKeys(QStringLiteral("Home Down"));
    QCOMPARE(linesOf(selector.cameraInfo()).section(QLatin1Char('|'), 0, 0),
             QStringLiteral("Display name=Zeto DF-12C (120447)"));
    QVERIFY(selector.ok().isEnabled());
    pressKeys(QStringLiteral("Return"));
    QCOMPARE(selector.dialog.result(), int{QDialog::Accepted});
    mayGoOn.release(1000);
}

void TestZetoCameraSelectorDialog::waitsForSearchWhenClosed()
{
    SimulatorFixture hardware(SimulatorSetup::standard());
    const auto guiThread = std::this_thread::get_id();
    std::atomic<int> inside{0};
    WatchedLibrary watched(hardware.system(), [&](const char*) {
        if (std::this_thread::get_id() != guiThread) {
            ++inside;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            --inside;
        }
        return false;
    });
    for (int round = 0; round < 20; ++round) {
        {
            Selector selector(&watched.system(), true);
            QTRY_VERIFY(round % 2 == 0 || inside > 0);
        }
        QCOMPARE(inside.load(), 0);
    }
}

ZETO_TEST_MAIN(TestZetoCameraSelectorDialog)
#include "tst_zetocameraselectordialog.moc"
