#include "parameditorfactory.h"

#include "choiceeditor.h"
#include "commandeditor.h"
#include "floateditor.h"
#include "genapiguard.h"
#include "genparamvalue.h"
#include "integereditor.h"
#include "ipv4editor.h"
#include "maceditor.h"
#include "stringeditor.h"

namespace {

template <typename Editor, typename... Arguments>
ControlData control(ControlData::Kind kind, Arguments&&... arguments)
{
    return ControlData(std::make_unique<Editor>(std::forward<Arguments>(arguments)...), kind);
}

/// The values of a feature that takes only some, empty when limits and increment decide.
template <typename Value, typename Node>
QVector<VariantData> validValues(Node& node, GenParamKind kind, const GenParamFormat& format)
{
    return genApiOr(QVector<VariantData>(), [&] {
        QVector<VariantData> choices;
        if (node.GetIncMode() != GenApi::listIncrement)
            return choices;
        const auto values = node.GetListOfValidValues();
        for (size_t i = 0; i < values.size(); ++i) {
            const Value value = values[i];
            choices.append({value, value, valueText(kind, value, format)});
        }
        return choices;
    });
}

ControlData integerControl(GenApi::IInteger& node, GenParamKind kind, const GenParamFormat& format)
{
    const auto choices = validValues<qint64>(node, kind, format);
    if (!choices.isEmpty())
        return control<ChoiceEditor>(ControlData::Choice, choices);
    IntegerLimits limits;
    limits.minimum = genApiOr(limits.minimum, [&] { return qint64{node.GetMin()}; });
    limits.maximum = genApiOr(limits.maximum, [&] { return qint64{node.GetMax()}; });
    limits.increment = genApiOr(limits.increment, [&] { return qint64{node.GetInc()}; });
    const int base = kind == GenParamKind::HexInteger ? 16 : 10;
    return control<IntegerEditor>(ControlData::Integer, limits, base, format.unit);
}

ControlData floatControl(GenApi::IFloat& node, const GenParamFormat& format)
{
    const auto choices = validValues<double>(node, GenParamKind::Float, format);
    if (!choices.isEmpty())
        return control<ChoiceEditor>(ControlData::Choice, choices);
    FloatLimits limits;
    limits.minimum = genApiOr(limits.minimum, [&] { return node.GetMin(); });
    limits.maximum = genApiOr(limits.maximum, [&] { return node.GetMax(); });
    limits.increment = genApiOr(limits.increment, [&] { return node.HasInc() ? node.GetInc() : 0.0; });
    return control<FloatEditor>(ControlData::Float, limits, static_cast<int>(format.decimals), format.unit);
}

ControlData stringControl(GenApi::IString& node, bool hasValue)
{
    const auto maximumBytes = genApiOr(qint64{0}, [&] { return qint64{node.GetMaxLength()}; });
    return control<StringEditor>(ControlData::Text, maximumBytes, hasValue);
}

ControlData booleanControl()
{
    QVector<VariantData> choices;
    for (const bool value : {false, true})
        choices.append({value, value, valueText(GenParamKind::Boolean, value, GenParamFormat())});
    return control<ChoiceEditor>(ControlData::Choice, choices);
}

void appendEntry(QVector<VariantData>& choices, GenApi::INode& node)
{
    auto& entry = dynamic_cast<GenApi::IEnumEntry&>(node);
    const GenApi::EAccessMode access = node.GetAccessMode();
    if (!GenApi::IsImplemented(access))
        return;
    const QString symbolic = fromGenApi(entry.GetSymbolic());
    const QString displayName = fromGenApi(node.GetDisplayName());
    choices.append({qint64{entry.GetValue()}, symbolic, displayName.isEmpty() ? symbolic : displayName,
                    GenApi::IsAvailable(access)});
}

ControlData enumerationControl(GenApi::IEnumeration& node)
{
    QVector<VariantData> choices;
    GenApi::NodeList_t entries;
    genApiFault([&] { node.GetEntries(entries); });
    for (GenApi::INode* entry : entries)
        genApiFault([&] { appendEntry(choices, *entry); });
    return control<ChoiceEditor>(ControlData::Choice, choices);
}

} // namespace

ControlData prepareEditor(const GenParamFeature& feature, bool hasValue)
{
    const auto format = genApiOr(GenParamFormat(), [&] { return formatOfParam(feature); });
    return genApiOr(ControlData(), [&] {
        switch (feature.kind) {
        case GenParamKind::Integer:
        case GenParamKind::HexInteger:
            return integerControl(*feature.integer, feature.kind, format);
        case GenParamKind::IPv4Address:
            return control<IPv4Editor>(ControlData::Text);
        case GenParamKind::MacAddress:
            return control<MacEditor>(ControlData::Text);
        case GenParamKind::Boolean:
            return booleanControl();
        case GenParamKind::Command:
            return control<CommandEditor>(ControlData::Button);
        case GenParamKind::Float:
            return floatControl(*feature.real, format);
        case GenParamKind::String:
            return stringControl(*feature.string, hasValue);
        case GenParamKind::Enumeration:
            return enumerationControl(*feature.enumeration);
        default:
            return ControlData();
        }
    });
}
