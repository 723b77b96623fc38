#include <ZetoCameraGuiApi/zetocamconfigstrobedialog.h>

#include "formlayout.h"
#include "qtzetoslider.h"
#include "qtzetospinboxval.h"
#include "strobepicture.h"
#include "zetocamconfigstrobedialog_p.h"

#include <QCloseEvent>

namespace ZetoGui {

namespace {

constexpr int longestTime = 9'999'999; // us; that many digits have room whatever a camera's limits

} // namespace

void ZetoCamConfigStrobeDialogPrivate::buildForm()
{
    FeatureDialogWithForm::buildForm();
    ui.lblStrobeImage->setPixmap(pictureFor(*dialog, QStringLiteral(":/images/strobeBothExp.bmp")));
    const QString delay = tr("Delay [%1s]:").arg(micro);
    const QString width = tr("Width [%1s]:").arg(micro);
    layOutTimes({{ui.spBoxStrobe1Delay, delay},
                 {ui.spBoxStrobe1Width, width},
                 {ui.spBoxStrobe2Delay, delay},
                 {ui.spBoxStrobe2Width, width}});
    alignColumn({ui.grBoxStrobe1, ui.grBoxStrobe2, ui.lblStrobeImage});
}

/// In line with the combo boxes above them. The sliders begin where they do while the limits change.
void ZetoCamConfigStrobeDialogPrivate::layOutTimes(const QVector<QPair<QtZetoSliderSpinBox*, QString>>& times)
{
    QVector<QWidget*> labels = {ui.lblStrobe1Mode, ui.lblStrobe1Ref, ui.lblStrobe2Mode, ui.lblStrobe2Ref};
    QVector<QWidget*> fields;
    for (const auto& [time, text] : times) {
        time->slider()->setScaleMode(QtZetoSlider::Logarithmic);
        time->spinBox()->setKeyboardTracking(false); // writes whole numbers only
        time->setRange(0, longestTime);
        time->setLabelLeft(text);
        labels.append(time->findChild<QLabel*>(QStringLiteral("labelLeft")));
        fields.append(time->spinBox());
    }
    alignColumn(labels);
    alignColumn(fields);
}

void ZetoCamConfigStrobeDialogPrivate::bindFeatures()
{
    ZetoGenParam::Enum* const references[] = {findEnum("Strobe1Reference"), findEnum("Strobe2Reference")};
    mapper.MapEnum(findEnum("Strobe1Mode"), ui.cmBoxStrobe1Mode);
    mapper.MapEnum(findEnum("Strobe2Mode"), ui.cmBoxStrobe2Mode);
    mapper.MapEnum(references[0], ui.cmBoxStrobe1Ref);
    mapper.MapEnum(references[1], ui.cmBoxStrobe2Ref);
    mapper.MapEnum(findEnum("OUT1Polarity"), ui.cmBoxOut1Polarity);
    mapper.MapEnum(findEnum("OUT2Polarity"), ui.cmBoxOut2Polarity);
    mapper.MapEnum(findEnum("OUT1Selector"), ui.cmBoxOut1Selector);
    mapper.MapEnum(findEnum("OUT2Selector"), ui.cmBoxOut2Selector);

    for (const QComboBox* const reference : {ui.cmBoxStrobe1Ref, ui.cmBoxStrobe2Ref})
        connect(reference, &QComboBox::currentTextChanged, connections(), [this] { showPicture(); });
    for (ZetoGenParam::Enum* const reference : references)
        watch(reference);
    showPicture();
    bindTimes();
}

void ZetoCamConfigStrobeDialogPrivate::bindTimes()
{
    mapper.MapInt(findInt("Strobe1Delay"), ui.spBoxStrobe1Delay);
    mapper.MapInt(findInt("Strobe1Width"), ui.spBoxStrobe1Width);
    mapper.MapInt(findInt("Strobe2Delay"), ui.spBoxStrobe2Delay);
    mapper.MapInt(findInt("Strobe2Width"), ui.spBoxStrobe2Width);
}

/// A reference that can be set again may have changed meanwhile.
void ZetoCamConfigStrobeDialogPrivate::featureChanged(ZetoGenParam::Param*)
{
    showPicture();
}

void ZetoCamConfigStrobeDialogPrivate::showPicture()
{
    for (const QComboBox* const reference : {ui.cmBoxStrobe1Ref, ui.cmBoxStrobe2Ref}) {
        if (!reference->isEnabledTo(dialog)) // the whole dialog may be disabled for a while
            return;
    }
    const QString picture =
        strobePicture(ui.cmBoxStrobe1Ref->currentText(), ui.cmBoxStrobe2Ref->currentText());
    ui.lblStrobeImage->setPixmap(pictureFor(*dialog, picture));
}

ZetoCamConfigStrobeDialog::ZetoCamConfigStrobeDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigStrobeDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigStrobeDialog::~ZetoCamConfigStrobeDialog() = default;

bool ZetoCamConfigStrobeDialog::SetDevice(ZetoCam::Device* device)
{
    return d_func()->SetDevice(device);
}

void ZetoCamConfigStrobeDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
