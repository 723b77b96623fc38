#include "zetocamconfigframeabdialog_p.h"

#include "enumentries.h"
#include "featureunit.h"
#include "framenames.h"
#include "informationtext.h"
#include "paramaccess.h"
#include "qtzetoslider.h"
#include "qtzetosliderspinbox.h"
#include "qtzetospinbox.h"
#include "qtzetospinboxval.h"
#include "qtzetospinboxval64.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace ZetoGui {
namespace {

constexpr int64_t usualPixelClock = 160; // MHz

/// Keeps the dialog from changing its size with the ranges of the camera.
void keepRoomFor(QAbstractSpinBox& spinBox, const QString& widest)
{
    const QFontMetrics metrics = spinBox.fontMetrics();
    const int growth = metrics.horizontalAdvance(widest) - metrics.horizontalAdvance(QStringLiteral("100"));
    spinBox.setMinimumWidth(spinBox.sizeHint().width() + growth); // its range is [0, 100] still
}

/// In brackets, for a label before a number.
QString bracketed(const QString& unit)
{
    return QCoreApplication::translate("ZetoCamConfigFrameABDialog", "[%1]:").arg(unit);
}

} // namespace

int64_t ZetoCamConfigFrameABDialogPrivate::ToWidget(int64_t value, ZetoGenParam::Int* /*param*/)
{
    return linesToMicroseconds(value, m_timing);
}

int64_t ZetoCamConfigFrameABDialogPrivate::FromWidget(int64_t value, ZetoGenParam::Int* /*param*/)
{
    return microsecondsToLines(value, m_timing);
}

void ZetoCamConfigFrameABDialogPrivate::buildForm()
{
    FeatureDialogWithForm::buildForm();
    m_gain = std::make_unique<DigitalGainControl>(ui.spBoxDigitalGain, mapper);
    m_dualVideo = std::make_unique<DualVideoControl>(ui.spBoxDualVideo, mapper);
    m_size = std::make_unique<FrameSizeControl>(
        FrameSizeControl::Buttons{ui.radioBtnFullFrame, ui.radioBtnQFHDFrame, ui.radioBtnCustomFrame});
    m_exposure = std::make_unique<ExposureTimeControl>(
        ExposureTimeControl::SpinBoxes{ui.spBoxExpTime, ui.spBoxExpLines, ui.spBoxExpClocks}, m_timing,
        [this](ZetoGenParam::Param* param) { mapper.OnParamChanged(param); });
    for (QtZetoSliderSpinBox* const each : {ui.spBoxFixedFramePeriodValue, ui.spBoxBlackLevel})
        each->spinBox()->setKeyboardTracking(false);
    for (QtZetoSliderSpinBox* const each : {ui.spBoxExpTime, ui.spBoxFixedFramePeriodValue})
        keepRoomFor(*each->spinBox(), QStringLiteral("99999999"));
    keepRoomFor(*ui.spBoxExpLines->spinBox(), QStringLiteral("9999999"));
    keepRoomFor(*ui.spBoxExpClocks->spinBox(), QStringLiteral("99999"));
    ui.spBoxFixedFramePeriodValue->slider()->setScaleMode(QtZetoSlider::Logarithmic);
    for (QLabel* const label : {ui.lblExpTimeUnit, ui.lblFixedFramePeriodUnit})
        label->setText(bracketed(microseconds()));
}

void ZetoCamConfigFrameABDialogPrivate::bindFeatures()
{
    findFeatures();
    m_timing.pixelClock = valueOf(findInt("PixelClock")).value_or(usualPixelClock);
    m_timing.lineTime = valueOf(m_lineTime).value_or(0);
    readTrigger();

    bindNumbers();
    bindChoices();
    bindSelector();
    bindControls();
    showUnits();
    connectRules();
    followSelector();
    showExposureTime();
    showCurrentSize();
}

void ZetoCamConfigFrameABDialogPrivate::findFeatures()
{
    m_selector = findEnum("FrameAB_Selector");
    m_frameMode = findEnum("FrameMode");
    m_triggerMode = findEnum("TriggerMode");
    m_lineTime = findInt("Frame_LineTime");
    m_framePeriod = findInt("Frame_FixedFramePeriodValue");
    m_widthActual = findInt("Frame_WidthActual");
    m_heightActual = findInt("Frame_HeightActual");
}

