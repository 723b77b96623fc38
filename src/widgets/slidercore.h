#pragma once

#include "labelledslider.h"

#include <algorithm>
#include <cmath>

/// The one implementation behind QtZetoSlider and QtZetoDoubleSlider: keeps a value beside the positions of a
/// slider and tells each change once. \a Scale says which position stands for which value.
template <typename Slider, typename Scale>
class SliderCore : public QObject
{
public:
    using Value = typename Scale::Value;

    explicit SliderCore(Slider& owner);

    Value value() const { return m_value; }
    const Scale& scale() const { return m_scale; }
    LabelledSlider& view() const { return *m_view; }

    void setValue(Value value) { take(bounded(value), HandleFollows); }
    /// Emits rangeChanged() before the value follows the range.
    void setRange(Value minimum, Value maximum);
    /// Gives the scale's \a member a new value and shows the old value on the new scale.
    template <typename T>
    void change(T Scale::*member, T value);

private:
    enum Handle
    {
        HandleStays,
        HandleFollows
    };

    void showScale();
    void showValue();
    void pick(int position, int direction);
    void take(Value value, Handle handle);
    void takeRequest(const QVariant& wanted);
    Value bounded(Value value) const { return std::clamp(value, m_scale.minimum, m_scale.maximum); }
    ValueSlider::Reading reading() const;

    Slider& m_owner;
    LabelledSlider* m_view; // owned by m_owner
    Scale m_scale;
    Value m_value = 0;
};

template <typename Slider, typename Scale>
SliderCore<Slider, Scale>::SliderCore(Slider& owner)
    : m_owner(owner)
    , m_view(new LabelledSlider(owner))
{
    const ValueSlider* const slider = m_view->slider();
    connect(m_view, &LabelledSlider::focusOut, this, [this] { emit m_owner.focusOut(); });
    connect(m_view, &LabelledSlider::picked, this, &SliderCore::pick);
    connect(slider, &QSlider::sliderPressed, this, [this] { emit m_owner.sliderPressed(); });
    connect(slider, &QSlider::sliderMoved, this,
            [this](int position) { emit m_owner.sliderMoved(position); });
    connect(slider, &QSlider::sliderReleased, this, [this] {
        showValue(); // the handle may have been left between two values
        emit m_owner.sliderReleased();
    });
    connect(slider, &ValueSlider::valueRequested, this, &SliderCore::takeRequest);
    showScale();
}

template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::setRange(Value minimum, Value maximum)
{
    maximum = std::max(minimum, maximum);
    if (minimum == m_scale.minimum && maximum == m_scale.maximum)
        return;
    m_scale.minimum = minimum;
    m_scale.maximum = maximum;
    showScale();
    emit m_owner.rangeChanged(minimum, maximum);
    setValue(m_value);
}

template <typename Slider, typename Scale>
template <typename T>
void SliderCore<Slider, Scale>::change(T Scale::*member, T value)
{
    m_scale.*member = value;
    showScale();
}

template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::showScale()
{
    m_view->setLabels(m_scale.text(m_scale.minimum), m_scale.text(m_scale.maximum));
    m_view->setPositions(m_scale.firstPosition(), m_scale.lastPosition(), m_scale.positionStep());
    showValue();
}

template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::showValue()
{
    m_view->setPosition(m_scale.positionOf(bounded(m_value)), reading());
}

template <typename Slider, typename Scale>
ValueSlider::Reading SliderCore<Slider, Scale>::reading() const
{
    return {m_value, m_scale.minimum, m_scale.maximum, m_scale.singleStep};
}

template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::pick(int position, int direction)
{
    if (direction == 0)
        take(m_scale.valueAt(position), HandleStays);
    else
        take(m_scale.valueForKey(m_value, position, direction), HandleFollows);
}

template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::take(Value value, Handle handle)
{
    const bool changed = value != m_value;
    m_value = value;
    if (handle == HandleFollows)
        showValue();
    else
        m_view->setReading(reading());
    if (changed)
        emit m_owner.valueChanged(m_value);
}

/// Limited before it is converted, since a request may be beyond what the type holds.
template <typename Slider, typename Scale>
void SliderCore<Slider, Scale>::takeRequest(const QVariant& wanted)
{
    bool isNumber = false;
    const double number = wanted.toDouble(&isNumber);
    if (isNumber && !std::isnan(number))
        m_owner.setValue(
            QVariant(std::clamp<double>(number, m_scale.minimum, m_scale.maximum)).value<Value>());
}
