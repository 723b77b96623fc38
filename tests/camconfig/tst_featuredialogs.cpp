#include "datatable.h"
#include "dialogfixture.h"
#include "messageboxes.h"

#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>
#include <ZetoCameraGuiApi/zetocamconfigframeabdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>
#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>
#include <ZetoCameraGuiApi/zetocamconfigtriggerdialog.h>

#include "testmain.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

/// One of the feature dialogs.
struct DialogKind
{
    const char* name;
    std::function<std::unique_ptr<QDialog>(ZetoCam::Device*)> make;
    std::function<void(QDialog&, ZetoCam::Device*)> setDevice;
};

template <typename Dialog>
DialogKind dialogKind(const char* name)
{
    return {name, [](ZetoCam::Device* device) { return std::make_unique<Dialog>(device); },
            [](QDialog& dialog, ZetoCam::Device* device) { static_cast<Dialog&>(dialog).SetDevice(device); }};
}

/// All feature dialogs.
const std::vector<DialogKind>& featureDialogs()
{
    static const std::vector<DialogKind> dialogs = {
        dialogKind<ZetoGui::ZetoCamConfigColorDialog>("color"),
        dialogKind<ZetoGui::ZetoCamConfigFrameABDialog>("frameab"),
        dialogKind<ZetoGui::ZetoCamConfigOutputDialog>("output"),
        dialogKind<ZetoGui::ZetoCamConfigPulseDialog>("pulse"),
        dialogKind<ZetoGui::ZetoCamConfigStrobeDialog>("strobe"),
        dialogKind<ZetoGui::ZetoCamConfigTriggerDialog>("trigger"),
    };
    return dialogs;
}

} // namespace

/// What all feature dialogs have in common, for each of them, and what each of their controls writes.
class TestFeatureDialogs : public QObject
{
    Q_OBJECT

private slots:
    void shows_any_camera_or_none_data() { addDialogs(); }
    void shows_any_camera_or_none();
    void writes_nothing_while_the_camera_changes_data() { addDialogs(); }
    void writes_nothing_while_the_camera_changes();
    void changes_cameras_data() { addDialogs(); }
    void changes_cameras();
    void shows_a_camera_as_a_new_dialog_does_data() { addDialogs(); }
    void shows_a_camera_as_a_new_dialog_does();
    void reports_each_refused_write_once_data() { addDialogs(); }
    void reports_each_refused_write_once();
    void shows_the_help_of_the_camera_data() { addDialogs(); }
    void shows_the_help_of_the_camera();
    void survives_any_fault_data() { addDialogs(); }
    void survives_any_fault();
    void survives_the_loss_of_the_camera_data() { addDialogs(); }
    void survives_the_loss_of_the_camera();
    void says_that_it_closes_data() { addDialogs(); }
    void says_that_it_closes();
    void writes_the_feature_of_a_control_data();
    void writes_the_feature_of_a_control();

private:
    static void addDialogs();
    static const DialogKind& kind();
};

namespace {

/// Name, state and content of each control.
QStringList shownIn(const QDialog& dialog)
{
    QStringList shown;
    const auto add = [&shown](const QWidget* control, const QString& content) {
        const QString state = control->isEnabled() ? QStringLiteral("on") : QStringLiteral("off");
        const QString name = control->objectName() + QLatin1Char('/') + control->parent()->objectName();
        shown.append(name + QLatin1Char(' ') + state + QLatin1Char(' ') + content);
    };
    for (const auto* const each : dialog.findChildren<QComboBox*>())
        add(each, each->currentText());
    for (const auto* const each : dialog.findChildren<QLineEdit*>())
        add(each, each->text());
    for (const auto* const each : dialog.findChildren<QLabel*>(QRegularExpression(QStringLiteral("^lbl"))))
        add(each, each->text());
    for (const auto* const each : dialog.findChildren<QAbstractButton*>())
        add(each, each->text() + (each->isChecked() ? QStringLiteral(" checked") : QString()));
    return shown;
}

/// Edits the control \a name, the next thing to be had.
void edit(QDialog& dialog, const QString& name)
{
    auto* const widget = dialog.findChild<QWidget*>(name);
    if (auto* const combo = qobject_cast<QComboBox*>(widget))
        combo->setCurrentIndex(combo->currentIndex() + 1);
    else if (auto* const button = qobject_cast<QAbstractButton*>(widget))
        button->click();
    else
        widget->findChild<QAbstractSpinBox*>()->stepUp();
}

/// Lets every control be edited.
void allowEverything(ZetoNodeMap::NodeMap& features)
{
    for (const char* const correction : {"DefectPixelCorrection", "HotPixelCorrection"})
        features.assign(correction, std::string("Dynamic"));
    features.assign("PulseGenMode", std::string("NumPulses"));
}

} // namespace

void TestFeatureDialogs::addDialogs()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < featureDialogs().size(); ++i)
        QTest::newRow(featureDialogs()[i].name) << int(i);
}

