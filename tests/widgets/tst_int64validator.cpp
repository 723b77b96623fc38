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
    void judgesTexts();
    void tellsRangeChanges();
};

void TestInt64Validator::judgesTexts()
{
    const auto states = [](qint64 bottom, qint64 top, int base, const char* texts) {
        Int64Validator validator(bottom, top);
        validator.setBase(base);
        return statesOf(validator, texts);
    };
    // Two blanks hold an empty text.
    QCOMPARE(states(10, 99, 10, "5 10 99 100 -5 -  +5 a 1.5"), QStringLiteral("~AAxxx~~xx"));
    QCOMPARE(states(0, 99, 10, "0 99 100 -0 -1 -"), QStringLiteral("AAxAxx"));
    QCOMPARE(states(-20, 99, 10, "- -20 -21 99 100 0"), QStringLiteral("~AxAxA"));
    QCOMPARE(states(-99, -10, 10, "- -5 -10 -99 -100 0 99 100"), QStringLiteral("~~AAx~~x"));
    QCOMPARE(states(lowest, highest, 10, "-9223372036854775808 9223372036854775807 9223372036854775808"),
             QStringLiteral("AAx"));
    QCOMPARE(states(lowest, -1, 10, "9223372036854775807 0 -9223372036854775808"), QStringLiteral("~~A"));
    QCOMPARE(states(lowest, lowest, 10, "9223372036854775807 -9223372036854775807 -9223372036854775808"),
             QStringLiteral("~~A"));
    QCOMPARE(states(-255, 255, 16, "ff -FF 100 fg -"), QStringLiteral("AAxx~"));
    QCOMPARE(states(0, 35, 36, "z 10 -z"), QStringLiteral("Axx"));
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
