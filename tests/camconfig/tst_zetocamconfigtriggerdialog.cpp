#include "dialogfixture.h"

#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QtTest>

/// The rules between the controls of the trigger dialog.
class TestZetoCamConfigTriggerDialog : public QObject
{
    Q_OBJECT

private slots:
    void enables_what_the_settings_allow_data();
    void enables_what_the_settings_allow();
    void fires_a_software_trigger();
    void follows_the_camera_in_its_rules();
    void enables_nothing_that_the_camera_lacks();
};

namespace {

template <typename Widget>
Widget* child(QDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QLatin1String(name));
}

/// The controls that are enabled, by letter: Enable, Source, edge (A), Debounce, sofTware trigger.
QString enabledControls(QDialog& dialog)
{
    QString letters;
    const auto add = [&](const char* name, char letter) {
        if (child<QWidget>(dialog, name)->isEnabled())
            letters += QLatin1Char(letter);
    };
    add("chBoxTriggerEnable", 'E');
    add("cmBoxTriggerSource", 'S');
    add("cmBoxTriggerEdge", 'A');
    add("cmBoxTriggerDebounce", 'D');
    add("pushBtnSoftwareTrigger", 'T');
    return letters;
}

} // namespace

void TestZetoCamConfigTriggerDialog::enables_what_the_settings_allow_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("off") << false << QStringLiteral("Line1") << QStringLiteral("E");
    QTest::newRow("off by software") << false << QStringLiteral("Software") << QStringLiteral("E");
    QTest::newRow("on") << true << QStringLiteral("Line1") << QStringLiteral("ESAD");
    QTest::newRow("on by software") << true << QStringLiteral("Software") << QStringLiteral("ESDT");
}

/// By hand and, the same, on a camera that is set so before. A trigger by software has no edge.
void TestZetoCamConfigTriggerDialog::enables_what_the_settings_allow()
{
    QFETCH(bool, on);
    QFETCH(QString, source);
    DialogFixture fixture;
    ZetoGui::ZetoCamConfigTriggerDialog dialog(&fixture.device());
    auto* const enable = child<QCheckBox>(dialog, "chBoxTriggerEnable");
    enable->setChecked(true);
    child<QComboBox>(dialog, "cmBoxTriggerSource")->setCurrentText(source);
    enable->setChecked(on);
    QTEST(enabledControls(dialog), "enabled");
    QCOMPARE(fixture.features().text("TriggerMode"), std::string(on ? "On" : "Off"));
    QCOMPARE(fixture.features().text("TriggerSource"), source.toStdString());

    ZetoGui::ZetoCamConfigTriggerDialog second(&fixture.device());
    QTEST(enabledControls(second), "enabled");
}

void TestZetoCamConfigTriggerDialog::fires_a_software_trigger()
{
    DialogFixture fixture;
    fixture.features().assign("TriggerMode", std::string("On"));
    fixture.features().assign("TriggerSource", std::string("Software"));
    ZetoGui::ZetoCamConfigTriggerDialog dialog(&fixture.device());
    dialog.show();
    auto* const button = child<QPushButton>(dialog, "pushBtnSoftwareTrigger");
    QCOMPARE(button->text(), QStringLiteral("Software\nTrigger"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(fixture.takeWrites(), QStringList(QStringLiteral("TriggerSoftware()")));
    QCOMPARE(fixture.features().integer("TriggerCount"), int64_t(1));
}

void TestZetoCamConfigTriggerDialog::follows_the_camera_in_its_rules()
{
    DialogFixture fixture;
    ZetoGui::ZetoCamConfigTriggerDialog dialog(&fixture.device());
    fixture.features().assign("TriggerMode", std::string("On"));
    QCOMPARE(enabledControls(dialog), QStringLiteral("ESAD"));
    fixture.features().assign("TriggerSource", std::string("Software"));
    QCOMPARE(enabledControls(dialog), QStringLiteral("ESDT"));
    fixture.features().assign("TriggerMode", std::string("Off"));
    QCOMPARE(enabledControls(dialog), QStringLiteral("E"));
    QCOMPARE(fixture.takeWrites(), QStringList());
}

void TestZetoCamConfigTriggerDialog::enables_nothing_that_the_camera_lacks()
{
    DialogFixture plain("sim.u3v0.plain");
    ZetoGui::ZetoCamConfigTriggerDialog dialog(&plain.device());
    child<QCheckBox>(dialog, "chBoxTriggerEnable")->setChecked(true);
    QCOMPARE(enabledControls(dialog), QStringLiteral("ESA"));

    DialogFixture fixture;
    fixture.features().assign("TriggerSource", std::string("Software"));
    fixture.features().setAccessMode("TriggerSoftware", GenApi::NI);
    dialog.SetDevice(&fixture.device());
    child<QCheckBox>(dialog, "chBoxTriggerEnable")->setChecked(true);
    QCOMPARE(enabledControls(dialog), QStringLiteral("ESD"));
    dialog.SetDevice(nullptr);
    QCOMPARE(enabledControls(dialog), QString());
}

ZETO_TEST_MAIN(TestZetoCamConfigTriggerDialog)

#include "tst_zetocamconfigtriggerdialog.moc"
