#pragma once

#include "nodedeclaration.h"

#include <string>
#include <utility>
#include <vector>

namespace ZetoNodeMap {

/// Turns the names by which declarations refer to each other into links between the nodes.
class NodeLinker
{
public:
    explicit NodeLinker(NodeMap& map);

    /// Links the nodes of \a declared, in this order.
    void link(const std::vector<std::pair<Node*, const NodeReferences*>>& declared);

    /// Names that no node has, each as "owner -> name".
    const std::vector<std::string>& missing() const { return m_missing; }

private:
    using Links = std::vector<Node*>;

    void linkNode(Node& node, const NodeReferences& references);
    void linkMembership(Node& node, const NodeReferences& references);
    static void collectSelectors(Node& node);
    void breakSelectorCycles();
    void finish(Node& node);
    void markFeatures(Node& category);

    Links find(const Node& owner, const std::vector<std::string>& names);
    Node* find(const Node& owner, const std::string& name);

    /// \a dependent changes when \a node does.
    static void addDependent(Node& node, Node& dependent);
    static void addInvalidator(Node& node, Node& invalidator);
    static void addChild(Node& parent, Node& child);
    static bool contains(const Links& links, const Node& node);
    static void addOnce(Links& links, Node& node);

    NodeMap& m_map;
    std::vector<std::string> m_missing;
};

} // namespace ZetoNodeMap