const DialogKind& TestFeatureDialogs::kind()
{
    QFETCH(int, index);
    return featureDialogs()[std::size_t(index)];
}

void TestFeatureDialogs::shows_any_camera_or_none()
{
    for (const char* const camera : {"sim.gev0.dual", "sim.u3v0.plain"}) {
        DialogFixture fixture(camera);
        const auto dialog = kind().make(&fixture.device());
        QVERIFY(dialog->isEnabled());
        QCOMPARE(dialog->layout()->sizeConstraint(), QLayout::SetFixedSize);
        QCOMPARE(fixture.takeWrites(), QStringList());
        dialog->show();
        QVERIFY(dialog->width() <= dialog->screen()->availableSize().width());
        const auto buttons = dialog->findChildren<QPushButton*>();
        for (const QPushButton* const button : buttons)
            QVERIFY2(!button->autoDefault(), "Enter in a field would press it");
        const auto fields = dialog->findChildren<QAbstractSpinBox*>();
        for (const QAbstractSpinBox* const field : fields)
            QVERIFY2(!field->isEnabled() || !field->keyboardTracking(), "writes each digit");
    }
    QVERIFY(!kind().make(nullptr)->isEnabled());
}

void TestFeatureDialogs::writes_nothing_while_the_camera_changes()
{
    DialogFixture fixture;
    const auto dialog = kind().make(&fixture.device());
    dialog->show();
    fixture.takeWrites();
    fixture.moveEverything();
    fixture.moveEverything(); // from where the first round ended
    QCOMPARE(fixture.takeWrites(), QStringList());
}

/// No camera keeps anything of a dialog that has left it; the sanitizers would tell.
void TestFeatureDialogs::changes_cameras()
{
    auto full = std::make_unique<DialogFixture>();
    auto plain = std::make_unique<DialogFixture>("sim.u3v0.plain");
    auto dialog = kind().make(&full->device());
    ZetoCam::Device* const first = &full->device();
    ZetoCam::Device* const second = &plain->device();
    for (ZetoCam::Device* const device :
         {first, first, second, static_cast<ZetoCam::Device*>(nullptr), second}) {
        kind().setDevice(*dialog, device);
        QCOMPARE(dialog->isEnabled(), device != nullptr);
    }
    full->moveEverything();
    full.reset();
    plain->moveEverything();
    useEveryControl(*dialog);
    dialog.reset();
    plain->moveEverything();
}

/// Whatever it has shown of another one before.
void TestFeatureDialogs::shows_a_camera_as_a_new_dialog_does()
{
    DialogFixture used; // not shown again: its pulse generator stops by itself
    DialogFixture plain("sim.u3v0.plain");
    DialogFixture other;
    const auto dialog = kind().make(&used.device());
    useEveryControl(*dialog);
    dialog->show();
    for (ZetoCam::Device* const device : {&plain.device(), &other.device()}) {
        kind().setDevice(*dialog, device);
        const auto fresh = kind().make(device);
        fresh->show();
        QCOMPARE(shownIn(*dialog), shownIn(*fresh));
    }
    kind().setDevice(*dialog, nullptr);
}

void TestFeatureDialogs::reports_each_refused_write_once()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    const auto dialog = kind().make(&fixture.device());
    fixture.refuseNextWrite(ZetoCam::ErrorFlashErase);
    useEveryControl(*dialog);
    QVERIFY(!fixture.takeWrites().isEmpty());
    QCOMPARE(boxes.take().filter(QStringLiteral("Flash erase error")).size(), 1);
}

void TestFeatureDialogs::shows_the_help_of_the_camera()
{
    DialogFixture fixture;
    const auto dialog = kind().make(&fixture.device());
    const auto toolTips = [&] {
        QStringList texts;
        const auto widgets = dialog->findChildren<QWidget*>();
        for (const QWidget* const widget : widgets)
            texts.append(widget->toolTip());
        texts.removeAll(QString());
        return texts;
    };
    QVERIFY(!toolTips().filter(QStringLiteral("<qt>")).isEmpty());
    kind().setDevice(*dialog, nullptr);
    QVERIFY(toolTips().filter(QStringLiteral("<qt>")).isEmpty());
}

void TestFeatureDialogs::survives_any_fault()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    const auto dialog = kind().make(nullptr);
    const auto use = [&] {
        kind().setDevice(*dialog, &fixture.device());
        useEveryControl(*dialog);
        kind().setDevice(*dialog, nullptr);
    };
    fixture.faults().stop();
    use();
    const int calls = fixture.faults().calls();
    const int codes[] = {-40001, -40006, -40051, -40202, -40204, -40206};
    const int stride = 1 + calls / 300; // of the calls of a large dialog, samples
    for (int call = 0; call < calls; call += stride) {
        for (const int code : {0, codes[call % std::size(codes)]}) {
            fixture.faults().failAt(call, code);
            fixture.takeWrites();
            boxes.take();
            use();
            QVERIFY(boxes.take().size() <= fixture.takeWrites().size());
        }
    }
    fixture.faults().stop();
    kind().setDevice(*dialog, &fixture.device());
    useEveryControl(*dialog);
    QVERIFY(!fixture.takeWrites().isEmpty());
    kind().setDevice(*dialog, nullptr);
}

