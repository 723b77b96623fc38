#include "qtzetodoubleslider.h"

#include "doubleslidergrid.h"
#include "slidercore.h"

#include <algorithm>
#include <cmath>
#include <limits>

class QtZetoDoubleSliderPrivate : public SliderCore<QtZetoDoubleSlider, DoubleSliderGrid>
{
public:
    using SliderCore::SliderCore;
};

QtZetoDoubleSlider::QtZetoDoubleSlider(QWidget* parent)
    : QtZetoDoubleSlider(Qt::Vertical, parent)
{
}

QtZetoDoubleSlider::QtZetoDoubleSlider(Qt::Orientation orientation, QWidget* parent)
    : QFrame(parent)
    , d(std::make_unique<QtZetoDoubleSliderPrivate>(*this))
{
    setOrientation(orientation);
}

QtZetoDoubleSlider::~QtZetoDoubleSlider() = default;

double QtZetoDoubleSlider::value() const
{
    return d->value();
}

void QtZetoDoubleSlider::setValue(double value)
{
    if (!std::isfinite(value))
        return;
    d->setValue(value);
}

double QtZetoDoubleSlider::minimum() const
{
    return d->scale().minimum;
}

double QtZetoDoubleSlider::maximum() const
{
    return d->scale().maximum;
}

void QtZetoDoubleSlider::setMinimum(double minimum)
{
    setRange(minimum, std::max(minimum, maximum()));
}

void QtZetoDoubleSlider::setMaximum(double maximum)
{
    setRange(std::min(minimum(), maximum), maximum);
}

void QtZetoDoubleSlider::setRange(double min, double max)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return;
    d->setRange(min, max);
}

double QtZetoDoubleSlider::singleStep() const
{
    return d->scale().singleStep;
}

void QtZetoDoubleSlider::setSingleStep(double step)
{
    if (!std::isfinite(step))
        return;
    d->change(&DoubleSliderGrid::singleStep, step);
}

bool QtZetoDoubleSlider::snapToStep() const
{
    return d->scale().snapToStep;
}

void QtZetoDoubleSlider::setSnapToStep(bool snap)
{
    d->change(&DoubleSliderGrid::snapToStep, snap);
}

int QtZetoDoubleSlider::decimals() const
{
    return d->scale().decimals;
}

void QtZetoDoubleSlider::setDecimals(int decimals)
{
    d->change(&DoubleSliderGrid::decimals, std::clamp(decimals, 0, std::numeric_limits<double>::digits10));
}

Qt::Orientation QtZetoDoubleSlider::orientation() const
{
    return d->view().orientation();
}

void QtZetoDoubleSlider::setOrientation(Qt::Orientation orientation)
{
    d->view().setOrientation(orientation);
}

bool QtZetoDoubleSlider::isSliderDown() const
{
    return d->view().slider()->isSliderDown();
}

QSlider* QtZetoDoubleSlider::slider() const
{
    return d->view().slider();
}
