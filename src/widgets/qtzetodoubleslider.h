#pragma once

#include <QFrame>

#include <memory>

class QSlider;
class QtZetoDoubleSliderPrivate;

/// A slider for a floating-point number, with the ends of its range as labels.
///
/// The user picks values one single step apart, counted from the minimum, and the ends of the range. A value
/// that is set stays exactly that, limited to the range, also where no position stands for it.
///
/// Vertical, range [0.0, 0.0], step 1.0 and labels with 3 decimals unless told otherwise. Bounds, steps and
/// values that are not finite are ignored.
class QtZetoDoubleSlider : public QFrame
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")

public:
    explicit QtZetoDoubleSlider(QWidget* parent = nullptr);
    explicit QtZetoDoubleSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~QtZetoDoubleSlider() override;

    double value() const;
    double minimum() const;
    double maximum() const;
    /// The other bound gives way to a bound beyond it.
    void setMinimum(double minimum);
    void setMaximum(double maximum);

    double singleStep() const;
    /// A step that is not positive is kept but counts as one unit of the last decimal, and as no grid to snap
    /// to.
    void setSingleStep(double step);

    bool snapToStep() const;
    /// Whether what the user picks is rounded to minimum + n * singleStep also in ranges with more steps than
    /// a slider has positions.
    void setSnapToStep(bool snap);

    int decimals() const;
    /// Of the labels, 0 to 15.
    void setDecimals(int decimals);

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /// Whether the user holds the handle.
    bool isSliderDown() const;
    /// The inner slider: its positions are not values.
    QSlider* slider() const;

signals:
    void focusOut();
    /// Once for each change, whoever made it.
    void valueChanged(double value);
    void sliderPressed();
    /// The handle is dragged: its \a position, not the value.
    void sliderMoved(int position);
    void sliderReleased();
    void rangeChanged(double min, double max);

public slots:
    void setValue(double value);
    /// The value is kept as far as it fits the range. A \a max below \a min counts as \a min.
    void setRange(double min, double max);

private:
    const std::unique_ptr<QtZetoDoubleSliderPrivate> d;
};
