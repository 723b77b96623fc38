#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <functional>
#include <limits>
#include <type_traits>

/// A group of sample widgets: what each shows, the widget and the value it told last, in rows or, for upright
/// widgets, in columns. All signals are reported.
class SampleGroup : public QGroupBox
{
    Q_OBJECT

public:
    using Note = std::function<void(const QString& sample, const QString& signal)>;

    SampleGroup(const QString& title, Qt::Orientation rows, Note note);

    /// Adds \a widget, whose valueChanged(Value) is watched. \return the widget, for the caller to set up:
    /// the signals of that are reported too.
    template <typename Value, typename Widget>
    Widget* add(const QString& sample, Widget* widget);
    /// As add(), with the signals that only sliders have.
    template <typename Value, typename Slider>
    Slider* addSlider(const QString& sample, Slider* slider);

private:
    QLabel* place(const QString& sample, QWidget* widget, int digits);

    Qt::Orientation m_rows;
    Note m_note;
    QGridLayout* m_grid;
    int m_count = 0;
};

template <typename Value, typename Widget>
Widget* SampleGroup::add(const QString& sample, Widget* widget)
{
    constexpr int digits = std::is_integral_v<Value> ? std::numeric_limits<Value>::digits10 : 7;
    QLabel* const told = place(sample, widget, digits);
    connect(widget, qOverload<Value>(&Widget::valueChanged), this, [this, sample, told](Value value) {
        told->setText(QString::number(value));
        m_note(sample, QStringLiteral("valueChanged(%1)").arg(value));
    });
    return widget;
}

template <typename Value, typename Slider>
Slider* SampleGroup::addSlider(const QString& sample, Slider* slider)
{
    add<Value>(sample, slider);
    const auto report = [this, sample](const QString& signal) { m_note(sample, signal); };
    connect(slider, &Slider::sliderPressed, this, [report] { report(QStringLiteral("sliderPressed()")); });
    connect(slider, &Slider::sliderMoved, this,
            [report](int position) { report(QStringLiteral("sliderMoved(%1)").arg(position)); });
    connect(slider, &Slider::sliderReleased, this, [report] { report(QStringLiteral("sliderReleased()")); });
    connect(slider, &Slider::focusOut, this, [report] { report(QStringLiteral("focusOut()")); });
    connect(slider, &Slider::rangeChanged, this, [report](Value min, Value max) {
        report(QStringLiteral("rangeChanged(%1, %2)").arg(min).arg(max));
    });
    return slider;
}
