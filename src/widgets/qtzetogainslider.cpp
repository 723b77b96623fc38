#include "qtzetogainslider.h"

#include "qtzetodoubleslider.h"
#include "qtzetodoublespinboxval.h"
#include "sliderrow.h"

class QtZetoGainSliderPrivate : public SliderRow<QtZetoGainSlider, QtZetoDoubleSpinBoxVal, QtZetoDoubleSlider>
{
public:
    explicit QtZetoGainSliderPrivate(QtZetoGainSlider* owner)
        : SliderRow(owner)
    {
        spinBox->setDecimals(slider->decimals());
    }
};

QtZetoGainSlider::QtZetoGainSlider(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<QtZetoGainSliderPrivate>(this))
{
}

QtZetoGainSlider::~QtZetoGainSlider() = default;

double QtZetoGainSlider::value() const
{
    return d->spinBox->value();
}

void QtZetoGainSlider::setValue(double value)
{
    d->spinBox->setValue(value);
}

double QtZetoGainSlider::minimum() const
{
    return d->slider->minimum();
}

double QtZetoGainSlider::maximum() const
{
    return d->slider->maximum();
}

void QtZetoGainSlider::setRange(double min, double max)
{
    d->slider->setRange(min, max);
}

double QtZetoGainSlider::singleStep() const
{
    return d->slider->singleStep();
}

void QtZetoGainSlider::setSingleStep(double step)
{
    if (step == singleStep())
        return;
    d->spinBox->setSingleStep(step);
    d->slider->setSingleStep(step);
}

int QtZetoGainSlider::decimals() const
{
    return d->slider->decimals();
}

void QtZetoGainSlider::setDecimals(int decimals)
{
    d->slider->setDecimals(decimals);
    d->spinBox->setDecimals(d->slider->decimals());
}

Qt::Orientation QtZetoGainSlider::orientation() const
{
    return d->slider->orientation();
}

void QtZetoGainSlider::setOrientation(Qt::Orientation orientation)
{
    d->setOrientation(orientation);
}

QString QtZetoGainSlider::labelLeft() const
{
    return d->labels.left();
}

void QtZetoGainSlider::setLabelLeft(const QString& text)
{
    d->labels.setLeft(text);
}

QString QtZetoGainSlider::labelUpper() const
{
    return d->labels.upper();
}

void QtZetoGainSlider::setLabelUpper(const QString& text)
{
    d->labels.setUpper(text);
}

QtZetoDoubleSpinBoxVal* QtZetoGainSlider::spinBox() const
{
    return d->spinBox;
}

QtZetoDoubleSlider* QtZetoGainSlider::slider() const
{
    return d->slider;
}

void QtZetoGainSlider::showEvent(QShowEvent* event)
{
    d->labels.nameParts();
    QWidget::showEvent(event);
}
