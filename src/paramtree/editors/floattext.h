#pragma once

#include <QString>
#include <QValidator>

#include <optional>

/// The text forms of a double in an editor, with a decimal point whatever the locale.
namespace FloatText {

/// \a value with \a decimals digits after the point. Where that would hide more than the noise of single
/// precision, or needs more digits than a double has, the shortest text that reads as exactly \a value.
QString fromValue(double value, int decimals);

/// The finite number that \a text stands for. A decimal comma is taken for a point.
std::optional<double> toValue(const QString& text);

/// Acceptable for a number, Intermediate for its beginning.
QValidator::State state(const QString& text);

/// \a value moved by \a count times \a step, without the noise of binary fractions; DBL_MAX at most.
double stepped(double value, double step, int count);

/// A step for a value that has no increment: one tenth of its leading digit, at least one unit of the last of
/// its \a decimals.
double naturalStep(double value, int decimals);

} // namespace FloatText
