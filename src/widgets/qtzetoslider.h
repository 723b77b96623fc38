#pragma once

#include <QFrame>

#include <memory>

class QSlider;
class QtZetoSliderPrivate;

/// A slider for an integer, with the ends of its range as labels.
///
/// The scale is linear, logarithmic or by square root; the latter two spread the small values of a range that
/// spans decades. A value that is set stays exactly that, limited to the range, also where no position stands
/// for it; what the user picks on the slider is the value of a position. On scales that are not linear an
/// arrow key moves the value by at least one single step.
///
/// Vertical, linear, range [0, 0] and step 1 unless told otherwise.
class QtZetoSlider : public QFrame
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "07/15/16")

public:
    enum ScaleMode
    {
        Linear = 0,
        Logarithmic = 1,
        SquareRoot = 2
    };

    explicit QtZetoSlider(QWidget* parent = nullptr);
    explicit QtZetoSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~QtZetoSlider() override;

    int value() const;
    int minimum() const;
    int maximum() const;
    /// The other bound gives way to a bound beyond it.
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    int singleStep() const;
    /// A step that is not positive is kept but counts as 1, and as no grid to snap to.
    void setSingleStep(int step);

    bool snapToStep() const;
    /// Whether the user picks only values minimum + n * singleStep and the ends of the range.
    void setSnapToStep(bool snap);

    int scaleMode() const;
    /// A ScaleMode; anything else is ignored.
    void setScaleMode(int mode);

    double logScale() const;
    /// Positions per decade of the logarithmic scale, above 0 and up to 1e8; anything else is ignored.
    void setLogScale(double positionsPerDecade);

    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /// Whether the user holds the handle.
    bool isSliderDown() const;
    /// The inner slider: its positions are not values.
    QSlider* slider() const;

signals:
    void focusOut();
    /// Once for each change, whoever made it.
    void valueChanged(int value);
    void sliderPressed();
    /// The handle is dragged: its \a position, not the value.
    void sliderMoved(int position);
    void sliderReleased();
    void rangeChanged(int min, int max);

public slots:
    void setValue(int value);
    /// The value is kept as far as it fits the range. A \a max below \a min counts as \a min.
    void setRange(int min, int max);

private:
    const std::unique_ptr<QtZetoSliderPrivate> d;
};
