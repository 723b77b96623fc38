#include "addresstext.h"
#include "camerainfo.h"
#include "ip4validator.h"
#include "subnetcheck.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QtTest>

#include <tuple>

/// Address texts and the rules about addresses.
class TestIpAddresses : public QObject
{
    Q_OBJECT

private slots:
    void validatesText();
    void readsText();
    void readsWhatItWrites();
    void writesMac();
    void checksSubnet();
    void suggestsAddress();
};

void TestIpAddresses::validatesText()
{
    const IP4Validator validator;
    const auto check = [&validator](QValidator::State expected, const QStringList& texts) {
        for (QString text : texts) {
            int position = 0;
            QVERIFY2(validator.validate(text, position) == expected, qPrintable(text));
        }
    };
    check(QValidator::Acceptable,
          {"", "192.168.1.1", "0.0.0.0", "255.255.255.255", " 1 . 2\t. 3 .4 ", "001.02.3.4"});
    check(QValidator::Intermediate, {"1", "192.168.1", "192.168.1.", "...", " ", ".1.2.3", "1..2"});
    check(QValidator::Invalid,
          {"192.168.1.256", "1.2.3.4.5", "....", "-1.2.3.4", "1.2.3.x", "0x1", "1,2", "1 2", "99999999999"});
}

void TestIpAddresses::readsText()
{
    QCOMPARE(ipv4FromText("192.168.10.1"), 0xC0A80A01U);
    QCOMPARE(ipv4FromText(""), 0U);
    QCOMPARE(ipv4FromText(" 10 . 0.0 . 7 "), 0x0A000007U);
    QCOMPARE(ipv4FromText("1.2"), 0x0102U); // missing parts are not filled
    QCOMPARE(ipv4FromText("1.x.3.4"), 0x01000304U);
    QCOMPARE(ipv4FromText("0.0.0.300"), 300U);        // parts are not limited
    QCOMPARE(ipv4FromText("1.2.3.4.5"), 0x02030405U); // a fifth part pushes the first out
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
    QCOMPARE(capitalMacText(0), "00:00:00:00:00:00");
    QCOMPARE(capitalMacText(0x02005e0a0ffe), "02:00:5E:0A:0F:FE");
    QCOMPARE(capitalMacText(~quint64{0}), "FF:FF:FF:FF:FF:FF");
}

void TestIpAddresses::checksSubnet()
{
    const auto check = [](const QString& camera, const QString& adapter = "192.168.10.1/255.255.255.0") {
        const auto place = [](const QString& text) {
            const QStringList parts = text.split('/');
            return NetworkPlace{ipv4FromText(parts.first()), ipv4FromText(parts.last())};
        };
        const SubnetCheck found = checkSubnet(place(camera), place(adapter));
        return std::tuple(found.isAddressValid, found.isMaskValid, found.result);
    };
    const std::tuple good(true, true, SubnetCheck::Good);
    const std::tuple badAddress(false, true, SubnetCheck::BadAddress);
    const std::tuple subnetMismatch(false, true, SubnetCheck::SubnetMismatch);
    const std::tuple maskMismatch(false, false, SubnetCheck::MaskMismatch);
    QVERIFY(check("192.168.10.2/255.255.255.0") == good);
    QVERIFY(check("192.168.11.2/255.255.255.0") == subnetMismatch);
    QVERIFY(check("192.168.10.1/255.255.255.0") == badAddress); // the adapter's own
    QVERIFY(check("/255.255.255.0") == subnetMismatch);
    QVERIFY(check("192.168.10.2/255.255.0.0") == maskMismatch);
    QVERIFY(check("192.168.10.200/255.255.255.128") == maskMismatch);
    QVERIFY(check("192.168.10.2/255.255.254.0") == std::tuple(true, false, SubnetCheck::MaskMismatch));
    QVERIFY(check("0.1.2.3/0.0.0.0", "10.0.0.1/0.0.0.0") == badAddress);
    QVERIFY(check("1.0.0.0/0.0.0.0", "10.0.0.1/0.0.0.0") == good); // the lowest address
}

void TestIpAddresses::suggestsAddress()
{
    const auto beside = [](const char* adapter) { return ipv4Text(addressBeside(ipv4FromText(adapter))); };
    QCOMPARE(beside("10.0.0.1"), "10.0.0.2");
    QCOMPARE(beside("10.0.0.0"), "10.0.0.1");
    QCOMPARE(beside("10.0.0.128"), "10.0.0.129");
    QCOMPARE(beside("10.0.0.129"), "10.0.0.128");
    QCOMPARE(beside("10.0.0.255"), "10.0.0.254");
}

ZETO_TEST_MAIN(TestIpAddresses)
#include "tst_ipaddresses.moc"
