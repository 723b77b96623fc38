#include "genparamvalue.h"

#include "addresstext.h"
#include "genapiguard.h"

#include <QCoreApplication>
#include <QStringBuilder>

#include <charconv>
#include <cmath>
#include <iterator>

namespace {

struct ValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(GenParamTreeModel)
};

GenParamValue readValue(const GenParamFeature& feature)
{
    switch (feature.kind) {
    case GenParamKind::Integer:
    case GenParamKind::HexInteger:
    case GenParamKind::IPv4Address:
    case GenParamKind::MacAddress:
        return qint64{feature.integer->GetValue()};
    case GenParamKind::Boolean:
        return feature.boolean->GetValue();
    case GenParamKind::Float:
        return feature.real->GetValue();
    case GenParamKind::String:
        return fromGenApi(feature.string->GetValue());
    case GenParamKind::Enumeration:
        return fromGenApi(feature.enumeration->ToString());
    default:
        return std::monostate{};
    }
}

bool sameValue(const GenParamValue& a, const GenParamValue& b)
{
    const auto* x = std::get_if<double>(&a);
    const auto* y = std::get_if<double>(&b);
    return a == b || (x && y && std::isnan(*x) && std::isnan(*y));
}

/// In one allocation: the texts of many integers are made in a row.
QString decimalText(qint64 value, const QString& unit)
{
    char digits[20]; // of any value with its sign
    const char* const end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    const QLatin1String text(digits, static_cast<int>(end - digits));
    return unit.isEmpty() ? QString(text) : QString(text % unit);
}

QString integerText(GenParamKind kind, qint64 value, const QString& unit)
{
    switch (kind) {
    case GenParamKind::HexInteger:
        return QString::number(static_cast<quint64>(value), 16);
    case GenParamKind::IPv4Address:
        return ipv4Text(static_cast<quint32>(value));
    case GenParamKind::MacAddress:
        return macText(static_cast<quint64>(value));
    default:
        return decimalText(value, unit);
    }
}

QString floatText(double value, const GenParamFormat& format)
{
    // More digits than a double has, and still a text that fits a cell.
    const int decimals = static_cast<int>(qBound(qint64{0}, format.decimals, qint64{40}));
    const QString text = QString::number(value, 'f', decimals);
    return format.unit.isEmpty() ? text : QString(text % format.unit);
}

/// The text that stands where there is no value; null when there is one.
QString placeholder(GenParamState state)
{
    switch (state) {
    case GenParamState::NotAvailable:
        return ValueTexts::tr("<Value not available>");
    case GenParamState::NotReadable:
        return ValueTexts::tr("<Value not readable>");
    case GenParamState::Failed:
        return ValueTexts::tr("ERROR");
    default:
        return QString();
    }
}

} // namespace

bool operator==(const GenParamReading& a, const GenParamReading& b)
{
    return a.state == b.state && a.accessMode == b.accessMode && sameValue(a.value, b.value);
}

void readParam(const GenParamFeature& feature, GenParamReading& reading)
{
    reading = GenParamReading();
    reading.state = GenParamState::Failed;
    const GenApi::EAccessMode mode = feature.value->GetAccessMode();
    reading.accessMode = static_cast<quint8>(mode);
    if (!GenApi::IsAvailable(mode)) {
        reading.state = GenParamState::NotAvailable;
    } else if (!GenApi::IsReadable(mode) && feature.kind != GenParamKind::Command) {
        reading.state = GenParamState::NotReadable;
    } else {
        reading.value = readValue(feature);
        reading.state = GenParamState::Good;
    }
}

GenParamFormat formatOfParam(const GenParamFeature& feature)
{
    if (feature.kind == GenParamKind::Integer)
        return {fromGenApi(feature.integer->GetUnit()), 0};
    if (feature.kind == GenParamKind::Float)
        return {fromGenApi(feature.real->GetUnit()), feature.real->GetDisplayPrecision()};
    return {};
}

QString valueText(GenParamKind kind, const GenParamValue& value, const GenParamFormat& format)
{
    if (const auto* integer = std::get_if<qint64>(&value))
        return integerText(kind, *integer, format.unit);
    if (const auto* real = std::get_if<double>(&value))
        return floatText(*real, format);
    if (const auto* boolean = std::get_if<bool>(&value))
        return *boolean ? ValueTexts::tr("True") : ValueTexts::tr("False");
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

QString displayText(GenParamKind kind, const GenParamReading& reading, const GenParamFormat& format)
{
    if (reading.state != GenParamState::Good)
        return placeholder(reading.state);
    return kind == GenParamKind::Command ? ValueTexts::tr("Execute") : valueText(kind, reading.value, format);
}

QVariant editValue(GenParamKind kind, const GenParamReading& reading)
{
    if (const auto* integer = std::get_if<qint64>(&reading.value);
        integer && kind != GenParamKind::IPv4Address)
        return QVariant(*integer);
    if (const auto* real = std::get_if<double>(&reading.value))
        return QVariant(*real);
    if (const auto* boolean = std::get_if<bool>(&reading.value))
        return QVariant(*boolean);
    if (const auto* string = std::get_if<QString>(&reading.value))
        return QVariant(*string);
    const QString text = displayText(kind, reading, GenParamFormat());
    return text.isNull() ? QVariant() : QVariant(text);
}
