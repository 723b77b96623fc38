#include "dialogfixture.h"
#include "nodemapbuilder.h"
#include "nodemapdevice.h"

#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QtTest>

using TriggerDialog = ZetoGui::ZetoCamConfigTriggerDialog;

/// The rules between the controls of the trigger dialog.
class TestZetoCamConfigTriggerDialog : public QObject
{
    Q_OBJECT

private slots:
    void enables_what_the_settings_allow();
    void follows_the_camera_in_its_rules();
    void enables_nothing_that_the_camera_lacks();
};

namespace {

std::unique_ptr<ZetoNodeMap::NodeMap> makeFeatures()
{
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root");
    b.enumeration("TriggerMode").in("Root").entries({"Off", "On"});
    b.enumeration("TriggerSource").in("Root").entries({"Line1", "Software"});
    b.enumeration("TriggerActivation").in("Root").entries({"RisingEdge"});
    b.enumeration("TriggerDebounce").in("Root").entries({"Disabled"});
    b.command("TriggerSoftware").in("Root");
    return b.build();
}

/// Allows everything at any time: what is disabled then the dialog has disabled.
struct LenientCamera
{
    struct Device : ZetoCameraLibrary::NodeMapDevice
    {
        using NodeMapDevice::NodeMapDevice;
        void Release() override {}
    };

    const std::unique_ptr<ZetoNodeMap::NodeMap> features = makeFeatures();
    Device device{*features};
};

/// The controls that are enabled, by letter: Enable, Source, edge (A), Debounce, sofTware trigger.
QString enabledControls(const QDialog& dialog)
{
    QString letters;
    const auto add = [&](const char* name, char letter) {
        if (childOf<QWidget>(dialog, name).isEnabled())
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

/// By hand and, the same, on a camera that is set so before.
void TestZetoCamConfigTriggerDialog::enables_what_the_settings_allow()
{
    LenientCamera camera;
    TriggerDialog dialog(&camera.device);
    auto& enable = childOf<QCheckBox>(dialog, "chBoxTriggerEnable");
    const auto enabledAfter = [&](bool on, const char* source) -> QString {
        enable.setChecked(true);
        childOf<QComboBox>(dialog, "cmBoxTriggerSource").setCurrentText(QLatin1String(source));
        enable.setChecked(on);
        const TriggerDialog second(&camera.device);
        return enabledControls(dialog) + ' ' + enabledControls(second) + ' ' +
               camera.features->text("TriggerMode").c_str();
    };
    QCOMPARE(enabledAfter(false, "Line1"), "E E Off");
    QCOMPARE(enabledAfter(false, "Software"), "E E Off");
    QCOMPARE(enabledAfter(true, "Line1"), "ESAD ESAD On");
    QCOMPARE(enabledAfter(true, "Software"), "ESADT ESADT On");
    QCOMPARE(camera.features->text("TriggerSource"), std::string("Software"));
}

/// A trigger by software has no edge.
void TestZetoCamConfigTriggerDialog::follows_the_camera_in_its_rules()
{
    DialogFixture fixture;
    TriggerDialog dialog(&fixture.device());
    fixture.features().assign("TriggerMode", std::string("On"));
    QCOMPARE(enabledControls(dialog), "ESAD");
    fixture.features().assign("TriggerSource", std::string("Software"));
    QCOMPARE(enabledControls(dialog), "ESDT");
    QCOMPARE(fixture.takeWrites(), QStringList());

    dialog.show();
    auto& button = childOf<QPushButton>(dialog, "pushBtnSoftwareTrigger");
    QCOMPARE(button.text(), "Software\nTrigger");
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(fixture.takeWrites(), QStringList("TriggerSoftware()"));
    QCOMPARE(fixture.features().integer("TriggerCount"), int64_t(1));
    fixture.features().assign("TriggerMode", std::string("Off"));
    QCOMPARE(enabledControls(dialog), "E");
}

void TestZetoCamConfigTriggerDialog::enables_nothing_that_the_camera_lacks()
{
    DialogFixture plain("sim.u3v0.plain");
    TriggerDialog dialog(&plain.device());
    childOf<QCheckBox>(dialog, "chBoxTriggerEnable").setChecked(true);
    QCOMPARE(enabledControls(dialog), "ESA");

    DialogFixture fixture;
    fixture.features().assign("TriggerSource", std::string("Software"));
    fixture.features().setAccessMode("TriggerSoftware", GenApi::NI);
    dialog.SetDevice(&fixture.device());
    childOf<QCheckBox>(dialog, "chBoxTriggerEnable").setChecked(true);
    QCOMPARE(enabledControls(dialog), "ESD");
    dialog.SetDevice(nullptr);
    QCOMPARE(enabledControls(dialog), "");
}

ZETO_TEST_MAIN(TestZetoCamConfigTriggerDialog)

#include "tst_zetocamconfigtriggerdialog.moc"
