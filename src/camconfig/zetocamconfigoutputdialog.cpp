#include <ZetoCameraGuiApi/zetocamconfigoutputdialog.h>

#include "formlayout.h"
#include "zetocamconfigoutputdialog_p.h"

#include <QCloseEvent>

namespace ZetoGui {

void ZetoCamConfigOutputDialogPrivate::buildForm()
{
    FeatureDialogWithForm::buildForm();
    for (QtZetoSpinBox* const threshold : {ui.spBoxDpcDynThres, ui.spBoxHpcDynThres})
        threshold->setLabelLeft(tr("Dyn.Thres.:"));
    alignColumn({ui.lblTaps, ui.lblDepth, ui.lblPixelFormat, ui.chBoxEnableLut});
    alignColumn({ui.chBoxHorMirror, ui.lblTestMode});
}

void ZetoCamConfigOutputDialogPrivate::bindFeatures()
{
    mapper.MapEnum(findEnum("PixelFormat"), ui.cmBoxPixelFormat);
    mapper.MapEnum(findEnum("SensorADCBitDepth11"), ui.cmBoxTaps);
    mapper.MapEnum(findEnum("SensorADCBitDepth"), ui.cmBoxDepth);
    mapper.MapEnum(findEnum("TestPattern"), ui.cmBoxTestMode);
    mapper.MapEnum(findEnum("LUTSelector"), ui.cmBoxLut);
    mapper.MapEnum(findEnum("DefectPixelCorrection"), ui.cmBoxDpc);
    mapper.MapEnum(findEnum("HotPixelCorrection"), ui.cmBoxHpc);
    mapper.MapInt(findInt("DefectPixelThreshold"), ui.spBoxDpcDynThres);
    mapper.MapInt(findInt("HotPixelThreshold"), ui.spBoxHpcDynThres);
    mapper.MapBoolean(findBoolean("LUTEnable"), ui.chBoxEnableLut);
    mapper.MapBoolean(findBoolean("ReverseX"), ui.chBoxHorMirror);
    mapper.MapBoolean(findBoolean("ReverseY"), ui.chBoxVerMirror);
}

/// Width and height are exchanged; the layout sets both right.
void ZetoCamConfigOutputDialogPrivate::fitFields()
{
    for (QtZetoSpinBox* const threshold : {ui.spBoxDpcDynThres, ui.spBoxHpcDynThres})
        threshold->fitSpinBox(fieldSize(*threshold).transposed());
}

ZetoCamConfigOutputDialog::ZetoCamConfigOutputDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigOutputDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigOutputDialog::~ZetoCamConfigOutputDialog() = default;

bool ZetoCamConfigOutputDialog::SetDevice(ZetoCam::Device* device)
{
    return d_func()->SetDevice(device);
}

void ZetoCamConfigOutputDialog::showEvent(QShowEvent* event)
{
    d_func()->fitFields();
    QDialog::showEvent(event);
}

void ZetoCamConfigOutputDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
