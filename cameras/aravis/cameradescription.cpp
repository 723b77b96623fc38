#include "cameradescription.h"

#include "limitvariables.h"
#include "literal.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace ZetoAravis {
namespace {

/// A value that takes more steps than this is taken for a mistake: evaluation is recursive.
constexpr int maximumDepth = 200;

constexpr int unvisited = -1;
constexpr int underWay = -2;

struct TagKind
{
    std::string_view tag;
    NodeKind kind;
};

constexpr std::array nodeKinds{
    TagKind{"Category", NodeKind::Category},
    TagKind{"Integer", NodeKind::Integer},
    TagKind{"IntReg", NodeKind::Integer},
    TagKind{"MaskedIntReg", NodeKind::Integer},
    TagKind{"StructEntry", NodeKind::Integer},
    TagKind{"IntSwissKnife", NodeKind::Integer},
    TagKind{"IntConverter", NodeKind::Integer},
    TagKind{"Float", NodeKind::Float},
    TagKind{"FloatReg", NodeKind::Float},
    TagKind{"SwissKnife", NodeKind::Float},
    TagKind{"Converter", NodeKind::Float},
    TagKind{"String", NodeKind::String},
    TagKind{"StringReg", NodeKind::String},
    TagKind{"TextDesc", NodeKind::String},
    TagKind{"Enumeration", NodeKind::Enumeration},
    TagKind{"Boolean", NodeKind::Boolean},
    TagKind{"Command", NodeKind::Command},
    TagKind{"Register", NodeKind::Register},
    TagKind{"Port", NodeKind::Port},
    TagKind{"Node", NodeKind::Plain},
};

struct TagRole
{
    std::string_view tag;
    LinkRole role;
};

constexpr std::array linkRoles{
    TagRole{"pValue", LinkRole::Value},
    TagRole{"pValueCopy", LinkRole::ValueCopy},
    TagRole{"pValueIndexed", LinkRole::IndexedValue},
    TagRole{"pValueDefault", LinkRole::IndexedValue},
    TagRole{"pIndex", LinkRole::Index},
    TagRole{"pVariable", LinkRole::Variable},
    TagRole{"pAddress", LinkRole::Address},
    TagRole{"pLength", LinkRole::Length},
    TagRole{"pCommandValue", LinkRole::CommandValue},
    TagRole{"pMin", LinkRole::Min},
    TagRole{"pMax", LinkRole::Max},
    TagRole{"pInc", LinkRole::Inc},
    TagRole{"pIsImplemented", LinkRole::Implemented},
    TagRole{"pIsAvailable", LinkRole::Available},
    TagRole{"pIsLocked", LinkRole::Locked},
    TagRole{"pInvalidator", LinkRole::Invalidator},
    TagRole{"pError", LinkRole::Error},
    TagRole{"pSelected", LinkRole::Selected},
    TagRole{"pFeature", LinkRole::Feature},
    TagRole{"pPort", LinkRole::Port},
};

const TagKind* kindOf(std::string_view tag)
{
    const auto* found = std::find_if(nodeKinds.begin(), nodeKinds.end(),
                                     [&](const TagKind& each) { return each.tag == tag; });
    return found == nodeKinds.end() ? nullptr : found;
}

const TagRole* roleOf(std::string_view tag)
{
    const auto* found = std::find_if(linkRoles.begin(), linkRoles.end(),
                                     [&](const TagRole& each) { return each.tag == tag; });
    return found == linkRoles.end() ? nullptr : found;
}

bool isPossibleLength(std::int64_t length, const DescriptionNode& node)
{
    if (node.kind == NodeKind::Float)
        return length == 4 || length == 8;
    return length >= 1 && length <= greatestLength(node.element->name);
}

/// \return what makes a register unfit to be read, empty if nothing does.
std::string faultOf(const DescriptionNode& node)
{
    if (!node.has("pPort"))
        return "has no port";
    if (node.has("Length") && !isPossibleLength(integerLiteral(node.text("Length")), node))
        return "cannot have the length " + node.text("Length");
    return {};
}

std::string symbolicOf(const XmlElement& entry)
{
    const std::string symbolic = entry.childText("Symbolic");
    return symbolic.empty() ? entry.attribute("Name") : symbolic;
}

} // namespace

bool isReadForValue(LinkRole role)
{
    return role <= LinkRole::CommandValue;
}

std::int64_t greatestLength(std::string_view tag)
{
    constexpr std::int64_t ofNumber = 8;
    constexpr std::int64_t ofBlock = 1 << 24;
    return tag == "StringReg" || tag == "Register" ? ofBlock : ofNumber;
}

const XmlElement* DescriptionNode::property(std::string_view tag) const
{
    const XmlElement* own = element->child(tag);
    return own || !structure ? own : structure->child(tag);
}

std::string DescriptionNode::text(std::string_view tag) const
{
    const XmlElement* found = property(tag);
    return found ? found->text : std::string();
}

std::string DescriptionNode::symbolic() const
{
    return symbolicOf(*element);
}

std::int64_t DescriptionNode::value() const
{
    return integerLiteral(text("Value"));
}

bool DescriptionNode::isRegister() const
{
    constexpr std::array<std::string_view, 6> registers{"IntReg",   "MaskedIntReg", "StructEntry",
                                                        "FloatReg", "StringReg",    "Register"};
    return std::find(registers.begin(), registers.end(), element->name) != registers.end();
}

