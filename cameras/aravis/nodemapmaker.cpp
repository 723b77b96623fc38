#include "nodemapmaker.h"

#include "cachingmodes.h"
#include "cameradescription.h"
#include "describeddevice.h"
#include "literal.h"
#include "nodemapbuilder.h"
#include "nodesources.h"

#include <GenApi/EnumClasses.h>

#include <algorithm>

namespace ZetoAravis {
namespace {

constexpr int noNode = CameraDescription::noNode;

/// The enumerator called \a text, \a otherwise when there is none.
template <class Converter, class Enumeration>
Enumeration named(const std::string& text, Enumeration otherwise)
{
    Enumeration value = otherwise;
    return Converter::FromString(text.c_str(), &value) ? value : otherwise;
}

bool isYes(const std::string& text)
{
    return text == "Yes";
}

class Maker
{
public:
    explicit Maker(DescribedDevice& device)
        : m_device(device)
        , m_description(device.description())
        , m_cachingModes(m_description)
    {
    }

    std::unique_ptr<ZetoNodeMap::NodeMap> make()
    {
        for (int index = 0; index < static_cast<int>(m_description.nodes().size()); ++index)
            declare(index);
        return m_builder.build(ZetoNodeMap::NodeMapBuilder::MissingNodes::Skip);
    }

private:
    void declare(int index)
    {
        const std::string& name = m_description.node(index).name;
        switch (m_description.node(index).kind) {
        case NodeKind::Category:
            return declareCategory(index);
        case NodeKind::Integer:
            return declareInteger(index);
        case NodeKind::Float:
            return declareFloat(index);
        case NodeKind::Enumeration:
            return declareEnumeration(index);
        case NodeKind::EnumEntry:
            return; // comes with its enumeration
        case NodeKind::String:
            return declareValue(index, m_builder.string(name), makeStringSource);
        case NodeKind::Boolean:
            return declareValue(index, m_builder.boolean(name), makeBooleanSource);
        case NodeKind::Command:
            return declareValue(index, m_builder.command(name), makeCommandSource);
        case NodeKind::Register:
            return declareValue(index, m_builder.bytes(name), makeRegisterSource);
        case NodeKind::Port:
            return declareWithoutValue(index, m_builder.port(name));
        case NodeKind::Plain:
            return declareWithoutValue(index, m_builder.node(name));
        }
    }

    template <class Builder, class MakeSource>
    void declareValue(int index, Builder builder, MakeSource makeSource)
    {
        describe(index, builder);
        builder.source(makeSource(m_device, index)).caching(m_cachingModes.of(index));
    }

    template <class Builder>
    void declareWithoutValue(int index, Builder builder)
    {
        describe(index, builder);
        if (auto condition = conditionOf(index, LinkRole::Implemented))
            builder.implementedIf(std::move(*condition));
        if (auto condition = conditionOf(index, LinkRole::Available))
            builder.availableIf(std::move(*condition));
    }

    void declareCategory(int index)
    {
        const DescriptionNode& node = m_description.node(index);
        declareWithoutValue(index,
                            m_builder.category(node.name).contains(linkedNames(node, LinkRole::Feature)));
    }

    void declareInteger(int index)
    {
        auto builder = m_builder.integer(m_description.node(index).name);
        declareValue(index, builder, makeIntegerSource);
        builder.unit(inherited(index, "Unit")).representation(representation(index));
    }

    void declareFloat(int index)
    {
        constexpr std::int64_t defaultPrecision = 6; // that of C++ streams
        auto builder = m_builder.floating(m_description.node(index).name);
        declareValue(index, builder, makeFloatSource);
        const std::string precision = inherited(index, "DisplayPrecision");
        builder.unit(inherited(index, "Unit"))
            .representation(representation(index))
            .notation(named<GenApi::EDisplayNotationClass>(inherited(index, "DisplayNotation"),
                                                           GenApi::fnAutomatic),
                      precision.empty() ? defaultPrecision : integerLiteral(precision));
    }

    void declareEnumeration(int index)
    {
        auto builder = m_builder.enumeration(m_description.node(index).name);
        declareValue(index, builder, makeEnumerationSource);
        for (const int entry : m_description.entries(index))
            addEntry(builder, entry);
    }

    void addEntry(ZetoNodeMap::EnumerationBuilder& enumeration, int index) const
    {
        const DescriptionNode& node = m_description.node(index);
        ZetoNodeMap::Entry entry(node.symbolic(), node.value());
        describe(index, entry);
        if (node.has("NumericValue"))
            entry.numericValue(realLiteral(node.text("NumericValue")));
        if (isYes(node.text("IsSelfClearing")))
            entry.selfClearing();
        enumeration.entry(entry);
    }

    /// What all nodes say about themselves.
    template <class Builder>
    void describe(int index, Builder& builder) const
    {
        const DescriptionNode& node = m_description.node(index);
        builder.displayName(node.text("DisplayName"))
            .toolTip(node.text("ToolTip"))
            .description(node.text("Description"))
            .docuUrl(node.text("DocuURL"))
            .eventId(node.text("EventID"))
            .visibility(named<GenApi::EVisibilityClass>(node.text("Visibility"), GenApi::Beginner))
            .nameSpace(node.element->attribute("NameSpace") == "Standard" ? GenApi::Standard : GenApi::Custom)
            .streamable(isYes(node.text("Streamable")))
            .deprecated(isYes(node.text("IsDeprecated")))
            .selects(linkedNames(node, LinkRole::Selected))
            .invalidatedBy(computedFrom(node))
            .alias(node.text("pAlias"))
            .castAlias(node.text("pCastAlias"));
        if (node.has("PollingTime"))
            builder.pollingTime(integerLiteral(node.text("PollingTime")));
    }

    std::string inherited(int index, const char* tag) const
    {
        return m_description.inheritedText(index, tag);
    }

    GenApi::ERepresentation representation(int index) const
    {
        return named<GenApi::ERepresentationClass>(inherited(index, "Representation"), GenApi::PureNumber);
    }

    std::vector<std::string> linkedNames(const DescriptionNode& node, LinkRole role) const
    {
        return namesWhere(node, [=](LinkRole linked) { return linked == role; });
    }

    std::vector<std::string> computedFrom(const DescriptionNode& node) const
    {
        return namesWhere(node, [](LinkRole role) {
            return role != LinkRole::Selected && role != LinkRole::Feature && role != LinkRole::Port &&
                   role != LinkRole::ValueCopy;
        });
    }

    template <class Predicate>
    std::vector<std::string> namesWhere(const DescriptionNode& node, Predicate isWanted) const
    {
        std::vector<std::string> names;
        for (const Link& link : node.links) {
            if (link.target != noNode && isWanted(link.role))
                names.push_back(m_description.node(link.target).name);
        }
        return names;
    }

    /// As NodeStates has it for nodes with a value: a condition that names no node is not met.
    std::optional<ZetoNodeMap::Setting<bool>> conditionOf(int index, LinkRole role) const
    {
        const Link* link = m_description.node(index).link(role);
        if (!link)
            return std::nullopt;
        if (link->target == noNode)
            return ZetoNodeMap::Setting<bool>(false);
        return ZetoNodeMap::Setting<bool>(m_description.node(link->target).name);
    }

    DescribedDevice& m_device;
    const CameraDescription& m_description;
    CachingModes m_cachingModes;
    ZetoNodeMap::NodeMapBuilder m_builder;
};

} // namespace

std::unique_ptr<ZetoNodeMap::NodeMap> makeNodeMap(DescribedDevice& device)
{
    return Maker(device).make();
}

} // namespace ZetoAravis
