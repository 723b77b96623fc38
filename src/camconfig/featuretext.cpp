#include "featuretext.h"

#include <QCoreApplication>

#include <ZetoGenParam.h>

#include <optional>

namespace ZetoGui {
namespace {

QString textOf(const char* utf8)
{
    return QString::fromUtf8(utf8); // empty for null
}

/// What \a read gets from \a feature; none when there is no feature or no value.
template <typename Feature, typename Read>
std::optional<QString> valueOf(Feature* feature, Read read)
{
    int32_t error = 0;
    if (!feature || !feature->IsReadable())
        return {};
    const QString text = read(*feature, &error);
    return error ? std::optional<QString>() : text;
}

std::optional<QString> stringText(ZetoGenParam::Array& params, const char* name)
{
    return valueOf(params.GetString(name, nullptr), [](ZetoGenParam::String& feature, int32_t* error) {
        return textOf(feature.GetValue(error));
    });
}

std::optional<QString> enumText(ZetoGenParam::Array& params, const char* name)
{
    return valueOf(params.GetEnum(name, nullptr), [](ZetoGenParam::Enum& feature, int32_t* error) {
        return textOf(feature.GetValueStr(error));
    });
}

std::optional<QString> intText(ZetoGenParam::Array& params, const char* name)
{
    return valueOf(params.GetInt(name, nullptr), [](ZetoGenParam::Int& feature, int32_t* error) {
        return QString::number(feature.GetValue(error));
    });
}

} // namespace

QString featureText(ZetoGenParam::Array* params, const char* name)
{
    if (params) {
        for (auto* read : {stringText, enumText, intText}) {
            if (const std::optional<QString> text = read(*params, name))
                return *text;
        }
    }
    return QStringLiteral("N/A");
}

QString modelName(ZetoGenParam::Array& params)
{
    return stringText(params, "DeviceModelName")
        .value_or(QCoreApplication::translate("ZetoCamConfigMainWindow", "Unknown"));
}

} // namespace ZetoGui
