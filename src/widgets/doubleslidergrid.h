#pragma once

#include <QString>

/// How the positions of a slider, 0 to lastPosition(), stand for the doubles of a range: minimum + n * step,
/// the last position for the maximum whether or not a whole step leads there.
///
/// A step that is not positive counts as one unit of the last decimal shown, and a step too small for the
/// range, of which there would be more than a slider has positions, as the smallest that is not. Holds for
/// all finite bounds.
struct DoubleSliderGrid
{
    using Value = double;

    double minimum = 0.0;
    double maximum = 0.0; ///< never below minimum
    double singleStep = 1.0;
    bool snapToStep = false;
    int decimals = 3;

    int firstPosition() const { return 0; }
    int lastPosition() const;
    int positionStep() const { return 1; }
    /// A position before the first or behind the last counts as that.
    double valueAt(int position) const;
    /// \a value lies within the range.
    int positionOf(double value) const;
    /// What a key that moves a slider to \a position picks. Every position is a step, so this is its value.
    double valueForKey(double value, int position, int direction) const;
    /// With the decimals; a number that would need a line of digits so gets the short form.
    QString text(double value) const;

private:
    double positionWidth() const;
    double stepsTo(double value) const;
    double snapped(double value) const;
};
