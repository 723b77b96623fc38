#include "handsonkeys.h"
#include "selectorfixture.h"
#include "setipdialog.h"
#include "testmain.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QtTest>

using ZetoSimulator::ipv4;
namespace {

const QString green = QStringLiteral("color: rgb(0, 192, 0);");
const QString red = QStringLiteral("color: rgb(255, 0, 0);");

QLineEdit& fieldOf(const QWidget& dialog, const char* name)
{
    return childOf<QLineEdit>(dialog, name);
}

QString statusOf(const QWidget& dialog)
{
    return childOf<QLabel>(dialog, "ipStatusLabel").text();
}

/// As a person replaces what stands in a field.
void enter(QDialog& dialog, const char* field, const QString& text)
{
    QLineEdit& edit = fieldOf(dialog, field);
    edit.setFocus();
    edit.selectAll();
    typeText(&edit, text);
}

void press(QDialog& dialog, QDialogButtonBox::StandardButton which)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
}

void accept(QDialog& dialog)
{
    press(dialog, QDialogButtonBox::Ok);
}

/// Expects a message box and leaves it by a button.
ModalScript::Action message(const QString& title, const QString& text,
                            QDialogButtonBox::StandardButton answer = QDialogButtonBox::Ok)
{
    return [=](QDialog& dialog) {
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), title);
        QCOMPARE(box->text(), text);
        QCOMPARE(box->icon(), QMessageBox::Critical);
        press(dialog, answer);
    };
}

ModalScript::Action warning(QDialogButtonBox::StandardButton answer)
{
    return message(
        QStringLiteral("IP Configuration Warning"),
        QStringLiteral("Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                       "Press OK to skip the IP Configuration, or press Ignore to confirm"),
        answer);
}

const ModalScript::Action failure =
    message(QStringLiteral("Set IP Address"), QStringLiteral("Can't set IP address"));

} // namespace

/// The dialog for another address, alone and from the selector.
class TestSetIp : public QObject
{
    Q_OBJECT

private slots:
    void checksWhileTyping();
    void takesAddressesOnly();
    void isUsableByKeysAlone();
    void alignsFieldsOfBothGroups();

    void bringsCameraIntoReach();
    void writesNothingWhenCancelled();
    void asksBeforeBadConfiguration();
    void tellsRefusal();
    void survivesItsParent();
};

void TestSetIp::checksWhileTyping()
{
    SetIpDialog dialog;
    QCOMPARE(statusOf(dialog), "TextLabel");
    dialog.setNicIPAddress(ipv4(192, 168, 10, 1));
    dialog.setNicNetmask(ipv4(255, 255, 255, 0));
    dialog.setIPAddress(ipv4(192, 168, 10, 2));
    QCOMPARE(statusOf(dialog), "Subnet mask mismatch!");
    dialog.setNetmask(ipv4(255, 255, 255, 0));
    QCOMPARE(statusOf(dialog), "IP Configuration OK");
    QCOMPARE(childOf<QLabel>(dialog, "ipStatusLabel").styleSheet(), green);

    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    pressKeys("End Backspace");
    QCOMPARE(statusOf(dialog), "IP Configuration OK"); // 192.168.10.0, which nobody forbids
    pressKeys("'1");
    QCOMPARE(statusOf(dialog), "Incorrect IP address!");
    QCOMPARE(childOf<QLabel>(dialog, "ipStatusLabel").styleSheet(), red);
    QVERIFY(!dialog.isIpValid() && dialog.isMaskValid());
    enter(dialog, "ipAddressLineEdit", "10.0.0.7");
    QCOMPARE(statusOf(dialog), "Subnet IP mismatch!");
    enter(dialog, "subnetMaskLineEdit", "255.0.0.0");
    QCOMPARE(statusOf(dialog), "Subnet mask mismatch!");
    QVERIFY(!dialog.isIpValid() && !dialog.isMaskValid());
    QCOMPARE(dialog.ipAddress(), ipv4(10, 0, 0, 7));
    QCOMPARE(dialog.netmask(), ipv4(255, 0, 0, 0));
}

void TestSetIp::takesAddressesOnly()
{
    SetIpDialog dialog;
    for (const char* name : {"ipAddressLineEdit", "subnetMaskLineEdit", "defaultGatewayLineEdit"}) {
        enter(dialog, name, QStringLiteral("1x9a2.168.300.7.5.8-"));
        QCOMPARE(fieldOf(dialog, name).text(), "192.168.30.75");
    }
    QCOMPARE(dialog.gateway(), ipv4(192, 168, 30, 75));
    dialog.setMACAddress(0x02005e0aabcd);
    dialog.setNicMACAddress(0x02005e0aabce);
    QCOMPARE(fieldOf(dialog, "macAddressLineEdit").text(), QStringLiteral("02:00:5E:0A:AB:CD"));
    for (const char* name :
         {"macAddressLineEdit", "nicMacLineEdit", "nicIpLineEdit", "nicSubnetMaskLineEdit"})
        QVERIFY(fieldOf(dialog, name).isReadOnly());
}

