#include "genparamtooltip.h"

#include "genapiguard.h"
#include "genparamvalue.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

/// A tool tip is to fit on a screen.
constexpr int maxListed = 40;

struct TooltipTexts
{
    Q_DECLARE_TR_FUNCTIONS(GenParamTreeModel)
};

/// The feature that the lines are about.
struct Subject
{
    GenParamFeature feature;
    GenApi::INode& node;
    GenParamFormat format;
};

/// A line gives a null text when it does not apply; it may throw what GenApi throws.
using Line = QString (*)(const Subject&);

QString yesNo(bool value)
{
    return value ? TooltipTexts::tr("True") : TooltipTexts::tr("False");
}

QString escaped(const GenICam::gcstring& text)
{
    return fromGenApi(text).toHtmlEscaped();
}

QString limitText(const Subject& subject, int64_t value)
{
    return valueText(subject.feature.kind, qint64{value}, subject.format).toHtmlEscaped();
}

QString limitText(const Subject& subject, double value)
{
    return valueText(subject.feature.kind, value, subject.format).toHtmlEscaped();
}

QString stepText(const Subject& subject, int64_t step)
{
    return valueText(GenParamKind::Integer, qint64{step}, subject.format).toHtmlEscaped();
}

QString stepText(const Subject& subject, double step)
{
    // With the digits that it has: a step below the display precision would read 0.
    const QString text = QString::number(step) + subject.format.unit;
    return text.toHtmlEscaped();
}

bool hasStep(GenApi::IInteger& node)
{
    return node.GetIncMode() == GenApi::fixedIncrement;
}

bool hasStep(GenApi::IFloat& node)
{
    return node.HasInc();
}

/// Calls \a line with the number interface of the feature. Limits and steps need an available feature.
template <typename NumberLine>
QString ofNumber(const Subject& subject, NumberLine line)
{
    const bool isInteger = isIntegerKind(subject.feature.kind);
    if ((!isInteger && subject.feature.kind != GenParamKind::Float) ||
        !GenApi::IsAvailable(subject.feature.value))
        return QString();
    return isInteger ? line(*subject.feature.integer) : line(*subject.feature.real);
}

QString joined(QStringList texts, const QString& separator)
{
    if (texts.size() > maxListed)
        texts = texts.mid(0, maxListed) << QStringLiteral("...");
    return texts.join(separator);
}

QString nameLine(const Subject& subject)
{
    return TooltipTexts::tr("<i>Name:</i> %1").arg(escaped(subject.node.GetName()));
}

QString typeName(GenParamKind kind)
{
    switch (kind) {
    case GenParamKind::Float:
        return TooltipTexts::tr("Float");
    case GenParamKind::Boolean:
        return TooltipTexts::tr("Boolean");
    case GenParamKind::Command:
        return TooltipTexts::tr("Command");
    case GenParamKind::String:
        return TooltipTexts::tr("String");
    case GenParamKind::Enumeration:
        return TooltipTexts::tr("Enumeration");
    default:
        return isIntegerKind(kind) ? TooltipTexts::tr("Integer") : QString();
    }
}

QString typeLine(const Subject& subject)
{
    const QString type = typeName(subject.feature.kind);
    return type.isNull() ? QString() : TooltipTexts::tr("<i>Type:</i> %1").arg(type);
}

QString selectorsLine(const Subject& subject)
{
    GenApi::FeatureList_t selectors;
    dynamic_cast<GenApi::ISelector&>(*subject.feature.value).GetSelectingFeatures(selectors);
    QStringList names;
    for (GenApi::IValue* selector : selectors)
        names += escaped(nodeOf(*selector).GetName());
    return names.isEmpty()
               ? QString()
               : TooltipTexts::tr("<i>Selectors:</i> %1").arg(joined(names, QStringLiteral(", ")));
}

QString limitsLine(const Subject& subject)
{
    return ofNumber(subject, [&subject](auto& node) {
        return TooltipTexts::tr("<i>Limits</i>: Min: %1, Max: %2")
            .arg(limitText(subject, node.GetMin()), limitText(subject, node.GetMax()));
    });
}

QString incrementLine(const Subject& subject)
{
    return ofNumber(subject, [&subject](auto& node) {
        return hasStep(node) ? TooltipTexts::tr("<i>Increment</i>: %1").arg(stepText(subject, node.GetInc()))
                             : QString();
    });
}

QString validValuesLine(const Subject& subject)
{
    return ofNumber(subject, [&subject](auto& node) {
        if (node.GetIncMode() != GenApi::listIncrement)
            return QString();
        const auto values = node.GetListOfValidValues();
        QStringList texts;
        for (size_t i = 0; i < values.size(); ++i)
            texts += limitText(subject, values[i]);
        return TooltipTexts::tr("<i>Valid values</i>: %1").arg(joined(texts, QStringLiteral(", ")));
    });
}

QString entriesLine(const Subject& subject)
{
    if (subject.feature.kind != GenParamKind::Enumeration)
        return QString();
    GenApi::NodeList_t entries;
    subject.feature.enumeration->GetEntries(entries);
    QStringList lines(TooltipTexts::tr("<i>Enumeration entries</i>:"));
    for (GenApi::INode* node : entries) {
        const auto* entry = dynamic_cast<GenApi::IEnumEntry*>(node);
        if (entry && GenApi::IsAvailable(entry))
            lines += escaped(entry->GetSymbolic());
    }
    return joined(lines, QStringLiteral("<br />- "));
}

QString descriptionLine(const Subject& subject)
{
    const QString text = paramDescription(*subject.feature.value).toHtmlEscaped();
    return text.isEmpty() ? QString() : TooltipTexts::tr("<i>Description:</i> %1").arg(text);
}

QString streamableLine(const Subject& subject)
{
    if (subject.feature.kind == GenParamKind::Category)
        return QString();
    return TooltipTexts::tr("<i>Streamable:</i> %1").arg(yesNo(subject.node.IsStreamable()));
}

QString cachingName(GenApi::ECachingMode mode)
{
    switch (mode) {
    case GenApi::NoCache:
        return QStringLiteral("NoCache");
    case GenApi::WriteThrough:
        return QStringLiteral("WriteThrough");
    case GenApi::WriteAround:
        return QStringLiteral("WriteAround");
    default:
        return QStringLiteral("Undefined");
    }
}

QString cachableLine(const Subject& subject)
{
    if (subject.feature.kind == GenParamKind::Category)
        return QString();
    return TooltipTexts::tr("<i>Cachable:</i> %1").arg(cachingName(subject.node.GetCachingMode()));
}

} // namespace

QString paramToolTip(const GenParamFeature& feature)
{
    static const Line lines[] = {nameLine,        typeLine,    selectorsLine,   limitsLine,     incrementLine,
                                 validValuesLine, entriesLine, descriptionLine, streamableLine, cachableLine};
    auto* node = dynamic_cast<GenApi::INode*>(feature.value);
    if (!node)
        return QString();
    const Subject subject{feature, *node, genApiOr(GenParamFormat(), [&] { return formatOfParam(feature); })};
    QStringList html;
    for (const Line line : lines) {
        const QString text = genApiOr(QString(), [&] { return line(subject); });
        if (!text.isNull())
            html += text;
    }
    return html.join(QStringLiteral("<br />"));
}

QString paramDescription(GenApi::IValue& feature)
{
    return genApiOr(QString(), [&feature] {
        const auto& node = nodeOf(feature);
        const QString description = fromGenApi(node.GetDescription());
        return description.isEmpty() ? fromGenApi(node.GetToolTip()) : description;
    });
}