void TestFeatureDialogs::survives_the_loss_of_the_camera()
{
    DialogFixture fixture;
    MessageBoxes boxes;
    auto dialog = kind().make(&fixture.device());
    fixture.plug(false);
    useEveryControl(*dialog);
    QVERIFY(boxes.take().size() <= fixture.takeWrites().size());
    fixture.plug(true);
    fixture.moveEverything();
    useEveryControl(*dialog);
    fixture.plug(false);
    dialog.reset();
}

void TestFeatureDialogs::says_that_it_closes()
{
    const auto dialog = kind().make(nullptr);
    const QSignalSpy closing(dialog.get(), SIGNAL(closing()));
    dialog->show();
    dialog->close();
    QCOMPARE(closing.size(), 1);
    dialog->show();
    dialog->setEnabled(true); // a camera is there
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    QCOMPARE(closing.size(), 2);
    QVERIFY(!dialog->isVisible());
}

void TestFeatureDialogs::writes_the_feature_of_a_control_data()
{
    const DataTable<QString, QString> table("dialog", "write");
    table.row("cmBoxGranularity", "pulse", "PulseGenGranularity=x2");
    table.row("spBoxPeriod", "pulse", "PulseGenPeriod=1001");
    table.row("spBoxWidth", "pulse", "PulseGenWidth=251");
    table.row("spBoxNumPulses", "pulse", "PulseGenNumPulses=11");
    table.row("radioBtnContinious", "pulse", "PulseGenMode=Continuous");
    table.row("pushBtnPulseEnable", "pulse", "PulseGenEnable=1");

    table.row("cmBoxStrobe1Mode", "strobe", "Strobe1Mode=Enabled");
    table.row("cmBoxStrobe1Ref", "strobe", "Strobe1Reference=ReadoutStart");
    table.row("spBoxStrobe1Delay", "strobe", "Strobe1Delay=1");
    table.row("spBoxStrobe1Width", "strobe", "Strobe1Width=1001");
    table.row("cmBoxStrobe2Mode", "strobe", "Strobe2Mode=Enabled");
    table.row("cmBoxStrobe2Ref", "strobe", "Strobe2Reference=ReadoutStart");
    table.row("spBoxStrobe2Delay", "strobe", "Strobe2Delay=1");
    table.row("spBoxStrobe2Width", "strobe", "Strobe2Width=1001");
    table.row("cmBoxOut1Selector", "strobe", "OUT1Selector=Strobe1");
    table.row("cmBoxOut1Polarity", "strobe", "OUT1Polarity=ActiveHigh");
    table.row("cmBoxOut2Selector", "strobe", "OUT2Selector=Strobe1");
    table.row("cmBoxOut2Polarity", "strobe", "OUT2Polarity=ActiveHigh");

    table.row("cmBoxTaps", "output", "SensorADCBitDepth11=Taps4");
    table.row("cmBoxDepth", "output", "SensorADCBitDepth=Bits12");
    table.row("cmBoxPixelFormat", "output", "PixelFormat=BayerRG10");
    table.row("chBoxEnableLut", "output", "LUTEnable=1");
    table.row("cmBoxLut", "output", "LUTSelector=LUT2");
    table.row("cmBoxDpc", "output", "DefectPixelCorrection=StaticDynamic");
    table.row("spBoxDpcDynThres", "output", "DefectPixelThreshold=65");
    table.row("cmBoxHpc", "output", "HotPixelCorrection=StaticDynamic");
    table.row("spBoxHpcDynThres", "output", "HotPixelThreshold=65");
    table.row("chBoxHorMirror", "output", "ReverseX=1");
    table.row("chBoxVerMirror", "output", "ReverseY=1");
    table.row("cmBoxTestMode", "output", "TestPattern=GreyHorizontalRamp");
}

void TestFeatureDialogs::writes_the_feature_of_a_control()
{
    QFETCH(QString, dialog);
    QFETCH(QString, write);
    DialogFixture fixture;
    allowEverything(fixture.features());
    const auto kind =
        std::find_if(featureDialogs().begin(), featureDialogs().end(),
                     [&](const DialogKind& each) { return dialog == QLatin1String(each.name); });
    const auto shown = kind->make(&fixture.device());
    shown->show();
    edit(*shown, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(fixture.takeWrites(), QStringList(write));
}

ZETO_TEST_MAIN(TestFeatureDialogs)

#include "tst_featuredialogs.moc"
