#include "qtzetoslider.h"

#include "slidercore.h"
#include "sliderscale.h"

#include <algorithm>

class QtZetoSliderPrivate : public SliderCore<QtZetoSlider, SliderScale>
{
public:
    using SliderCore::SliderCore;
};

QtZetoSlider::QtZetoSlider(QWidget* parent)
    : QtZetoSlider(Qt::Vertical, parent)
{
}

QtZetoSlider::QtZetoSlider(Qt::Orientation orientation, QWidget* parent)
    : QFrame(parent)
    , d(std::make_unique<QtZetoSliderPrivate>(*this))
{
    setOrientation(orientation);
}

QtZetoSlider::~QtZetoSlider() = default;

int QtZetoSlider::value() const
{
    return d->value();
}

void QtZetoSlider::setValue(int value)
{
    d->setValue(value);
}

int QtZetoSlider::minimum() const
{
    return d->scale().minimum;
}

int QtZetoSlider::maximum() const
{
    return d->scale().maximum;
}

void QtZetoSlider::setMinimum(int minimum)
{
    setRange(minimum, std::max(minimum, maximum()));
}

void QtZetoSlider::setMaximum(int maximum)
{
    setRange(std::min(minimum(), maximum), maximum);
}

void QtZetoSlider::setRange(int min, int max)
{
    d->setRange(min, max);
}

int QtZetoSlider::singleStep() const
{
    return d->scale().singleStep;
}

void QtZetoSlider::setSingleStep(int step)
{
    d->change(&SliderScale::singleStep, step);
}

bool QtZetoSlider::snapToStep() const
{
    return d->scale().snapToStep;
}

void QtZetoSlider::setSnapToStep(bool snap)
{
    d->change(&SliderScale::snapToStep, snap);
}

int QtZetoSlider::scaleMode() const
{
    return d->scale().mode;
}

void QtZetoSlider::setScaleMode(int mode)
{
    if (mode >= Linear && mode <= SquareRoot)
        d->change(&SliderScale::mode, static_cast<SliderScale::Mode>(mode));
}

double QtZetoSlider::logScale() const
{
    return d->scale().logScale;
}

void QtZetoSlider::setLogScale(double positionsPerDecade)
{
    if (SliderScale::isUsableLogScale(positionsPerDecade))
        d->change(&SliderScale::logScale, positionsPerDecade);
}

Qt::Orientation QtZetoSlider::orientation() const
{
    return d->view().orientation();
}

void QtZetoSlider::setOrientation(Qt::Orientation orientation)
{
    d->view().setOrientation(orientation);
}

bool QtZetoSlider::isSliderDown() const
{
    return d->view().slider()->isSliderDown();
}

QSlider* QtZetoSlider::slider() const
{
    return d->view().slider();
}
