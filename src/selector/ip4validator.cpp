#include "ip4validator.h"

#include <QVector>

#include <algorithm>

namespace {

constexpr int partCount = 4;

bool isPart(const QStringRef& text)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber && value >= 0 && value <= 255;
}

} // namespace

QValidator::State IP4Validator::validate(QString& input, int& /*position*/) const
{
    if (input.isEmpty())
        return Acceptable;
    const QVector<QStringRef> parts = input.splitRef(QLatin1Char('.'));
    const auto isMissing = [](const QStringRef& part) { return part.trimmed().isEmpty(); };
    const auto isPossible = [&](const QStringRef& part) { return isMissing(part) || isPart(part.trimmed()); };
    if (parts.size() > partCount || !std::all_of(parts.begin(), parts.end(), isPossible))
        return Invalid;
    const bool isWhole = parts.size() == partCount && std::none_of(parts.begin(), parts.end(), isMissing);
    return isWhole ? Acceptable : Intermediate;
}