void TestSetIp::isUsableByKeysAlone()
{
    SetIpDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(QApplication::focusWidget(), &fieldOf(dialog, "ipAddressLineEdit"));
    pressKeys("'10.0.0.2 Tab '255.0.0.0 Tab '10.0.0.1 Alt+A '10.0.0.3 Alt+G End Backspace '9");
    QCOMPARE(dialog.ipAddress(), ipv4(10, 0, 0, 3));
    QCOMPARE(dialog.gateway(), ipv4(10, 0, 0, 9));
    pressKeys("Alt+S");
    QCOMPARE(QApplication::focusWidget(), &fieldOf(dialog, "subnetMaskLineEdit"));
    pressKeys("Return");
    QCOMPARE(dialog.result(), int{QDialog::Accepted});
}

void TestSetIp::alignsFieldsOfBothGroups()
{
    SetIpDialog dialog;
    dialog.show();
    const auto left = [&](const char* name) { return fieldOf(dialog, name).mapTo(&dialog, QPoint()).x(); };
    QCOMPARE(left("nicIpLineEdit"), left("ipAddressLineEdit"));
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        QVERIFY2(label->buddy() || label->objectName() == QLatin1String("ipStatusLabel"),
                 qPrintable(label->objectName()));
}

void TestSetIp::bringsCameraIntoReach()
{
    StandardSelector selector;
    selector.show();
    selector.select("sim.gev0.foreign");
    const ModalScript script({[](QDialog& dialog) {
        QCOMPARE(statusOf(dialog), "IP Configuration OK");
        QStringList texts;
        for (const char* name :
             {"nicMacLineEdit", "nicIpLineEdit", "nicSubnetMaskLineEdit", "macAddressLineEdit",
              "ipAddressLineEdit", "subnetMaskLineEdit", "defaultGatewayLineEdit"})
            texts += fieldOf(dialog, name).text();
        QCOMPARE(texts.join(QLatin1Char(' ')),
                 QStringLiteral("02:00:5E:0A:00:01 192.168.10.1 255.255.255.0 02:00:5E:0A:00:11 "
                                "192.168.10.2 255.255.255.0 0.0.0.0"));
        enter(dialog, "ipAddressLineEdit", "192.168.10.77");
        accept(dialog);
    }});
    selector.setIp().click();
    QVERIFY(script.isDone());
    QCOMPARE(selector.camera("sim.gev0.foreign")->GetIPAddress(), ipv4(192, 168, 10, 77));
    QVERIFY(linesOf(selector.cameraInfo()).contains(QLatin1String("IP Address=192.168.10.77")));
    QVERIFY(linesOf(selector.cameraInfo()).contains(QLatin1String("Access status=ReadWrite")));
    QVERIFY(selector.ok().isEnabled());
}

void TestSetIp::writesNothingWhenCancelled()
{
    StandardSelector selector;
    selector.select("sim.gev0.foreign");
    const ModalScript script({[](QDialog& dialog) { press(dialog, QDialogButtonBox::Cancel); }});
    selector.setIp().click();
    QVERIFY(script.isDone());
    QCOMPARE(selector.camera("sim.gev0.foreign")->GetIPAddress(), ipv4(10, 0, 0, 7));
}

void TestSetIp::asksBeforeBadConfiguration()
{
    StandardSelector selector;
    selector.select("sim.gev0.foreign");
    const auto enterBad = [](QDialog& dialog) {
        enter(dialog, "ipAddressLineEdit", "10.0.0.9");
        accept(dialog);
    };
    const ModalScript skipping({enterBad, warning(QDialogButtonBox::Ok)});
    selector.setIp().click();
    QVERIFY(skipping.isDone());
    QCOMPARE(selector.camera("sim.gev0.foreign")->GetIPAddress(), ipv4(10, 0, 0, 7));

    const ModalScript confirming({enterBad, warning(QDialogButtonBox::Ignore)});
    selector.setIp().click();
    QVERIFY(confirming.isDone());
    selector.rescan().click();
    QVERIFY(!selector.ids().contains(QLatin1String("sim.gev0.foreign"))); // out of reach now
}

void TestSetIp::tellsRefusal()
{
    StandardSelector selector;
    selector.select("sim.gev0.held");
    const ModalScript held({accept, failure});
    selector.setIp().click();
    QVERIFY(held.isDone());

    selector.control().setCameraPlugged("sim.gev0.held", false);
    selector.search();
    const ModalScript gone({failure});
    selector.setIp().click();
    QVERIFY(gone.isDone());
}

void TestSetIp::survivesItsParent()
{
    SimulatorFixture hardware;
    std::unique_ptr<Selector> selector;
    const auto takeDown = [&selector](QDialog&) { selector.reset(); };
    const QVector<QVector<ModalScript::Action>> scripts = {
        {takeDown},
        {[](QDialog& dialog) {
             enter(dialog, "ipAddressLineEdit", "10.0.0.9");
             accept(dialog);
         },
         takeDown},
        {accept, takeDown},
    };
    for (const auto& actions : scripts) {
        selector = std::make_unique<Selector>(&hardware.system(), true);
        selector->select("sim.gev0.held");
        const ModalScript script(actions);
        selector->setIp().click();
        QVERIFY(script.isDone() && !selector);
    }
    QCOMPARE(hardware.camera("sim.gev0.held")->GetIPAddress(), ipv4(192, 168, 10, 18));
}

ZETO_TEST_MAIN(TestSetIp)
#include "tst_setip.moc"