void ZetoCamConfigFrameABDialogPrivate::readTrigger()
{
    m_triggerEnabled = m_triggerMode && currentEntryValue(*m_triggerMode) > 0;
}

void ZetoCamConfigFrameABDialogPrivate::bindNumbers()
{
    const std::pair<const char*, QSpinBox*> numbers[] = {{"NumberOfFrameAs", ui.spBoxNumberOfFrameAs},
                                                         {"NumberOfFrameBs", ui.spBoxNumberOfFrameBs},
                                                         {"Frame_LineTime", ui.spBoxFrameLineTime},
                                                         {"Frame_Width", ui.spBoxFrameWidth},
                                                         {"Frame_Height", ui.spBoxFrameHeight},
                                                         {"Frame_OffsetX", ui.spBoxFrameOffsetX},
                                                         {"Frame_OffsetY", ui.spBoxFrameOffsetY},
                                                         {"Frame_WdrE1", ui.spBoxWdrE1},
                                                         {"Frame_WdrE2", ui.spBoxWdrE2},
                                                         {"Frame_WdrE3", ui.spBoxWdrE3}};
    for (const auto& [feature, spinBox] : numbers)
        mapper.MapInt(findInt(feature), spinBox);
    mapper.MapInt(findInt("Frame_ExposureLines"), ui.spBoxExpLines);
    mapper.MapInt(findInt("Frame_ExposureClocks"), ui.spBoxExpClocks);
    mapper.MapInt(m_framePeriod, ui.spBoxFixedFramePeriodValue, this);
    mapper.MapInt(findInt("Frame_BlackLevel"), ui.spBoxBlackLevel);
}

void ZetoCamConfigFrameABDialogPrivate::bindChoices()
{
    const std::pair<const char*, QComboBox*> lists[] = {{"FrameMode", ui.cmBoxFrameMode},
                                                        {"Frame_SubsamplingM", ui.cmBoxSubsamplingM},
                                                        {"Frame_SubsamplingP", ui.cmBoxSubsamplingP},
                                                        {"Frame_Averaging", ui.cmBoxAveraging},
                                                        {"Frame_WdrP1", ui.cmBoxWdrP1},
                                                        {"Frame_WdrP2", ui.cmBoxWdrP2},
                                                        {"Frame_WdrP3", ui.cmBoxWdrP3}};
    for (const auto& [feature, comboBox] : lists)
        mapper.MapEnum(findEnum(feature), comboBox);
    const std::pair<const char*, QButtonGroup*> groups[] = {
        {"ShutterMode", ui.btnGroupShutterMode},
        {"SensorADCBitDepth", ui.btnGroupAdcSelector},
        {"Frame_ExposureControl", ui.btnGroupExposureControl},
        {"Frame_DecimationMode", ui.btnGroupDecimation},
        {"Frame_AnalogGain", ui.btnGroupAnalogGain}};
    for (const auto& [feature, group] : groups)
        mapper.MapEnum(findEnum(feature), group);
    mapper.MapBoolean(findBoolean("Frame_FixedFramePeriodEnable"), ui.chBoxFixedFramePeriodEnable);
    mapper.MapBoolean(findBoolean("Frame_WdrEnable"), ui.chBoxWdrEnable);
}

void ZetoCamConfigFrameABDialogPrivate::bindSelector()
{
    const QString selector = QStringLiteral("FrameAB_Selector");
    mapper.TabIndex(selector, FrameA) = ui.tabFrames->indexOf(ui.tabFrameA);
    mapper.TabIndex(selector, FrameB) = ui.tabFrames->indexOf(ui.tabFrameB);
    mapper.MapEnum(m_selector, ui.tabFrames);
}

