#include "informationtext.h"

namespace ZetoGui {

QString numberText(std::optional<int64_t> value)
{
    return value ? QString::number(*value) : QString();
}

QString sizeText(std::optional<int64_t> width, std::optional<int64_t> height)
{
    if (!width || !height)
        return numberText(width);
    return QStringLiteral("%1x%2").arg(*width).arg(*height);
}

QString frameRateText(std::optional<int64_t> frameTime)
{
    constexpr double microsecondsPerSecond = 1e6;
    if (!frameTime)
        return {};
    const double rate = *frameTime > 0 ? microsecondsPerSecond / static_cast<double>(*frameTime) : 0;
    return QString::number(rate, 'f', 2);
}

} // namespace ZetoGui
