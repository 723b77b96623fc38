#pragma once

#include "xmlelement.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ZetoAravis {

/// What a node is for its user, whatever element states it.
enum class NodeKind
{
    Category,
    Integer,
    Float,
    String,
    Enumeration,
    EnumEntry,
    Boolean,
    Command,
    Register,
    Port,
    Plain
};

/// In which role one node names another.
enum class LinkRole
{
    Value,        ///< pValue
    ValueCopy,    ///< pValueCopy: written along with pValue
    IndexedValue, ///< pValueIndexed, pValueDefault
    Index,        ///< pIndex: chooses among the indexed values, or moves a register
    Variable,     ///< pVariable of a formula
    Address,      ///< pAddress, the pOffset of an index
    Length,       ///< pLength
    CommandValue, ///< pCommandValue
    Min,
    Max,
    Inc,
    Implemented,
    Available,
    Locked,
    Invalidator,
    Error,
    Selected,
    Feature, ///< member of a category
    Port
};

/// Whether the link is followed to compute a value.
bool isReadForValue(LinkRole role);

/// The most bytes that a register has which an element called \a tag states. The library takes memory for as
/// many as it is told, and ends the process where it gets none.
std::int64_t greatestLength(std::string_view tag);

struct Link
{
    LinkRole role;
    int target; ///< index of the node, CameraDescription::noNode when the description has no such node
    XmlElement* element; ///< the element that states the link
};

/// One node of a camera description, as stated.
struct DescriptionNode
{
    std::string name; ///< unique: an entry's is EnumEntry_<enumeration>_<symbolic>
    NodeKind kind;
    XmlElement* element;
    const XmlElement* structure; ///< the StructReg around a StructEntry, else null
    int owner;                   ///< the enumeration of an entry, else CameraDescription::noNode
    std::vector<Link> links;

    /// \return the property's element: the node's own or, in a structure, the one that all entries share.
    const XmlElement* property(std::string_view tag) const;
    std::string text(std::string_view tag) const;
    bool has(std::string_view tag) const { return property(tag) != nullptr; }
    bool is(std::string_view tag) const { return element->name == tag; }
    /// Of an entry.
    std::string symbolic() const;
    std::int64_t value() const;
    /// True for nodes that lie on memory of the device.
    bool isRegister() const;
    /// \return the first link in that role, null when there is none.
    const Link* link(LinkRole role) const;
};

/// A camera description file: its nodes in document order, with the links between them resolved.
///
/// Keeps what evaluation by a library tends to lose, and makes the file safe to evaluate: where values would
/// be computed from themselves, or through more steps than any sane camera needs, the link that closes the
/// circle is taken out and reported among the problems. Immutable once made, so safe to read from any thread.
class CameraDescription
{
public:
    static constexpr int noNode = -1;

    /// \throws std::runtime_error when \a bytes are no XML or no GenICam description; the text says which.
    explicit CameraDescription(std::string_view bytes);
    CameraDescription(const CameraDescription&) = delete;
    CameraDescription& operator=(const CameraDescription&) = delete;

    /// The document, without the links taken out.
    const XmlElement& root() const { return m_root; }
    const std::vector<DescriptionNode>& nodes() const { return m_nodes; }
    const DescriptionNode& node(int index) const { return m_nodes[static_cast<std::size_t>(index)]; }
    /// \return the index of the node of that name, noNode when there is none.
    int find(std::string_view name) const;
    /// \return the entries of an enumeration in document order.
    const std::vector<int>& entries(int enumeration) const;
    /// \return the property's text of the node itself or else of the nearest node down its values that states
    /// it.
    std::string inheritedText(int index, std::string_view tag) const;
    /// One text for each thing that was wrong and is mended or left out.
    const std::vector<std::string>& problems() const { return m_problems; }

private:
    void addNodesIn(XmlElement& parent);
    void addStructure(XmlElement& structure);
    int addNode(XmlElement& element, std::string name, NodeKind kind);
    void addEntries(int enumeration);
    void addLinks(DescriptionNode& node, XmlElement& element);
    void takeOutUnfitRegisters();
    void takeOutCircles();
    int settle(int index, int depth);

    XmlElement m_root;
    std::vector<DescriptionNode> m_nodes;
    std::unordered_map<std::string, int> m_indexByName;
    std::unordered_map<int, std::vector<int>> m_entries;
    std::vector<int> m_heights; ///< longest way down to a plain value, while circles are looked for
    std::vector<std::string> m_problems;
};

} // namespace ZetoAravis