/// Those that show more than one feature, or one feature in their own way.
void ZetoCamConfigFrameABDialogPrivate::bindControls()
{
    const ExtentFeatures horizontal{findInt("Frame_Width"), findInt("Frame_OffsetX")};
    const ExtentFeatures vertical{findInt("Frame_Height"), findInt("Frame_OffsetY")};
    m_exposure->bind(findInt("Frame_ExposureLines"), findInt("Frame_ExposureClocks"), connections());
    m_gain->bind(findInt("Frame_DigitalCourseGain"), findInt("Frame_DigitalFineGain"), connections());
    m_dualVideo->bind(m_lineTime, m_selector, connections());
    m_size->bind(horizontal, vertical, connections());
    for (const char* const feature :
         {"Frame_ExposureLines", "Frame_ExposureClocks", "Frame_LineTime", "Frame_FixedFramePeriodValue",
          "TriggerMode", "Frame_DigitalCourseGain", "Frame_DigitalFineGain", "Frame_Width", "Frame_OffsetX",
          "Frame_Height", "Frame_OffsetY", "Frame_WidthActual", "Frame_HeightActual"}) {
        int32_t ignored = 0;
        watch(array->GetParam(feature, &ignored));
    }
}

void ZetoCamConfigFrameABDialogPrivate::showUnits()
{
    const std::pair<const char*, QLabel*> knees[] = {{"Frame_WdrE1", ui.lblWdrE1MicroSec},
                                                     {"Frame_WdrE2", ui.lblWdrE2MicroSec},
                                                     {"Frame_WdrE3", ui.lblWdrE3MicroSec}};
    for (const auto& [feature, label] : knees) {
        const QString unit = featureUnit(*array, feature);
        label->setText(bracketed(unit.isEmpty() ? microseconds() : unit));
    }
}

void ZetoCamConfigFrameABDialogPrivate::connectRules()
{
    const auto rules = [this] { applyRules(); };
    for (QButtonGroup* const group : {ui.btnGroupExposureControl, ui.btnGroupDecimation})
        connect(group, qOverload<QAbstractButton*, bool>(&QButtonGroup::buttonToggled), connections(), rules);
    for (QCheckBox* const checkBox : {ui.chBoxFixedFramePeriodEnable, ui.chBoxWdrEnable})
        connect(checkBox, &QCheckBox::toggled, connections(), rules);
    connect(ui.chBoxFixedFramePeriodEnable, &QCheckBox::toggled, connections(),
            [this] { followExposureTime(); });
    connect(ui.cmBoxFrameMode, &QComboBox::currentTextChanged, connections(), rules);
    connect(ui.cmBoxFrameMode, qOverload<int>(&QComboBox::activated), connections(),
            [this] { showFrameOfMode(); });
    connect(ui.tabFrames, &QTabWidget::currentChanged, connections(), [this] { followSelector(); });
}

void ZetoCamConfigFrameABDialogPrivate::featureChanged(ZetoGenParam::Param* param)
{
    if (param == m_lineTime) {
        m_timing.lineTime = valueOf(m_lineTime).value_or(0);
        if (m_framePeriod)
            mapper.OnParamChanged(m_framePeriod); // as many lines as before take another time
        m_dualVideo->show();
    } else if (param == m_triggerMode) {
        readTrigger();
    } else if (m_exposure->isAbout(param)) {
        m_exposure->readCamera();
    } else if (m_gain->isAbout(param)) {
        m_gain->show();
    } else if (m_size->isAbout(param)) {
        m_size->show();
    } else if (param == m_widthActual || param == m_heightActual) {
        showCurrentSize();
    }
    applyRules();
    followExposureTime();
}

void ZetoCamConfigFrameABDialogPrivate::applyRules()
{
    const bool followed = ui.spBoxExpTime->isEnabled();
    applyExposureRules();
    applyFrameMode();
    if (!followed)
        followExposureTime();
    allow({ui.spBoxDigitalGain}, m_gain->isOffered());
    allow({ui.radioBtnFullFrame, ui.radioBtnCustomFrame}, m_size->isOffered());
    allow({ui.radioBtnQFHDFrame}, m_size->isOffered() && m_size->hasQfhd());
    allow({ui.cmBoxSubsamplingM, ui.cmBoxSubsamplingP}, ui.radioBtnSubsampleSubsampling->isChecked());
    allow({ui.cmBoxAveraging}, ui.radioBtnSubsampleAverage->isChecked());
    allow({ui.cmBoxWdrP1, ui.spBoxWdrE1, ui.cmBoxWdrP2, ui.spBoxWdrE2, ui.cmBoxWdrP3, ui.spBoxWdrE3},
          ui.chBoxWdrEnable->isChecked());
}

