#pragma once

#include <QString>

/// How the positions of a slider stand for the integers of a range.
///
/// Linear: a position is its value. Square root: the value grows with the square of the position.
/// Logarithmic: a decade of values takes logScale positions, and logOffset keeps the values near the minimum
/// from taking more room than they deserve. The first and last position are the ends of the range whatever
/// the rounding between them. Holds for ranges as wide as the whole of int and for every step.
struct SliderScale
{
    using Value = int;
    enum Mode
    {
        Linear = 0,
        Logarithmic = 1,
        SquareRoot = 2
    };

    Mode mode = Linear;
    int minimum = 0;
    int maximum = 0;         ///< never below minimum
    int singleStep = 1;      ///< 0 and negative steps count as 1 where a step is needed
    bool snapToStep = false; ///< values lie on the grid minimum + n * singleStep or at an end of the range
    double logScale = 100.0; ///< positions per decade, see isUsableLogScale()
    int logOffset = 10;

    /// Positions are int: a scale must be positive and at most 1e8 positions per decade.
    static bool isUsableLogScale(double positionsPerDecade);

    int firstPosition() const;
    int lastPosition() const;
    /// The step of the slider's own positions.
    int positionStep() const;
    /// A position before the first or behind the last counts as that.
    int valueAt(int position) const;
    /// \a value lies within the range.
    int positionOf(int value) const;
    /// The value one step from \a value: a step of the grid when values snap. \a direction is 1 for up and -1
    /// for down. At the end of the range it is that end.
    int nextValue(int value, int direction) const;
    /// What a key that moves a slider from \a value to \a position picks: on a scale that is not linear at
    /// least one step towards the key's side, so that no key is ever without effect.
    int valueForKey(int value, int position, int direction) const;
    QString text(int value) const;

private:
    double span() const;
    int usableStep() const { return singleStep > 0 ? singleStep : 1; }
    double aboveMinimum(int position) const;
    int snapped(int value) const;
};
