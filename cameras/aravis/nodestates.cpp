#include "nodestates.h"

#include "cameradescription.h"
#include "literal.h"
#include "nodevalues.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ZetoAravis {
namespace {

constexpr int noNode = CameraDescription::noNode;
constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

GenApi::EAccessMode modeNamed(const std::string& text, GenApi::EAccessMode otherwise)
{
    if (text == "RW")
        return GenApi::RW;
    if (text == "RO")
        return GenApi::RO;
    return text == "WO" ? GenApi::WO : otherwise;
}

bool isKnife(const DescriptionNode& node)
{
    return node.is("IntSwissKnife") || node.is("SwissKnife");
}

std::int64_t rounded(double value)
{
    if (value >= static_cast<double>(highest))
        return highest;
    return value <= static_cast<double>(lowest) ? lowest : std::llround(value);
}

} // namespace

NodeStates::NodeStates(const CameraDescription& description, const NodeValues& values)
    : m_description(description)
    , m_values(values)
{
}

GenApi::EAccessMode NodeStates::accessMode(int node) const
{
    const DescriptionNode& stated = m_description.node(node);
    if (!holds(stated, LinkRole::Implemented, true))
        return GenApi::NI;
    GenApi::EAccessMode mode = naturalMode(node);
    if (mode != GenApi::NI && !holds(stated, LinkRole::Available, true))
        return GenApi::NA;
    if (GenApi::IsWritable(mode) && holds(stated, LinkRole::Locked, false))
        mode = GenApi::Combine(mode, GenApi::RO);
    return GenApi::Combine(mode, modeNamed(stated.text("ImposedAccessMode"), GenApi::RW));
}

/// A condition that names no node counts as not met: better closed than wrongly open.
bool NodeStates::holds(const DescriptionNode& node, LinkRole condition, bool otherwise) const
{
    const Link* link = node.link(condition);
    if (!link)
        return otherwise;
    return link->target == noNode ? !otherwise : m_values.integer(link->target) != 0;
}

GenApi::EAccessMode NodeStates::naturalMode(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind == NodeKind::Port)
        return GenApi::RW;
    if (node.kind == NodeKind::Category || node.kind == NodeKind::EnumEntry || node.kind == NodeKind::Plain ||
        isKnife(node))
        return GenApi::RO;
    return node.isRegister() ? memoryMode(node) : valueMode(index);
}

/// Memory of chunks and events exists only while one is there to look at.
GenApi::EAccessMode NodeStates::memoryMode(const DescriptionNode& node) const
{
    const Link* port = node.link(LinkRole::Port);
    if (port && port->target != noNode) {
        const DescriptionNode& stated = m_description.node(port->target);
        if (stated.has("ChunkID") || stated.has("EventID"))
            return GenApi::NA;
    }
    return modeNamed(node.text("AccessMode"), GenApi::RO);
}

GenApi::EAccessMode NodeStates::valueMode(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (const int target = valueNode(index); target != noNode)
        return accessMode(target);
    const bool isConstant = node.has("Value") || node.has("ValueIndexed") || node.has("ValueDefault");
    return isConstant ? GenApi::RW : GenApi::NA;
}

int NodeStates::valueNode(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    const Link* chooser = node.link(LinkRole::Index);
    if (!chooser || node.isRegister() || chooser->target == noNode) {
        const Link* value = node.link(LinkRole::Value);
        return value ? value->target : noNode;
    }
    const std::int64_t current = m_values.integer(chooser->target);
    const auto isChosen = [&](const XmlElement& child) {
        return (child.name == "pValueIndexed" || child.name == "ValueIndexed") &&
               integerLiteral(child.attribute("Index")) == current;
    };
    const auto& children = node.element->children;
    const auto chosen = std::find_if(children.begin(), children.end(), isChosen);
    const XmlElement* const value = chosen != children.end() ? &*chosen : node.property("pValueDefault");
    return value && value->name.front() == 'p' ? m_description.find(value->text) : noNode;
}

std::optional<std::int64_t> NodeStates::stated(const DescriptionNode& node, const char* tag,
                                               LinkRole role) const
{
    if (const XmlElement* literal = node.property(tag))
        return node.kind == NodeKind::Float ? rounded(realLiteral(literal->text))
                                            : integerLiteral(literal->text);
    const Link* link = node.link(role);
    return link && link->target != noNode ? std::optional(m_values.integer(link->target)) : std::nullopt;
}

