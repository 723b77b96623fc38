#include <ZetoCameraGuiApi/zetocamconfigpulsedialog.h>

#include "formlayout.h"
#include "pulsetiming.h"
#include "qtzetoslider.h"
#include "zetocamconfigpulsedialog_p.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QIcon>

namespace ZetoGui {

void ZetoCamConfigPulseDialogPrivate::buildForm()
{
    FeatureDialogWithForm::buildForm();
    for (QLabel* const label : {ui.lblPeriod, ui.lblWidth, ui.lblDelay})
        label->setText(label->text() + tr(" [%1s]:").arg(micro));
    m_modes = new QButtonGroup(dialog);
    m_modes->addButton(ui.radioBtnContinious);
    m_modes->addButton(ui.radioBtnSend);

    const QFontMetrics metrics(ui.lineEditFreq->font());
    for (QLineEdit* const edit : {ui.lineEditDelay, ui.lineEditFreq})
        edit->setMaximumWidth(metrics.horizontalAdvance(QStringLiteral("1000000000.00000000")));
    for (QtZetoSpinBox* const spinBox : {ui.spBoxPeriod, ui.spBoxWidth, ui.spBoxNumPulses})
        spinBox->setOrientation(Qt::Horizontal);
    for (const QtZetoSpinBox* const spinBox : {ui.spBoxPeriod, ui.spBoxWidth})
        spinBox->slider()->setScaleMode(QtZetoSlider::Logarithmic);
    ui.lblPulseImage->setPixmap(pictureFor(*dialog, QStringLiteral(":/images/pulseimage.bmp")));
    showState(false);
    fitFields();
}

void ZetoCamConfigPulseDialogPrivate::bindFeatures()
{
    mapper.MapEnum(findEnum("PulseGenGranularity"), ui.cmBoxGranularity);
    bindTimes();
    mapper.MapInt(findInt("PulseGenNumPulses"), ui.spBoxNumPulses);
    mapper.MapEnum(findEnum("PulseGenMode"), m_modes);
    bindSwitch();
}

void ZetoCamConfigPulseDialogPrivate::bindTimes()
{
    const bool hasPeriod = mapper.MapInt(findInt("PulseGenPeriod"), ui.spBoxPeriod);
    const bool hasWidth = mapper.MapInt(findInt("PulseGenWidth"), ui.spBoxWidth);
    ui.lineEditDelay->setEnabled(hasPeriod && hasWidth);
    ui.lineEditFreq->setEnabled(hasPeriod);
    for (const QtZetoSpinBox* const spinBox : {ui.spBoxPeriod, ui.spBoxWidth})
        connect(spinBox, &QtZetoSpinBox::valueChanged, connections(), [this] { showDerived(); });
    showDerived();
}

/// A generator that the camera refuses to start or stop is shown as it is.
void ZetoCamConfigPulseDialogPrivate::bindSwitch()
{
    ZetoGenParam::Boolean* const enable = findBoolean("PulseGenEnable");
    mapper.MapBoolean(enable, ui.pushBtnPulseEnable);
    connect(ui.pushBtnPulseEnable, &QPushButton::toggled, connections(),
            [this](bool running) { showState(running); });
    if (enable)
        connect(ui.pushBtnPulseEnable, &QPushButton::clicked, connections(),
                [this, enable] { mapper.OnParamChanged(enable); });
    showState(ui.pushBtnPulseEnable->isChecked());
}

void ZetoCamConfigPulseDialogPrivate::showDerived()
{
    ui.lineEditDelay->setText(pulseDelayText(ui.spBoxPeriod->value(), ui.spBoxWidth->value()));
    ui.lineEditFreq->setText(pulseFrequencyText(ui.spBoxPeriod->value()));
}

void ZetoCamConfigPulseDialogPrivate::showState(bool running)
{
    const QKeySequence shortcut = ui.pushBtnPulseEnable->shortcut(); // a new text takes it away
    ui.pushBtnPulseEnable->setText(running ? tr("Stop") : tr("Start"));
    ui.pushBtnPulseEnable->setShortcut(shortcut);
    const QIcon lamp(running ? QStringLiteral(":/icons/greenball.ico")
                             : QStringLiteral(":/icons/redball.ico"));
    ui.lblPulseEnable->setPixmap(lamp.pixmap(128)); // the label scales it
    ui.lblPulseEnable->setAccessibleName(running ? tr("Running") : tr("Stopped"));
}

void ZetoCamConfigPulseDialogPrivate::fitFields()
{
    for (QtZetoSpinBox* const spinBox : {ui.spBoxPeriod, ui.spBoxWidth, ui.spBoxNumPulses})
        spinBox->fitSpinBox(fieldSize(*spinBox));
    const int side = ui.pushBtnPulseEnable->height();
    ui.lblPulseEnable->setMaximumSize(side, side);
}

ZetoCamConfigPulseDialog::ZetoCamConfigPulseDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigPulseDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigPulseDialog::~ZetoCamConfigPulseDialog() = default;

bool ZetoCamConfigPulseDialog::SetDevice(ZetoCam::Device* device)
{
    return d_func()->SetDevice(device);
}

void ZetoCamConfigPulseDialog::showEvent(QShowEvent* event)
{
    d_func()->fitFields();
    QDialog::showEvent(event);
}

void ZetoCamConfigPulseDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
