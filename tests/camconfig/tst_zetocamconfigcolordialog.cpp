#include "dialogfixture.h"

#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>

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
    void init();
    void cleanup();

    void sets_unity();
    void shows_statistics_live();
    void works_without_some_features();

private:
    void balance(const char* mode)
    {
        childOf<QComboBox>(*m_dialog, "cmBoxWhiteBalance").setCurrentText(QLatin1String(mode));
    }
    /// What the statistics tell of red, green and blue.
    QString statistics() const;

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<ZetoGui::ZetoCamConfigColorDialog> m_dialog;
};

void TestZetoCamConfigColorDialog::init()
{
    m_fixture = std::make_unique<DialogFixture>();
    m_dialog = std::make_unique<ZetoGui::ZetoCamConfigColorDialog>(&m_fixture->device());
    m_dialog->show();
}

void TestZetoCamConfigColorDialog::cleanup()
{
    m_dialog.reset();
    m_fixture.reset();
}

QString TestZetoCamConfigColorDialog::statistics() const
{
    QStringList texts;
    for (const char* const label : {"lblRedCoef", "lblGreenCoef", "lblBlueCoef"})
        texts.append(childOf<QLabel>(*m_dialog, label).text());
    return texts.join(QLatin1Char(' '));
}

void TestZetoCamConfigColorDialog::sets_unity()
{
    int coefficient = 11;
    for (const char* const feature : {"RedCoefficient", "GreenCoefficient", "BlueCoefficient"})
        m_fixture->features().assign(feature, int64_t(coefficient++));
    QCOMPARE(statistics(), QStringLiteral("11 12 13"));
    const auto press = [this](const char* button) {
        QTest::mouseClick(&childOf<QPushButton>(*m_dialog, button), Qt::LeftButton);
        return m_fixture->takeWrites();
    };
    QCOMPARE(press("pushBtnGreenUnity"), QStringList("GreenCoefficient=256"));
    QCOMPARE(statistics(), QStringLiteral("11 256 13"));
    QCOMPARE(press("pushBtnRedUnity"), QStringList("RedCoefficient=256"));
    QCOMPARE(press("pushBtnBlueUnity"), QStringList("BlueCoefficient=256"));
    QCOMPARE(statistics(), QStringLiteral("256 256 256"));
    balance("Continuous");
    QVERIFY(!childOf<QPushButton>(*m_dialog, "pushBtnRedUnity").isEnabled());
}

void TestZetoCamConfigColorDialog::shows_statistics_live()
{
    const auto& label = childOf<QLabel>(*m_dialog, "lblRedCoef");
    const int width = label.width();
    QVERIFY(width >= label.fontMetrics().horizontalAdvance(QStringLiteral("4095")));
    balance("Once");
    QCOMPARE(statistics(), QStringLiteral("301 256 417"));
    m_fixture->features().assign("RedCoefficient", int64_t(4095));
    QCOMPARE(statistics(), QStringLiteral("4095 256 417"));
    QCOMPARE(label.width(), width);
    QCOMPARE(m_fixture->takeWrites(), QStringList("BalanceWhiteAuto=Once"));
}

void TestZetoCamConfigColorDialog::works_without_some_features()
{
    m_dialog->SetDevice(nullptr);
    m_fixture->features().setAccessMode("AutoTrackingSpeed", GenApi::NI);
    m_fixture->features().setAccessMode("GreenCoefficient", GenApi::NA);
    m_dialog->SetDevice(&m_fixture->device());
    QVERIFY(!childOf<QWidget>(*m_dialog, "cmBoxTrackingSpeed").isEnabled());
    QVERIFY(!childOf<QWidget>(*m_dialog, "pushBtnGreenUnity").isEnabled());
    QVERIFY(childOf<QWidget>(*m_dialog, "pushBtnRedUnity").isEnabled());
    balance("Once");
    QCOMPARE(m_fixture->takeWrites(), QStringList("BalanceWhiteAuto=Once"));
}

ZETO_TEST_MAIN(TestZetoCamConfigColorDialog)

#include "tst_zetocamconfigcolordialog.moc"