const Link* DescriptionNode::link(LinkRole role) const
{
    const auto found =
        std::find_if(links.begin(), links.end(), [&](const Link& link) { return link.role == role; });
    return found == links.end() ? nullptr : &*found;
}

CameraDescription::CameraDescription(std::string_view bytes)
    : m_root(parseXml(bytes))
{
    if (m_root.name != "RegisterDescription")
        throw std::runtime_error("not a GenICam camera description: its root element is <" + m_root.name +
                                 ">");
    addNodesIn(m_root);
    takeOutUnfitRegisters();
    for (DescriptionNode& node : m_nodes) {
        addLinks(node, *node.element);
        if (node.structure)
            addLinks(node, const_cast<XmlElement&>(*node.structure));
    }
    takeOutCircles();
}

int CameraDescription::find(std::string_view name) const
{
    const auto found = m_indexByName.find(std::string(name));
    return found == m_indexByName.end() ? noNode : found->second;
}

const std::vector<int>& CameraDescription::entries(int enumeration) const
{
    static const std::vector<int> none;
    const auto found = m_entries.find(enumeration);
    return found == m_entries.end() ? none : found->second;
}

std::string CameraDescription::inheritedText(int index, std::string_view tag) const
{
    while (index != noNode) {
        const DescriptionNode& current = node(index);
        if (current.has(tag))
            return current.text(tag);
        const Link* value = current.link(LinkRole::Value);
        index = value ? value->target : noNode;
    }
    return {};
}

void CameraDescription::addNodesIn(XmlElement& parent)
{
    for (XmlElement& element : parent.children) {
        if (element.name == "Group")
            addNodesIn(element);
        else if (element.name == "StructReg")
            addStructure(element);
        else if (const TagKind* known = kindOf(element.name))
            addEntries(addNode(element, element.attribute("Name"), known->kind));
    }
}

void CameraDescription::addStructure(XmlElement& structure)
{
    for (XmlElement& element : structure.children) {
        if (element.name != "StructEntry")
            continue;
        const int index = addNode(element, element.attribute("Name"), NodeKind::Integer);
        if (index != noNode)
            m_nodes.back().structure = &structure;
    }
}

int CameraDescription::addNode(XmlElement& element, std::string name, NodeKind kind)
{
    const int index = static_cast<int>(m_nodes.size());
    if (name.empty() || !m_indexByName.emplace(name, index).second) {
        m_problems.push_back('<' + element.name + "> " +
                             (name.empty() ? "without a name" : name + " stated twice"));
        return noNode;
    }
    m_nodes.push_back({std::move(name), kind, &element, nullptr, noNode, {}});
    return index;
}

void CameraDescription::addEntries(int enumeration)
{
    if (enumeration == noNode || node(enumeration).kind != NodeKind::Enumeration)
        return;
    const std::string prefix = "EnumEntry_" + node(enumeration).name + '_';
    for (XmlElement& element : node(enumeration).element->children) {
        if (element.name != "EnumEntry")
            continue;
        const int entry = addNode(element, prefix + symbolicOf(element), NodeKind::EnumEntry);
        if (entry == noNode)
            continue;
        m_nodes.back().owner = enumeration;
        m_entries[enumeration].push_back(entry);
    }
}

/// Formulas without a name inside a register are part of it; entries are nodes of their own.
void CameraDescription::addLinks(DescriptionNode& node, XmlElement& element)
{
    for (const std::string& name : settleLimitVariables(*this, element))
        m_problems.push_back(node.name + ": the variable " + name + " counts as 0");
    for (XmlElement& child : element.children) {
        if (child.name == "Extension" || child.name == "EnumEntry" || child.name == "StructEntry")
            continue;
        if (const TagRole* known = roleOf(child.name))
            node.links.push_back({known->role, find(child.text), &child});
        if (const std::string offset = child.attribute("pOffset"); !offset.empty())
            node.links.push_back({LinkRole::Address, find(offset), &child});
        addLinks(node, child);
    }
}

void CameraDescription::takeOutUnfitRegisters()
{
    for (const DescriptionNode& node : m_nodes) {
        const std::string fault = node.isRegister() ? faultOf(node) : std::string();
        if (fault.empty())
            continue;
        m_problems.push_back(node.name + ' ' + fault);
        node.element->name = "Unfit";
    }
}

void CameraDescription::takeOutCircles()
{
    m_heights.assign(m_nodes.size(), unvisited);
    for (int index = 0; index < static_cast<int>(m_nodes.size()); ++index)
        settle(index, 0);
}

/// \return the longest way from the node down to a plain value, after taking out what makes it endless.
int CameraDescription::settle(int index, int depth)
{
    int& height = m_heights[static_cast<std::size_t>(index)];
    if (height != unvisited)
        return height == underWay ? maximumDepth : height;
    height = underWay;
    int highest = 0;
    std::vector<Link>& links = m_nodes[static_cast<std::size_t>(index)].links;
    const auto isEndless = [&](const Link& link) {
        if (!isReadForValue(link.role) || link.target == noNode)
            return false;
        const int below = depth < maximumDepth ? settle(link.target, depth + 1) : maximumDepth;
        if (below < maximumDepth - 1) {
            highest = std::max(highest, below + 1);
            return false;
        }
        m_problems.push_back(node(index).name + ": " + link.element->name + " leads back to itself through " +
                             node(link.target).name);
        link.element->name = "Circular";
        return true;
    };
    links.erase(std::remove_if(links.begin(), links.end(), isEndless), links.end());
    height = highest;
    return height;
}

} // namespace ZetoAravis
