#include "int64validator.h"
#include "testmain.h"

#include <QtTest>

namespace {

constexpr qint64 lowest = std::numeric_limits<qint64>::min();
constexpr qint64 highest = std::numeric_limits<qint64>::max();

/// The states of several texts, one letter each: Acceptable, Intermediate, Invalid as A, ~ and x.
QString statesOf(const Int64Validator& validator, const QString& texts)
{
    QString letters;
    for (QString text : texts.split(QLatin1Char(' '))) {
        int position = 0;
        letters += QLatin1Char("x~A"[validator.validate(text, position)]);
    }
    return letters;
}

} // namespace

class TestInt64Validator : public QObject
{
    Q_OBJECT

private slots:
    void judgesTexts_data();
    void judgesTexts();
    void tellsRangeChanges();
};

void TestInt64Validator::judgesTexts_data()
{
    QTest::addColumn<qint64>("bottom");
    QTest::addColumn<qint64>("top");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QString>("states");

    // Two blanks hold an empty text.
    QTest::newRow("positive") << qint64(10) << qint64(99) << 10 << "5 10 99 100 -5 -  +5 a 1.5"
                              << "~AAxxx~~xx";
    QTest::newRow("from 0") << qint64(0) << qint64(99) << 10 << "0 99 100 -0 -1 -"
                            << "AAxAxx";
    QTest::newRow("around 0") << qint64(-20) << qint64(99) << 10 << "- -20 -21 99 100 0"
                              << "~AxAxA";
    QTest::newRow("negative") << qint64(-99) << qint64(-10) << 10 << "- -5 -10 -99 -100 0 99 100"
                              << "~~AAx~~x";
    QTest::newRow("whole range") << lowest << highest << 10
                                 << "-9223372036854775808 9223372036854775807 -9223372036854775809 "
                                    "9223372036854775808"
                                 << "AAxx";
    QTest::newRow("all negative") << lowest << qint64(-1) << 10
                                  << "9223372036854775807 0 -9223372036854775808"
                                  << "~~A";
    QTest::newRow("only the lowest") << lowest << lowest << 10
                                     << "9223372036854775807 -9223372036854775807 -9223372036854775808"
                                     << "~~A";
    QTest::newRow("hexadecimal") << qint64(-255) << qint64(255) << 16 << "ff -FF 100 fg -"
                                 << "AAxx~";
    QTest::newRow("binary") << qint64(0) << qint64(5) << 2 << "101 110 2"
                            << "Axx";
    QTest::newRow("base 36") << qint64(0) << qint64(35) << 36 << "z 10 -z"
                             << "Axx";
}

void TestInt64Validator::judgesTexts()
{
    QFETCH(const qint64, bottom);
    QFETCH(const qint64, top);
    QFETCH(const int, base);
    QFETCH(const QString, texts);
    Int64Validator validator(bottom, top);
    validator.setBase(base);
    QTEST(statesOf(validator, texts), "states");
}

void TestInt64Validator::tellsRangeChanges()
{
    Int64Validator validator;
    QStringList log;
    connect(&validator, &Int64Validator::bottomChanged, this,
            [&](qint64 bottom) { log << QStringLiteral("b%1").arg(bottom); });
    connect(&validator, &Int64Validator::topChanged, this,
            [&](qint64 top) { log << QStringLiteral("t%1").arg(top); });

    validator.setRange(lowest, highest);
    validator.setRange(1, 9);
    validator.setBottom(1);
    validator.setBottom(2);
    validator.setTop(9);
    validator.setTop(8);
    validator.setBase(16);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("b1 t9 b2 t8"));
}

ZETO_TEST_MAIN(TestInt64Validator)
#include "tst_int64validator.moc"
