#pragma once

#include "stepgrid.h"

#include <QCursor>
#include <QLocale>
#include <QObject>
#include <QScopedValueRollback>
#include <QToolTip>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

/// Keeps a spin box and a slider at the same value and tells each change of it once. The spin box holds the
/// value; the slider follows it and offers what the user picks, unless the user just drags the handle.
template <typename SpinBox, typename Slider>
class SpinSliderCoupling : public QObject
{
public:
    using Value = decltype(std::declval<const Slider&>().value());
    using SpinValue = decltype(std::declval<const SpinBox&>().value());

    /// Both widgets outlive the coupling. \a tell is called for each change of the value.
    SpinSliderCoupling(SpinBox& spinBox, Slider& slider, std::function<void(Value)> tell);

    /// Whether the spin box takes what the user drags only when the handle is released. It then tells the
    /// final value even if it already held it.
    void setWaitsForRelease(bool wait) { m_waitsForRelease = wait; }

    /// What the spin box holds, as far as the slider's type can hold it.
    Value value() const;

private:
    void followSpinBox();
    void takeFromSlider(Value picked);
    void finishDragging();
    SpinValue onSpinBoxGrid(SpinValue value) const;
    void tellAgain();

    SpinBox& m_spinBox;
    Slider& m_slider;
    std::function<void(Value)> m_tell;
    Value m_told;
    bool m_waitsForRelease = false;
    bool m_dragged = false; ///< the handle has moved since it was pressed
    bool m_placingSlider = false;
};

template <typename SpinBox, typename Slider>
SpinSliderCoupling<SpinBox, Slider>::SpinSliderCoupling(SpinBox& spinBox, Slider& slider,
                                                        std::function<void(Value)> tell)
    : m_spinBox(spinBox)
    , m_slider(slider)
    , m_tell(std::move(tell))
    , m_told(value())
{
    connect(&spinBox, qOverload<SpinValue>(&SpinBox::valueChanged), this, &SpinSliderCoupling::followSpinBox);
    connect(&slider, &Slider::valueChanged, this, &SpinSliderCoupling::takeFromSlider);
    connect(&slider, &Slider::sliderPressed, this, [this] { m_dragged = false; });
    connect(&slider, &Slider::sliderMoved, this, [this] { m_dragged = true; });
    connect(&slider, &Slider::sliderReleased, this, &SpinSliderCoupling::finishDragging);
}

template <typename SpinBox, typename Slider>
typename SpinSliderCoupling<SpinBox, Slider>::Value SpinSliderCoupling<SpinBox, Slider>::value() const
{
    using Limits = std::numeric_limits<Value>;
    return Value(std::clamp<SpinValue>(m_spinBox.value(), Limits::lowest(), Limits::max()));
}

template <typename SpinBox, typename Slider>
void SpinSliderCoupling<SpinBox, Slider>::followSpinBox()
{
    const Value now = value();
    if (!m_slider.isSliderDown()) {
        const QScopedValueRollback<bool> placing(m_placingSlider, true);
        m_slider.setValue(now);
    }
    if (now == m_told)
        return; // Enter tells the same value again
    m_told = now;
    m_tell(now);
}

template <typename SpinBox, typename Slider>
void SpinSliderCoupling<SpinBox, Slider>::takeFromSlider(Value picked)
{
    if (m_placingSlider)
        return;
    if (m_waitsForRelease && m_slider.isSliderDown())
        QToolTip::showText(QCursor::pos(), m_slider.locale().toString(picked), &m_slider);
    else
        m_spinBox.setValue(onSpinBoxGrid(picked));
}

template <typename SpinBox, typename Slider>
void SpinSliderCoupling<SpinBox, Slider>::finishDragging()
{
    if (m_waitsForRelease && std::exchange(m_dragged, false)) {
        const SpinValue picked = onSpinBoxGrid(m_slider.value());
        if (picked == m_spinBox.value())
            tellAgain();
        else
            m_spinBox.setValue(picked);
    }
    followSpinBox(); // the spin box may hold another value than was picked
}

template <typename SpinBox, typename Slider>
typename SpinSliderCoupling<SpinBox, Slider>::SpinValue
SpinSliderCoupling<SpinBox, Slider>::onSpinBoxGrid(SpinValue value) const
{
    return m_spinBox.snapToStep() ? StepGrid::snapped<SpinValue>(value, m_spinBox.minimum(),
                                                                 m_spinBox.maximum(), m_spinBox.singleStep())
                                  : value;
}

template <typename SpinBox, typename Slider>
void SpinSliderCoupling<SpinBox, Slider>::tellAgain()
{
    emit m_spinBox.valueChanged(m_spinBox.value());
    // by name because Qt deprecates this signal of its own spin boxes
    QMetaObject::invokeMethod(&m_spinBox, "valueChanged", Qt::DirectConnection,
                              Q_ARG(QString, m_spinBox.text()));
    m_tell(m_told);
}
