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

void TestValueText::integers_are_read_whole_or_not_at_all()
{
    using namespace GenApi;
    const std::pair<const char*, ERepresentation> valid[] = {{"12", HexNumber},
                                                             {"0xffffffffffffffff", Linear},
                                                             {"3232235521", IPV4Address},
                                                             {"1:2:3:4:5:6", MACAddress}};
    for (const auto& [text, hint] : valid)
        QVERIFY2(integerFromText(text, hint), text);
    for (const char* text :
         {"0x10000000000000000", "9223372036854775808", "0x", "", "12px", "1.2.3.4", "1:2:3:4:5:6"})
        QVERIFY2(!integerFromText(text, Linear), text);
    for (const char* text : {"1.2.3", "1.2.3.256", "1.2.3."})
        QVERIFY2(!integerFromText(text, IPV4Address), text);
    QVERIFY(!integerFromText("1:2:3:4:5:G", MACAddress));
}

void TestValueText::float_texts_follow_the_notation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("notation");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, double value, GenApi::EDisplayNotation notation, int precision,
                        double max, const char* text) {
        QTest::newRow(name) << value << int(notation) << precision << max << QString::fromLatin1(text);
    };
    row("shortest", 2.5, GenApi::fnAutomatic, 6, DBL_MAX, "2.5");
    row("rounded", 1234.5678, GenApi::fnAutomatic, 6, DBL_MAX, "1234.57");
    row("large", 1e10, GenApi::fnAutomatic, 6, DBL_MAX, "1e+10");
    row("fixed", 2.5, GenApi::fnFixed, 3, DBL_MAX, "2.500");
    row("scientific", 1234.5, GenApi::fnScientific, 2, DBL_MAX, "1.23e+03");
    row("not rounded above the maximum", 1.2345678, GenApi::fnAutomatic, 6, 1.2345678, "1.2345678");
    row("largest", DBL_MAX, GenApi::fnAutomatic, 3, DBL_MAX, "1.79769e+308");
    row("absurd precision", 1.5, GenApi::fnAutomatic, INT_MIN, 1.5, "1.5");
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
