#include <ZetoCameraGuiApi/zetocamconfigcolordialog.h>

#include "qtzetospinboxval64.h"
#include "zetocamconfigcolordialog_p.h"

#include <QCloseEvent>
#include <QToolButton>

namespace ZetoGui {
namespace {

constexpr int unityCoefficient = 256;

int textWidth(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().horizontalAdvance(text);
}

/// Leaves the text of a channel as it is while its coefficient cannot be read.
void showStatistics(QLabel& label, ZetoGenParam::Int& coefficient)
{
    if (!coefficient.IsReadable())
        return;
    int32_t ignored = 0;
    label.setText(QString::number(coefficient.GetValue(&ignored)));
}

} // namespace

void ZetoCamConfigColorDialogPrivate::buildForm()
{
    FeatureDialogWithForm::buildForm();
    m_channels = {{{"RedCoefficient", ui.spBoxRed, ui.pushBtnRedUnity, ui.lblRedCoef,
                    QVector<QWidget*>{ui.pushBtnRedUnity, ui.lblRed}},
                   {"GreenCoefficient", ui.spBoxGreen, ui.pushBtnGreenUnity, ui.lblGreenCoef,
                    QVector<QWidget*>{ui.pushBtnGreenUnity, ui.lblGreen}},
                   {"BlueCoefficient", ui.spBoxBlue, ui.pushBtnBlueUnity, ui.lblBlueCoef,
                    QVector<QWidget*>{ui.pushBtnBlueUnity, ui.lblBlue}}}};
}

void ZetoCamConfigColorDialogPrivate::bindFeatures()
{
    for (Channel& channel : m_channels) {
        bindUnity(channel);
        bindCoefficient(channel);
    }
    mapper.MapEnum(findEnum("BalanceWhiteAuto"), ui.cmBoxWhiteBalance);
    mapper.MapEnum(findEnum("AutoTrackingSpeed"), ui.cmBoxTrackingSpeed);
    fitStatistics();
}

void ZetoCamConfigColorDialogPrivate::featureChanged(ZetoGenParam::Param* param)
{
    for (const Channel& channel : m_channels) {
        if (param == channel.coefficient)
            showStatistics(*channel.statistics, *channel.coefficient);
    }
}

void ZetoCamConfigColorDialogPrivate::bindUnity(const Channel& channel)
{
    QPushButton* const button = channel.unity;
    button->setMaximumWidth(textWidth(*button, button->text()) + 2 * textWidth(*button, QStringLiteral("_")));
    connect(button, &QPushButton::clicked, connections(),
            [spinBox = channel.spinBox] { spinBox->setValue(unityCoefficient); });
}

void ZetoCamConfigColorDialogPrivate::bindCoefficient(Channel& channel)
{
    channel.coefficient = findInt(channel.feature);
    if (mapper.MapInt(channel.coefficient, channel.spinBox, channel.companions)) {
        watch(channel.coefficient);
        showStatistics(*channel.statistics, *channel.coefficient);
    } else {
        channel.statistics->clear();
    }
}

/// The labels keep their width whatever the coefficients become.
void ZetoCamConfigColorDialogPrivate::fitStatistics()
{
    const QString widest = QString::number(ui.spBoxRed->maximum());
    for (const Channel& channel : m_channels)
        channel.statistics->setFixedWidth(textWidth(*channel.statistics, widest + QLatin1Char(' ')));
}

void ZetoCamConfigColorDialogPrivate::fitSpinBoxes()
{
    for (const Channel& channel : m_channels) {
        QtZetoSpinBox* const spinBox = channel.spinBox;
        const QSize hint = spinBox->sizeHint();
        const QSize preferred = hint.isValid() ? hint : spinBox->size();
        spinBox->fitSpinBox({preferred.width() - spinBox->button()->sizeHint().width(), preferred.height()});
    }
}

ZetoCamConfigColorDialog::ZetoCamConfigColorDialog(ZetoCam::Device* device, QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoCamConfigColorDialogPrivate>(this))
{
    SetDevice(device);
}

ZetoCamConfigColorDialog::~ZetoCamConfigColorDialog() = default;

void ZetoCamConfigColorDialog::SetDevice(ZetoCam::Device* device)
{
    d_func()->SetDevice(device);
}

void ZetoCamConfigColorDialog::showEvent(QShowEvent* event)
{
    d_func()->fitSpinBoxes();
    QDialog::showEvent(event);
}

void ZetoCamConfigColorDialog::closeEvent(QCloseEvent* event)
{
    emit closing();
    QDialog::closeEvent(event);
}

} // namespace ZetoGui
