#include "valuetext.h"

#include "testmain.h"

#include <QtTest>

#include <cfloat>
#include <clocale>

using namespace ZetoNodeMap;

class TestValueText : public QObject
{
    Q_OBJECT

private slots:
    void integer_texts_follow_the_representation_data();
    void integer_texts_follow_the_representation();
    void integers_are_read_whole_or_not_at_all_data();
    void integers_are_read_whole_or_not_at_all();
    void float_texts_follow_the_notation_data();
    void float_texts_follow_the_notation();
    void other_texts_are_read_whole_or_not_at_all();
};

void TestValueText::integer_texts_follow_the_representation_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("representation");
    QTest::addColumn<QString>("text");

    const auto row = [](qint64 value, GenApi::ERepresentation representation, const char* text) {
        QTest::newRow(text) << value << int(representation) << QString::fromLatin1(text);
    };
    row(-5, GenApi::PureNumber, "-5");
    row(INT64_MIN, GenApi::Linear, "-9223372036854775808");
    row(0, GenApi::HexNumber, "0x0");
    row(0x1F, GenApi::HexNumber, "0x1F");
    row(-1, GenApi::HexNumber, "0xFFFFFFFFFFFFFFFF");
    row(0xC0A80001, GenApi::IPV4Address, "192.168.0.1");
    row(0x0011'22AA'0B0C, GenApi::MACAddress, "00:11:22:AA:0B:0C");
}

void TestValueText::integer_texts_follow_the_representation()
{
    QFETCH(qint64, value);
    QFETCH(QString, text);
    QFETCH(int, representation);
    const auto hint = static_cast<GenApi::ERepresentation>(representation);
    QCOMPARE(QString::fromStdString(integerToText(value, hint)), text);
    QCOMPARE(integerFromText(text.toStdString(), hint).value(), value);
}

void TestValueText::integers_are_read_whole_or_not_at_all_data()
{
    QTest::addColumn<int>("representation");
    QTest::addColumn<bool>("valid");

    QTest::newRow("12") << int(GenApi::HexNumber) << true;
    QTest::newRow("0xffffffffffffffff") << int(GenApi::Linear) << true;
    QTest::newRow("0x10000000000000000") << int(GenApi::Linear) << false;
    QTest::newRow("9223372036854775808") << int(GenApi::Linear) << false;
    QTest::newRow("0x") << int(GenApi::Linear) << false;
    QTest::newRow("") << int(GenApi::Linear) << false;
    QTest::newRow("12px") << int(GenApi::Linear) << false;
    QTest::newRow("1.2.3.4") << int(GenApi::Linear) << false;
    QTest::newRow("1.2.3") << int(GenApi::IPV4Address) << false;
    QTest::newRow("1.2.3.256") << int(GenApi::IPV4Address) << false;
    QTest::newRow("1.2.3.") << int(GenApi::IPV4Address) << false;
    QTest::newRow("3232235521") << int(GenApi::IPV4Address) << true;
    QTest::newRow("1:2:3:4:5:6") << int(GenApi::MACAddress) << true;
    QTest::newRow("1:2:3:4:5:G") << int(GenApi::MACAddress) << false;
}

void TestValueText::integers_are_read_whole_or_not_at_all()
{
    QFETCH(int, representation);
    QFETCH(bool, valid);
    const auto hint = static_cast<GenApi::ERepresentation>(representation);
    QCOMPARE(integerFromText(QTest::currentDataTag(), hint).has_value(), valid);
}

void TestValueText::float_texts_follow_the_notation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("notation");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("text");

    const int automatic = GenApi::fnAutomatic;
    QTest::newRow("shortest") << 2.5 << automatic << 6 << DBL_MAX << "2.5";
    QTest::newRow("rounded") << 1234.5678 << automatic << 6 << DBL_MAX << "1234.57";
    QTest::newRow("large") << 1e10 << automatic << 6 << DBL_MAX << "1e+10";
    QTest::newRow("fixed") << 2.5 << int(GenApi::fnFixed) << 3 << DBL_MAX << "2.500";
    QTest::newRow("scientific") << 1234.5 << int(GenApi::fnScientific) << 2 << DBL_MAX << "1.23e+03";
    QTest::newRow("not rounded above the maximum") << 1.2345678 << automatic << 6 << 1.2345678 << "1.2345678";
    QTest::newRow("largest") << DBL_MAX << automatic << 3 << DBL_MAX << "1.79769e+308";
}

void TestValueText::float_texts_follow_the_notation()
{
    QFETCH(double, value);
    QFETCH(double, max);
    QFETCH(int, notation);
    QFETCH(int, precision);
    NumberFormat format;
    format.notation = static_cast<GenApi::EDisplayNotation>(notation);
    format.precision = precision;
    const std::string text = floatToText(value, format, -max, max);
    QTEST(QString::fromStdString(text), "text");
    QVERIFY(floatFromText(text).value() <= max);
}

void TestValueText::other_texts_are_read_whole_or_not_at_all()
{
    QCOMPARE(floatFromText("+1.5E3"), std::optional<double>(1500));
    for (const char* text : {"", "1,5", "1.5 ", "x", "0x", "inf", "nan", "+-1", "1e999"})
        QVERIFY2(!floatFromText(text), text);
    QCOMPARE(booleanFromText("true"), std::optional<bool>(true));
    QCOMPARE(booleanFromText("0"), std::optional<bool>(false));
    QVERIFY(!booleanFromText("2"));
    QCOMPARE(bytesToText({0, 0xAB}), std::string("0x00AB"));
    QVERIFY(bytesFromText("0x00ab") == std::vector<uint8_t>({0, 0xAB}));
    for (const char* text : {"", "00ab", "0x0", "0xzz"})
        QVERIFY2(!bytesFromText(text), text);
}

ZETO_TEST_MAIN(TestValueText)
#include "tst_valuetext.moc"
