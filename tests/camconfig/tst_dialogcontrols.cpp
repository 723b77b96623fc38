#include "featuredialogs.h"

#include "testmain.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QtTest>

#include <algorithm>

/// Each control of the dialogs writes the feature that it stands for.
class TestDialogControls : public QObject
{
    Q_OBJECT

private slots:
    void writes_its_feature_data();
    void writes_its_feature();
};

namespace {

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
void setUp(ZetoNodeMap::NodeMap& features)
{
    for (const char* const correction : {"DefectPixelCorrection", "HotPixelCorrection"})
        features.assign(correction, std::string("Dynamic"));
    features.assign("PulseGenMode", std::string("NumPulses"));
}

} // namespace

void TestDialogControls::writes_its_feature_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("write");
    const auto row = [](const char* dialog, const char* control, const char* write) {
        QTest::newRow(control) << QString::fromLatin1(dialog) << QString::fromLatin1(write);
    };
    row("pulse", "cmBoxGranularity", "PulseGenGranularity=x2");
    row("pulse", "spBoxPeriod", "PulseGenPeriod=1001");
    row("pulse", "spBoxWidth", "PulseGenWidth=251");
    row("pulse", "spBoxNumPulses", "PulseGenNumPulses=11");
    row("pulse", "radioBtnContinious", "PulseGenMode=Continuous");
    row("pulse", "pushBtnPulseEnable", "PulseGenEnable=1");

    row("strobe", "cmBoxStrobe1Mode", "Strobe1Mode=Enabled");
    row("strobe", "cmBoxStrobe1Ref", "Strobe1Reference=ReadoutStart");
    row("strobe", "spBoxStrobe1Delay", "Strobe1Delay=1");
    row("strobe", "spBoxStrobe1Width", "Strobe1Width=1001");
    row("strobe", "cmBoxStrobe2Mode", "Strobe2Mode=Enabled");
    row("strobe", "cmBoxStrobe2Ref", "Strobe2Reference=ReadoutStart");
    row("strobe", "spBoxStrobe2Delay", "Strobe2Delay=1");
    row("strobe", "spBoxStrobe2Width", "Strobe2Width=1001");
    row("strobe", "cmBoxOut1Selector", "OUT1Selector=Strobe1");
    row("strobe", "cmBoxOut1Polarity", "OUT1Polarity=ActiveHigh");
    row("strobe", "cmBoxOut2Selector", "OUT2Selector=Strobe1");
    row("strobe", "cmBoxOut2Polarity", "OUT2Polarity=ActiveHigh");

    row("output", "cmBoxTaps", "SensorADCBitDepth11=Taps4");
    row("output", "cmBoxDepth", "SensorADCBitDepth=Bits12");
    row("output", "cmBoxPixelFormat", "PixelFormat=BayerRG10");
    row("output", "chBoxEnableLut", "LUTEnable=1");
    row("output", "cmBoxLut", "LUTSelector=LUT2");
    row("output", "cmBoxDpc", "DefectPixelCorrection=StaticDynamic");
    row("output", "spBoxDpcDynThres", "DefectPixelThreshold=65");
    row("output", "cmBoxHpc", "HotPixelCorrection=StaticDynamic");
    row("output", "spBoxHpcDynThres", "HotPixelThreshold=65");
    row("output", "chBoxHorMirror", "ReverseX=1");
    row("output", "chBoxVerMirror", "ReverseY=1");
    row("output", "cmBoxTestMode", "TestPattern=GreyHorizontalRamp");
}

void TestDialogControls::writes_its_feature()
{
    QFETCH(QString, dialog);
    QFETCH(QString, write);
    DialogFixture fixture;
    setUp(fixture.features());
    const auto kind =
        std::find_if(featureDialogs().begin(), featureDialogs().end(),
                     [&](const DialogKind& each) { return dialog == QLatin1String(each.name); });
    const auto shown = kind->make(&fixture.device());
    shown->show();
    edit(*shown, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(fixture.takeWrites(), QStringList(write));
}

ZETO_TEST_MAIN(TestDialogControls)

#include "tst_dialogcontrols.moc"
