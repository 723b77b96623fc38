#include "addresstext.h"
#include "camerainfo.h"
#include "ip4validator.h"
#include "subnetcheck.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QtTest>

/// Address texts and the rules about addresses.
class TestIpAddresses : public QObject
{
    Q_OBJECT

private slots:
    void validatesText_data();
    void validatesText();
    void readsText_data();
    void readsText();
    void readsWhatItWrites();
    void writesMac();
    void checksSubnet_data();
    void checksSubnet();
    void suggestsAddress_data();
    void suggestsAddress();
};

void TestIpAddresses::validatesText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    const auto rows = [](QValidator::State state, const QStringList& texts) {
        for (const QString& text : texts)
            QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(text))) << text << int{state};
    };
    rows(QValidator::Acceptable,
         {"", "192.168.1.1", "0.0.0.0", "255.255.255.255", " 1 . 2\t. 3 .4 ", "001.02.3.4"});
    rows(QValidator::Intermediate, {"1", "192.168.1", "192.168.1.", "...", " ", ".1.2.3", "1..2"});
    rows(QValidator::Invalid,
         {"192.168.1.256", "1.2.3.4.5", "....", "-1.2.3.4", "1.2.3.x", "0x1", "1,2", "1 2", "99999999999"});
}

void TestIpAddresses::validatesText()
{
    QFETCH(QString, text);
    const IP4Validator validator;
    int position = 0;
    QTEST(int{validator.validate(text, position)}, "expected");
}

void TestIpAddresses::readsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint32>("address");
    QTest::newRow("address") << "192.168.10.1" << 0xC0A80A01U;
    QTest::newRow("empty") << "" << 0U;
    QTest::newRow("blanks") << " 10 . 0.0 . 7 " << 0x0A000007U;
    QTest::newRow("missing parts are not filled") << "1.2" << 0x0102U;
    QTest::newRow("a part that is none counts 0") << "1.x.3.4" << 0x01000304U;
    QTest::newRow("parts are not limited") << "0.0.0.300" << 300U;
    QTest::newRow("a fifth part pushes the first out") << "1.2.3.4.5" << 0x02030405U;
}

void TestIpAddresses::readsText()
{
    QFETCH(QString, text);
    QTEST(ipv4FromText(text), "address");
}

void TestIpAddresses::readsWhatItWrites()
{
    QRandomGenerator random(4711);
    const IP4Validator validator;
    for (int i = 0; i < 20000; ++i) {
        const quint32 address = random.generate() >> (i % 33 == 32 ? 0 : i % 32);
        QString text = ipv4Text(address);
        QCOMPARE(ipv4FromText(text), address);
        QCOMPARE(ipv4Text(ipv4FromText(text)), text);
        int position = 0;
        QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
    }
}

void TestIpAddresses::writesMac()
{
    QCOMPARE(capitalMacText(0), QStringLiteral("00:00:00:00:00:00"));
    QCOMPARE(capitalMacText(0x02005e0a0ffe), QStringLiteral("02:00:5E:0A:0F:FE"));
    QCOMPARE(capitalMacText(~quint64{0}), QStringLiteral("FF:FF:FF:FF:FF:FF"));
}

void TestIpAddresses::checksSubnet_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<bool>("isAddressValid");
    QTest::addColumn<bool>("isMaskValid");
    QTest::addColumn<int>("result");
    const QString adapter = QStringLiteral("192.168.10.1/255.255.255.0");
    const auto row = [&](const char* name, const char* camera, bool ip, bool mask,
                         SubnetCheck::Result result) {
        QTest::newRow(name) << camera << adapter << ip << mask << int{result};
    };
    row("fits", "192.168.10.2/255.255.255.0", true, true, SubnetCheck::Good);
    row("another subnet", "192.168.11.2/255.255.255.0", false, true, SubnetCheck::SubnetMismatch);
    row("the adapter's own", "192.168.10.1/255.255.255.0", false, true, SubnetCheck::BadAddress);
    row("no address", "/255.255.255.0", false, true, SubnetCheck::SubnetMismatch);
    row("another mask", "192.168.10.2/255.255.0.0", false, false, SubnetCheck::MaskMismatch);
    row("another mask, same net", "192.168.10.200/255.255.255.128", false, false, SubnetCheck::MaskMismatch);
    row("wider mask that agrees", "192.168.10.2/255.255.254.0", true, false, SubnetCheck::MaskMismatch);
    QTest::newRow("first octet 0 in the subnet")
        << "0.1.2.3/0.0.0.0"
        << "10.0.0.1/0.0.0.0" << false << true << int{SubnetCheck::BadAddress};
    QTest::newRow("lowest address") << "1.0.0.0/0.0.0.0"
                                    << "10.0.0.1/0.0.0.0" << true << true << int{SubnetCheck::Good};
}

void TestIpAddresses::checksSubnet()
{
    QFETCH(QString, camera);
    QFETCH(QString, adapter);
    const auto place = [](const QString& text) {
        const QStringList parts = text.split(QLatin1Char('/'));
        return NetworkPlace{ipv4FromText(parts.first()), ipv4FromText(parts.last())};
    };
    const SubnetCheck check = checkSubnet(place(camera), place(adapter));
    QTEST(check.isAddressValid, "isAddressValid");
    QTEST(check.isMaskValid, "isMaskValid");
    QTEST(int{check.result}, "result");
}

void TestIpAddresses::suggestsAddress_data()
{
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QString>("camera");
    const char* const rows[][2] = {{"10.0.0.1", "10.0.0.2"},
                                   {"10.0.0.0", "10.0.0.1"},
                                   {"10.0.0.128", "10.0.0.129"},
                                   {"10.0.0.129", "10.0.0.128"},
                                   {"10.0.0.255", "10.0.0.254"}};
    for (const auto& row : rows)
        QTest::newRow(row[0]) << row[0] << row[1];
}

void TestIpAddresses::suggestsAddress()
{
    QFETCH(QString, adapter);
    QTEST(ipv4Text(addressBeside(ipv4FromText(adapter))), "camera");
}

ZETO_TEST_MAIN(TestIpAddresses)
#include "tst_ipaddresses.moc"
