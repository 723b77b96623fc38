#include "floattext.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace {

constexpr double singlePrecisionNoise = 1e-6; // relative
constexpr double mostFixedDigits = 1e15;      // above, a double has no digits after the point

bool showsEnough(double value, double shown)
{
    return std::abs(value - shown) <= singlePrecisionNoise * std::abs(value);
}

} // namespace

QString FloatText::fromValue(double value, int decimals)
{
    if (std::abs(value) < mostFixedDigits) {
        QString text = QString::number(value, 'f', qBound(0, decimals, 15));
        if (showsEnough(value, text.toDouble()))
            return text;
    }
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> FloatText::toValue(const QString& text)
{
    QString plain = text.trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double value = plain.toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::make_optional(value) : std::nullopt;
}

QValidator::State FloatText::state(const QString& text)
{
    static const QRegularExpression beginning(
        QStringLiteral("^\\s*[+-]?\\d*([.,]\\d*)?([eE][+-]?\\d*)?\\s*$"));
    if (!beginning.match(text).hasMatch())
        return QValidator::Invalid;
    return toValue(text) ? QValidator::Acceptable : QValidator::Intermediate;
}

double FloatText::stepped(double value, double step, int count)
{
    constexpr double limit = std::numeric_limits<double>::max();
    constexpr int exactDigits = 15;
    const double target = qBound(-limit, value + step * count, limit);
    const double rounded = QString::number(target, 'g', exactDigits).toDouble();
    return std::isfinite(rounded) ? rounded : target;
}

double FloatText::naturalStep(double value, int decimals)
{
    const double least = std::pow(10.0, -qBound(0, decimals, 15));
    if (!std::isfinite(value) || value == 0.0)
        return least;
    return qMax(least, std::pow(10.0, std::floor(std::log10(std::abs(value))) - 1.0));
}