std::optional<double> NodeStates::statedReal(const DescriptionNode& node, const char* tag,
                                             LinkRole role) const
{
    if (const XmlElement* literal = node.property(tag))
        return realLiteral(literal->text);
    const Link* link = node.link(role);
    return link && link->target != noNode ? std::optional(m_values.real(link->target)) : std::nullopt;
}

std::int64_t NodeStates::min(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind == NodeKind::Boolean)
        return 0;
    if (node.kind == NodeKind::Float)
        return rounded(realMin(index));
    if (node.is("IntConverter"))
        return m_values.convertedMinimum(index);
    if (node.isRegister())
        return fieldMin(index);
    if (const auto limit = stated(node, "Min", LinkRole::Min))
        return *limit;
    const int target = valueNode(index);
    return target == noNode ? lowest : min(target);
}

std::int64_t NodeStates::max(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind == NodeKind::Boolean)
        return 1;
    if (node.kind == NodeKind::Float)
        return rounded(realMax(index));
    if (node.is("IntConverter"))
        return m_values.convertedMaximum(index);
    if (node.isRegister())
        return fieldMax(index);
    if (const auto limit = stated(node, "Max", LinkRole::Max))
        return *limit;
    const int target = valueNode(index);
    return target == noNode ? highest : max(target);
}

std::int64_t NodeStates::inc(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.is("Integer")) {
        if (const auto step = stated(node, "Inc", LinkRole::Inc))
            return *step;
        if (const int target = valueNode(index); target != noNode)
            return inc(target);
    }
    return 1;
}

/// How many bits a field or register has: at most 64.
int NodeStates::bits(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.has("Bit"))
        return 1;
    if (node.has("MSB") && node.has("LSB")) {
        const double distance = std::abs(realLiteral(node.text("MSB")) - realLiteral(node.text("LSB")));
        return static_cast<int>(std::min(distance, 63.0)) + 1;
    }
    return static_cast<int>(std::min<std::uint64_t>(8, m_values.length(index))) * 8;
}

std::int64_t NodeStates::fieldMin(int index) const
{
    if (m_description.node(index).text("Sign") != "Signed")
        return 0;
    const int count = bits(index);
    return count == 64 ? lowest : -(std::int64_t(1) << (count - 1));
}

std::int64_t NodeStates::fieldMax(int index) const
{
    const bool isSigned = m_description.node(index).text("Sign") == "Signed";
    const int count = bits(index) - (isSigned ? 1 : 0);
    return count >= 63 ? highest : (std::int64_t(1) << count) - 1;
}

double NodeStates::realMin(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind != NodeKind::Float)
        return static_cast<double>(min(index));
    if (node.is("Converter"))
        return m_values.convertedRealMinimum(index);
    if (const auto limit = statedReal(node, "Min", LinkRole::Min))
        return *limit;
    if (node.is("FloatReg") && m_values.length(index) == sizeof(float))
        return -FLT_MAX;
    const int target = valueNode(index);
    return target == noNode ? -DBL_MAX : realMin(target);
}

double NodeStates::realMax(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind != NodeKind::Float)
        return static_cast<double>(max(index));
    if (node.is("Converter"))
        return m_values.convertedRealMaximum(index);
    if (const auto limit = statedReal(node, "Max", LinkRole::Max))
        return *limit;
    if (node.is("FloatReg") && m_values.length(index) == sizeof(float))
        return FLT_MAX;
    const int target = valueNode(index);
    return target == noNode ? DBL_MAX : realMax(target);
}

std::optional<double> NodeStates::realInc(int index) const
{
    const DescriptionNode& node = m_description.node(index);
    if (node.kind != NodeKind::Float)
        return static_cast<double>(inc(index));
    if (!node.is("Float"))
        return std::nullopt;
    if (const auto step = statedReal(node, "Inc", LinkRole::Inc))
        return step;
    const int target = valueNode(index);
    return target == noNode ? std::nullopt : realInc(target);
}

} // namespace ZetoAravis