void ZetoCamConfigFrameABDialogPrivate::applyExposureRules()
{
    const bool isTimed = ui.radioBtnExpInternal->isChecked();
    allow({ui.spBoxExpLines, ui.spBoxExpClocks}, isTimed);
    allow({ui.spBoxExpTime}, isTimed && m_exposure->isOffered());
    allow({ui.radioBtnExpTrigger}, m_triggerEnabled || !m_triggerMode);
    allow({ui.spBoxFixedFramePeriodValue}, ui.chBoxFixedFramePeriodEnable->isChecked());
}

/// The settings of a frame that the camera does not put out do not matter, and dual video has one line time
/// for both frames.
void ZetoCamConfigFrameABDialogPrivate::applyFrameMode()
{
    const QWidget* const page = pageOf(m_frameMode ? ui.cmBoxFrameMode->currentText() : QString());
    const bool isDualVideo = m_frameMode && !page;
    allow({ui.framePanel}, !page || page == ui.framePanel->parentWidget());
    allow({ui.spBoxFrameLineTime}, !isDualVideo);
    allow({ui.spBoxDualVideo}, isDualVideo && m_dualVideo->isOffered());
}

void ZetoCamConfigFrameABDialogPrivate::allow(std::initializer_list<QWidget*> widgets, bool allowed)
{
    for (QWidget* const widget : widgets)
        mapper.SetAllowed(widget, allowed);
}

/// Shows the panel on the tab of the frame that the camera has selected and on no other: no edit may land on
/// the other frame. A tab that the camera did not take is left again.
void ZetoCamConfigFrameABDialogPrivate::followSelector()
{
    QWidget* const page = m_selector ? pageOf(currentEntryName(*m_selector)) : nullptr;
    if (page && page != ui.tabFrames->currentWidget() && !m_returning) {
        const QScopedValueRollback<bool> once(m_returning, true); // its tab may be one that cannot be shown
        mapper.OnParamChanged(m_selector);
    }
    if (page && page != ui.framePanel->parentWidget()) {
        page->layout()->addWidget(ui.framePanel);
        ui.framePanel->show();
        m_size->showOtherFrame();
    }
    applyRules();
}

/// After the person has chosen a mode: brings up the frame that it puts out.
void ZetoCamConfigFrameABDialogPrivate::showFrameOfMode()
{
    QWidget* const page = m_frameMode ? pageOf(currentEntryName(*m_frameMode)) : nullptr;
    if (page && ui.tabFrames->isEnabled())
        ui.tabFrames->setCurrentWidget(page);
}

/// Null for what is no single frame.
QWidget* ZetoCamConfigFrameABDialogPrivate::pageOf(const QString& frame) const
{
    if (frame == QLatin1String(FrameA))
        return ui.tabFrameA;
    return frame == QLatin1String(FrameB) ? ui.tabFrameB : nullptr;
}

void ZetoCamConfigFrameABDialogPrivate::showExposureTime()
{
    const bool isFixed = ui.chBoxFixedFramePeriodEnable->isChecked();
    m_exposure->show(isFixed ? std::make_optional(ui.spBoxFixedFramePeriodValue->value()) : std::nullopt);
}

/// A time that cannot be set stays as it is until it can be.
void ZetoCamConfigFrameABDialogPrivate::followExposureTime()
{
    if (ui.spBoxExpTime->isEnabled())
        showExposureTime();
}

void ZetoCamConfigFrameABDialogPrivate::showCurrentSize()
{
    const QString size = sizeText(valueOf(m_widthActual), valueOf(m_heightActual));
    ui.lineEditFrameCurrentSize->setText(size);
    ui.lineEditFrameCurrentSize->setEnabled(!size.isEmpty());
}

} // namespace ZetoGui
