#pragma once

#include "compositelabels.h"
#include "spinslidercoupling.h"

#include <QHBoxLayout>
#include <QSlider>

/// The one implementation behind QtZetoSliderSpinBox and QtZetoGainSlider: a spin box beside a slider, the
/// optional labels around them, one value and one range for both. \a Owner owns the widgets.
template <typename Owner, typename SpinBox, typename Slider>
class SliderRow : public QObject
{
public:
    using Coupling = SpinSliderCoupling<SpinBox, Slider>;
    using Value = typename Coupling::Value;

    explicit SliderRow(Owner* owner);

    void setOrientation(Qt::Orientation orientation);

    QVBoxLayout* layoutV;
    QHBoxLayout* layoutH;
    SpinBox* spinBox;
    Slider* slider;
    CompositeLabels labels;
    Coupling coupling;

private:
    void setUpLayout(Owner* owner);
};

template <typename Owner, typename SpinBox, typename Slider>
SliderRow<Owner, SpinBox, Slider>::SliderRow(Owner* owner)
    : layoutV(new QVBoxLayout(owner))
    , layoutH(new QHBoxLayout)
    , spinBox(new SpinBox(owner))
    , slider(new Slider(Qt::Horizontal, owner))
    , labels(owner, layoutH, layoutV, 0, {spinBox, slider->slider()})
    , coupling(*spinBox, *slider, [owner](Value value) { emit owner->valueChanged(value); })
{
    setUpLayout(owner);
    setOrientation(Qt::Horizontal);
    connect(slider, &Slider::rangeChanged, this, [this, owner](Value min, Value max) {
        spinBox->setRange(min, max);
        emit owner->rangeChanged(min, max);
    });
    slider->setRange(0, 100);
}

template <typename Owner, typename SpinBox, typename Slider>
void SliderRow<Owner, SpinBox, Slider>::setUpLayout(Owner* owner)
{
    layoutV->setObjectName(QStringLiteral("layoutV"));
    layoutV->setContentsMargins(0, 0, 0, 0);
    layoutV->addLayout(layoutH);
    layoutH->setObjectName(QStringLiteral("layoutH"));
    spinBox->setObjectName(QStringLiteral("spinbox"));
    slider->setObjectName(QStringLiteral("slider"));
    layoutH->addWidget(spinBox, 0, Qt::AlignTop);
    layoutH->addWidget(slider, 1);
    owner->setFocusProxy(spinBox);
}

template <typename Owner, typename SpinBox, typename Slider>
void SliderRow<Owner, SpinBox, Slider>::setOrientation(Qt::Orientation orientation)
{
    const bool beside = orientation == Qt::Horizontal;
    slider->setOrientation(orientation);
    // the handle level with the number
    slider->slider()->setMinimumHeight(beside ? spinBox->sizeHint().height() : 0);
    layoutH->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}
