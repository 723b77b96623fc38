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

namespace {

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
    void showsEachKindOfCamera();
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

void TestZetoCameraSelectorDialog::showsEachKindOfCamera()
{
    StandardSelector selector;
    const auto linesAbout = [&selector](const char* id) {
        selector.select(id);
        return QStringList{linesOf(selector.interfaceInfo()), linesOf(selector.cameraInfo())};
    };
    const char* const adapter =
        "Description=GigE Vision: simulated adapter 192.168.10.1|Type=GigE Vision|Version=2.2.0|"
        "MAC Address=02:00:5E:0A:00:01|IP Address=192.168.10.1|Netmask=255.255.255.0";
    QCOMPARE(
        linesAbout("sim.gev0.dual"),
        QStringList({adapter,
                     "Display name=Zeto DF-12C (120447)|Vendor=Zeto|Model=Zeto DF-12C|Serial number=120447|"
                     "Version=2.4.0|User name=Left|Access status=ReadWrite|MAC Address=02:00:5E:0A:00:10|"
                     "IP Address=192.168.10.16|Netmask=255.255.255.0|Gateway=192.168.10.1"}));
    QCOMPARE(linesAbout("sim.gev0.foreign"),
             QStringList(
                 {adapter,
                  "Display name=Zeto M-2 (200113)|Vendor=Zeto|Model=Zeto M-2|Serial number=200113|"
                  "Version=1.1.7|User name=|Access status=IP Subnet Mismatch|"
                  "MAC Address=02:00:5E:0A:00:11|IP Address=10.0.0.7|Netmask=255.0.0.0|Gateway=10.0.0.1"}));
    QCOMPARE(linesAbout("sim.u3v0.plain"),
             QStringList({"Description=USB3 Vision: simulated controller|Type=USB3 Vision|Version=1.0.1",
                          "Display name=Zeto U-5 (500117)|Vendor=Zeto|Model=Zeto U-5|Serial number=500117|"
                          "Version=1.1.7|User name=|USB Version=3.2|Access status=ReadWrite"}));
    QCOMPARE(
        linesAbout("sim.cl0.dual"),
        QStringList({"Description=Camera Link: simulated frame grabber, port 0|Type=CameraLink|Version=5.3",
                     "Display name=Zeto DF-12C (120512)|Vendor=Zeto|Model=Zeto DF-12C|Serial number=120512|"
                     "Version=2.4.0|User name=|Access status=ReadWrite"}));
    QCOMPARE(linesAbout("sim.gev0"), QStringList({adapter, ""}));
    QCOMPARE(linesAbout(""), QStringList({"", ""}));
}

void TestZetoCameraSelectorDialog::allowsWhatIsPossible()
{
    StandardSelector selector;
    const auto allowed = [&selector](const char* id) {
        selector.select(id);
        QStringList all;
        if (selector.ok().isEnabled())
            all += "choose";
        if (selector.setIp().isEnabled())
            all += "address";
        const bool isCamera = selector.cameraInfo().model()->rowCount() > 0;
        if (isCamera && colourOfStatus(selector.cameraInfo()) == QColor(Qt::red))
            all += "red";
        if (selector.dialog.selectedCamera() != (isCamera ? selector.camera(id) : nullptr))
            all += "another camera";
        return all.join(' ');
    };
    QCOMPARE(allowed(""), "");
    QCOMPARE(allowed("sim.gev0"), "");
    QCOMPARE(allowed("sim.gev0.dual"), "choose address");
    QCOMPARE(allowed("sim.gev0.foreign"), "address red");
    QCOMPARE(allowed("sim.gev0.held"), "address red");
    QCOMPARE(allowed("sim.u3v0.plain"), "choose");
    QCOMPARE(allowed("sim.cl0.dual"), "choose");
}

void TestZetoCameraSelectorDialog::choosesByKeys()
{
    StandardSelector selector;
    selector.show();
    const QSignalSpy accepted(&selector.dialog, &QDialog::accepted);
    selector.tree().setFocus();
    pressKeys("Home Return");
    QCOMPARE(selector.current(), "sim.gev0");
    QVERIFY(selector.dialog.isVisible());
    pressKeys("Down Down Return");
    QCOMPARE(selector.current(), "sim.gev0.foreign");
    QVERIFY(selector.dialog.isVisible());
    pressKeys("Up Return");
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(selector.dialog.result(), int{QDialog::Accepted});
    QCOMPARE(selector.dialog.selectedCamera(), selector.camera("sim.gev0.dual"));
    selector.dialog.setSelectedCamera(selector.camera("sim.cl0.dual"));
    QCOMPARE(selector.current(), "sim.gev0.dual");
}

void TestZetoCameraSelectorDialog::choosesByDoubleClick()
{
    StandardSelector selector;
    selector.show();
    QTreeView& tree = selector.tree();
    const QPoint place = tree.visualRect(selector.model().indexOf("sim.gev0.dual")).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(selector.dialog.result(), int{QDialog::Accepted});
    QVERIFY(!selector.dialog.isVisible());
}

void TestZetoCameraSelectorDialog::isUsableByKeysAlone()
{
    StandardSelector selector;
    selector.show();
    selector.select("sim.gev0.dual");
    selector.tree().setFocus();
    QStringList visited;
    for (int i = 0; i < 8; ++i) {
        const QWidget* const focus = QApplication::focusWidget();
        const auto* const button = qobject_cast<const QPushButton*>(focus);
        visited += button ? button->text().remove(QLatin1Char('&')) : focus->objectName();
        pressKeys("Tab");
    }
    QCOMPARE(visited.join(QLatin1Char(' ')),
             QStringLiteral("cameraTreeView interfaceInfoTreeView deviceInfoTreeView Set IP Address chPoll "
                            "OK Rescan Cancel"));
    QCOMPARE(QApplication::focusWidget(), &selector.tree());
    pressKeys("Alt+D");
    QCOMPARE(QApplication::focusWidget(), &selector.cameraInfo());
    pressKeys("Alt+I");
    QCOMPARE(QApplication::focusWidget(), &selector.interfaceInfo());
    pressKeys("Escape");
    QVERIFY(!selector.dialog.isVisible());
}

void TestZetoCameraSelectorDialog::copiesDetails()
{
    StandardSelector selector;
    selector.show();
    selector.select("sim.u3v0.plain");
    selector.cameraInfo().setFocus();
    pressKeys("Home Down Ctrl+C");
    QCOMPARE(QApplication::clipboard()->text(), "Zeto");
    pressKeys("Ctrl+Shift+C");
    QCOMPARE(QApplication::clipboard()->text().section(QLatin1Char('\n'), 0, 1),
             QStringLiteral("Display name\tZeto U-5 (500117)\nVendor\tZeto"));
}

void TestZetoCameraSelectorDialog::keepsColumnWidth()
{
    StandardSelector selector;
    selector.show();
    InfoView& view = selector.cameraInfo();
    QVERIFY(view.columnWidth(0) >= 130);
    view.setColumnWidth(0, 71);
    for (const char* id : {"sim.gev0.dual", "sim.gev0", "sim.u3v0.plain"}) {
        selector.select(id);
        QCOMPARE(view.columnWidth(0), 71);
    }
}

void TestZetoCameraSelectorDialog::offersAddressInMenu()
{
    StandardSelector selector;
    selector.show();
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
    SimulatorFixture hardware;
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
    StandardSelector selector(true);
    selector.show();
    QVERIFY(selector.dialog.isPollChecked() && selector.polling().isChecked());
    QVERIFY(!selector.rescan().isEnabled());
    selector.select("sim.gev0.held");
    selector.tree().collapse(selector.model().indexOf("sim.u3v0"));

    selector.control().setCameraPlugged("sim.gev0.foreign", false);
    QTRY_VERIFY(!selector.ids().contains(QLatin1String("sim.gev0.foreign")));
    QCOMPARE(selector.current(), "sim.gev0.held");
    QVERIFY(selector.tree().selectionModel()->isSelected(selector.tree().currentIndex()));
    QVERIFY(selector.tree().isExpanded(selector.model().indexOf("sim.gev0")));
    QVERIFY(!selector.tree().isExpanded(selector.model().indexOf("sim.u3v0")));
    QVERIFY(linesOf(selector.cameraInfo()).contains(QLatin1String("MAC Address=02:00:5E:0A:00:12")));

    selector.control().setCameraPlugged("sim.gev0.held", false);
    QTRY_COMPARE(selector.current(), "sim.gev0");
    QCOMPARE(linesOf(selector.cameraInfo()), QString());
}

void TestZetoCameraSelectorDialog::keepsPlaceThroughRescan()
{
    StandardSelector selector;
    selector.show();
    selector.select("sim.u3v0.plain");
    selector.tree().collapse(selector.model().indexOf("sim.u3v0"));
    QScrollBar& scrollBar = *selector.tree().verticalScrollBar();
    scrollBar.setValue(scrollBar.maximum());
    const int place = scrollBar.value();
    selector.rescan().click();
    QCoreApplication::processEvents();
    QVERIFY(place > 0);
    QCOMPARE(scrollBar.value(), place);
    QCOMPARE(selector.current(), "sim.u3v0.plain");
    QVERIFY(!selector.tree().isExpanded(selector.model().indexOf("sim.u3v0")));
    QVERIFY(selector.tree().isExpanded(selector.model().indexOf("sim.gev0")));

    selector.control().setInterfacePlugged("sim.u3v0", false);
    selector.rescan().click();
    QCOMPARE(selector.current(), "sim.gev0");
    for (const std::string& id : selector.control().interfaceIds())
        selector.control().setInterfacePlugged(id, false);
    selector.rescan().click();
    QCOMPARE(selector.ids(), QString());
    QCOMPARE(linesOf(selector.interfaceInfo()), QString());
    QVERIFY(!selector.ok().isEnabled() && !selector.dialog.selectedCamera());
}

void TestZetoCameraSelectorDialog::dropsWhatRescanOvertook()
{
    StandardSelector selector(true);
    selector.show();
    const QSignalSpy found(&selector.model(), &DeviceTreeModel::modelReset);
    selector.control().setCameraPlugged("sim.gev0.held", false);
    selector.polling().click();
    selector.polling().click(); // a search begins at once and sees it
    selector.polling().click(); // and has ended
    selector.control().setCameraPlugged("sim.gev0.held", true);
    selector.rescan().click();
    QCoreApplication::processEvents();
    QVERIFY(selector.ids().contains(QLatin1String("sim.gev0.held")));
    QCOMPARE(found.size(), 1);
}

void TestZetoCameraSelectorDialog::answersDuringLongSearch()
{
    SimulatorFixture hardware;
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
    pressKeys("Home Down");
    QCOMPARE(linesOf(selector.cameraInfo()).section(QLatin1Char('|'), 0, 0),
             QStringLiteral("Display name=Zeto DF-12C (120447)"));
    QVERIFY(selector.ok().isEnabled());
    pressKeys("Return");
    QCOMPARE(selector.dialog.result(), int{QDialog::Accepted});
    mayGoOn.release(1000);
}

void TestZetoCameraSelectorDialog::waitsForSearchWhenClosed()
{
    SimulatorFixture hardware;
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
