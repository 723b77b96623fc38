#pragma once

#include "accessrules.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ZetoNodeMap {

class Node;
class NodeMap;

/// What a node says about itself whatever its value.
struct NodeInfo
{
    std::string name;
    std::string displayName; // empty: the name
    std::string toolTip;
    std::string description;
    std::string docuUrl;
    std::string eventId;
    GenApi::ENameSpace nameSpace = GenApi::Custom;
    GenApi::EVisibility visibility = GenApi::Beginner;
    GenApi::ECachingMode cachingMode = GenApi::_UndefinedCachingMode; // undefined: as the source suggests
    int64_t pollingTime = -1;                                         // ms, -1 = not polled
    bool streamable = false;
    bool deprecated = false;
};

/// The names of the nodes that a node refers to.
struct NodeReferences
{
    std::vector<std::string> categories;   // that it is to be a member of
    std::vector<std::string> members;      // of a category
    std::vector<std::string> selected;     // by this selector
    std::vector<std::string> inputs;       // read for limits and conditions
    std::vector<std::string> invalidators; // whose changes change this node
    std::vector<std::string> invalidated;  // changed by this node
    std::string alias;
    std::string castAlias;
};

/// A node as it was declared, before it exists.
struct NodeDeclaration
{
    NodeDeclaration() = default;
    virtual ~NodeDeclaration() = default;
    NodeDeclaration(const NodeDeclaration&) = delete;
    NodeDeclaration& operator=(const NodeDeclaration&) = delete;

    /// Makes the node, which takes over the contents of the declaration except its references.
    virtual std::unique_ptr<Node> createNode(NodeMap& map) = 0;

    NodeInfo info;
    AccessRules access;
    NodeReferences references;
};

/// The declaration of a \a NodeType, which takes its particular settings.
template <class NodeType>
struct DeclarationOf : NodeDeclaration
{
    std::unique_ptr<Node> createNode(NodeMap& map) override
    {
        return std::make_unique<NodeType>(map, std::move(*this), std::move(settings));
    }

    typename NodeType::Settings settings;
};

} // namespace ZetoNodeMap
