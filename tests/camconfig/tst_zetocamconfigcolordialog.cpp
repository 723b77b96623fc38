#include "dialogfixture.h"

#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>

#include "qtzetospinbox.h"
#include "testmain.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// What the colour dialog adds to its bindings: unity and the statistics.
class TestZetoCamConfigColorDialog : public QObject
{
    Q_OBJECT

private slots:
    void sets_unity_data();
    void sets_unity();
    void shows_statistics_live();
    void works_without_some_features();
};

namespace {

template <typename Widget>
Widget* child(QDialog& dialog, const QString& name)
{
    return dialog.findChild<Widget*>(name);
}

/// What the statistics tell of red, green and blue.
QString statistics(QDialog& dialog)
{
    QStringList texts;
    for (const char* const label : {"lblRedCoef", "lblGreenCoef", "lblBlueCoef"})
        texts.append(child<QLabel>(dialog, QLatin1String(label))->text());
    return texts.join(QLatin1Char(' '));
}

} // namespace

void TestZetoCamConfigColorDialog::sets_unity_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("red") << "Red"
                         << "11 12 13"
                         << "256 12 13";
    QTest::newRow("green") << "Green"
                           << "11 12 13"
                           << "11 256 13";
    QTest::newRow("blue") << "Blue"
                          << "11 12 13"
                          << "11 12 256";
}

void TestZetoCamConfigColorDialog::sets_unity()
{
    QFETCH(QString, colour);
    DialogFixture fixture;
    ZetoGui::ZetoCamConfigColorDialog dialog(&fixture.device());
    dialog.show();
    int coefficient = 11;
    for (const char* const feature : {"RedCoefficient", "GreenCoefficient", "BlueCoefficient"})
        fixture.features().assign(feature, int64_t(coefficient++));
    QTEST(statistics(dialog), "before");
    auto* const button = child<QPushButton>(dialog, QStringLiteral("pushBtn%1Unity").arg(colour));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(fixture.takeWrites(), QStringList(colour + QLatin1String("Coefficient=256")));
    QTEST(statistics(dialog), "after");

    child<QComboBox>(dialog, QStringLiteral("cmBoxWhiteBalance"))
        ->setCurrentText(QStringLiteral("Continuous"));
    QVERIFY(!button->isEnabled());
    dialog.SetDevice(nullptr);
    QVERIFY(!dialog.isEnabled());
}

void TestZetoCamConfigColorDialog::shows_statistics_live()
{
    DialogFixture fixture;
    ZetoGui::ZetoCamConfigColorDialog dialog(&fixture.device());
    dialog.show();
    auto* const label = child<QLabel>(dialog, QStringLiteral("lblRedCoef"));
    const int width = label->width();
    QVERIFY(width >= label->fontMetrics().horizontalAdvance(QStringLiteral("4095")));
    child<QComboBox>(dialog, QStringLiteral("cmBoxWhiteBalance"))->setCurrentText(QStringLiteral("Once"));
    QCOMPARE(statistics(dialog), QStringLiteral("301 256 417"));
    fixture.features().assign("RedCoefficient", int64_t(4095));
    QCOMPARE(statistics(dialog), QStringLiteral("4095 256 417"));
    QCOMPARE(label->width(), width);
    QCOMPARE(fixture.takeWrites(), QStringList(QStringLiteral("BalanceWhiteAuto=Once")));
}

void TestZetoCamConfigColorDialog::works_without_some_features()
{
    DialogFixture fixture;
    fixture.features().setAccessMode("AutoTrackingSpeed", GenApi::NI);
    fixture.features().setAccessMode("GreenCoefficient", GenApi::NA);
    ZetoGui::ZetoCamConfigColorDialog dialog(&fixture.device());
    QVERIFY(!child<QWidget>(dialog, QStringLiteral("cmBoxTrackingSpeed"))->isEnabled());
    QVERIFY(!child<QWidget>(dialog, QStringLiteral("pushBtnGreenUnity"))->isEnabled());
    QVERIFY(child<QWidget>(dialog, QStringLiteral("pushBtnRedUnity"))->isEnabled());
    child<QComboBox>(dialog, QStringLiteral("cmBoxWhiteBalance"))->setCurrentText(QStringLiteral("Once"));
    QCOMPARE(fixture.takeWrites(), QStringList(QStringLiteral("BalanceWhiteAuto=Once")));
}

ZETO_TEST_MAIN(TestZetoCamConfigColorDialog)

#include "tst_zetocamconfigcolordialog.moc"
