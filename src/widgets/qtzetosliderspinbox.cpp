#include "qtzetosliderspinbox.h"

#include "qtzetoslider.h"
#include "qtzetospinboxval.h"
#include "sliderrow.h"

class QtZetoSliderSpinBoxPrivate : public SliderRow<QtZetoSliderSpinBox, QtZetoSpinBoxVal, QtZetoSlider>
{
public:
    explicit QtZetoSliderSpinBoxPrivate(QtZetoSliderSpinBox* owner)
        : SliderRow(owner)
    {
        coupling.setWaitsForRelease(true);
    }
};

QtZetoSliderSpinBox::QtZetoSliderSpinBox(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<QtZetoSliderSpinBoxPrivate>(this))
{
}

QtZetoSliderSpinBox::~QtZetoSliderSpinBox() = default;

int QtZetoSliderSpinBox::value() const
{
    return d->spinBox->value();
}

void QtZetoSliderSpinBox::setValue(int value)
{
    d->spinBox->setValue(value);
}

int QtZetoSliderSpinBox::minimum() const
{
    return d->slider->minimum();
}

int QtZetoSliderSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtZetoSliderSpinBox::setRange(int min, int max)
{
    d->slider->setRange(min, max);
}

int QtZetoSliderSpinBox::singleStep() const
{
    return d->slider->singleStep();
}

void QtZetoSliderSpinBox::setSingleStep(int step)
{
    d->spinBox->setSingleStep(step);
    d->slider->setSingleStep(step);
}

Qt::Orientation QtZetoSliderSpinBox::orientation() const
{
    return d->slider->orientation();
}

void QtZetoSliderSpinBox::setOrientation(Qt::Orientation orientation)
{
    d->setOrientation(orientation);
}

QString QtZetoSliderSpinBox::labelLeft() const
{
    return d->labels.left();
}

void QtZetoSliderSpinBox::setLabelLeft(const QString& text)
{
    d->labels.setLeft(text);
}

QString QtZetoSliderSpinBox::labelUpper() const
{
    return d->labels.upper();
}

void QtZetoSliderSpinBox::setLabelUpper(const QString& text)
{
    d->labels.setUpper(text);
}

QtZetoSpinBoxVal* QtZetoSliderSpinBox::spinBox() const
{
    return d->spinBox;
}

QtZetoSlider* QtZetoSliderSpinBox::slider() const
{
    return d->slider;
}

void QtZetoSliderSpinBox::showEvent(QShowEvent* event)
{
    d->labels.nameParts();
    QWidget::showEvent(event);
}
