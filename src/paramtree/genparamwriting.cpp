#include "genparamwriting.h"

#include "addresstext.h"
#include "genapiguard.h"

#include <limits>
#include <optional>

namespace {

bool isFloatingPoint(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

/// Nothing for what is no number or does not fit: QVariant itself would wrap it.
std::optional<qint64> toInt64(const QVariant& value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (isFloatingPoint(value) && !(value.toDouble() >= -limit && value.toDouble() < limit))
        return std::nullopt;
    if (value.userType() == QMetaType::ULongLong &&
        value.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return std::nullopt;
    bool ok = false;
    const qint64 number = value.toLongLong(&ok);
    return ok ? std::make_optional(number) : std::nullopt;
}

std::optional<qint64> toIntegerValue(const QVariant& value)
{
    if (value.userType() == QMetaType::QString)
        return qint64{ipv4FromText(value.toString())};
    return toInt64(value);
}

bool writeInteger(GenApi::IInteger& node, const QVariant& value)
{
    const std::optional<qint64> number = toIntegerValue(value);
    if (number)
        node.SetValue(*number);
    return number.has_value();
}

bool writeFloat(GenApi::IFloat& node, const QVariant& value)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (ok)
        node.SetValue(number);
    return ok;
}

bool writeEnumeration(GenApi::IEnumeration& node, const QVariant& value)
{
    if (const std::optional<qint64> number = toInt64(value))
        node.SetIntValue(*number);
    else if (value.canConvert<QString>())
        node.FromString(toGenApi(value.toString()));
    else
        return false;
    return true;
}

} // namespace

bool writeParam(const GenParamFeature& feature, const QVariant& value)
{
    if (isIntegerKind(feature.kind))
        return writeInteger(*feature.integer, value);
    switch (feature.kind) {
    case GenParamKind::Boolean:
        if (value.canConvert<bool>())
            feature.boolean->SetValue(value.toBool());
        return value.canConvert<bool>();
    case GenParamKind::Command:
        feature.command->Execute();
        return true;
    case GenParamKind::Float:
        return writeFloat(*feature.real, value);
    case GenParamKind::String:
        if (value.canConvert<QString>())
            feature.string->SetValue(toGenApi(value.toString()));
        return value.canConvert<QString>();
    case GenParamKind::Enumeration:
        return writeEnumeration(*feature.enumeration, value);
    default:
        return false;
    }
}
