#include "nodelinker.h"

#include "node.h"
#include "nodemap.h"

#include <algorithm>

namespace ZetoNodeMap {

NodeLinker::NodeLinker(NodeMap& map)
    : m_map(map)
{
}

void NodeLinker::link(const std::vector<std::pair<Node*, const NodeReferences*>>& declared)
{
    for (const auto& [node, references] : declared)
        linkNode(*node, *references);
    for (const auto& [node, references] : declared)
        linkMembership(*node, *references);
    for (const auto& [node, references] : declared)
        collectSelectors(*node);
    breakSelectorCycles();
    for (const auto& [node, references] : declared)
        finish(*node);
    if (Node* root = m_map.find("Root"))
        markFeatures(*root);
}

void NodeLinker::linkNode(Node& node, const NodeReferences& references)
{
    for (Node* member : find(node, references.members))
        addChild(node, *member);
    for (Node* input : find(node, references.inputs)) {
        addChild(node, *input);
        addDependent(*input, node);
    }
    for (Node* invalidator : find(node, references.invalidators))
        addInvalidator(node, *invalidator);
    for (Node* invalidated : find(node, references.invalidated))
        addInvalidator(*invalidated, node);
    for (Node* selected : find(node, references.selected)) {
        addOnce(node.m_selected, *selected);
        addOnce(selected->m_selecting, node);
        addDependent(node, *selected);
    }
    node.m_alias = references.alias.empty() ? nullptr : find(node, references.alias);
    node.m_castAlias = references.castAlias.empty() ? nullptr : find(node, references.castAlias);
}

/// What others list comes before what lists itself.
void NodeLinker::linkMembership(Node& node, const NodeReferences& references)
{
    for (Node* category : find(node, references.categories))
        addChild(*category, node);
    if (Node* owner = node.owner()) {
        addChild(*owner, node);
        addDependent(node, *owner);
    }
}

void NodeLinker::finish(Node& node)
{
    const auto isCachable = [](const Node* input) { return GenApi::IsCacheable(input->info().cachingMode); };
    node.m_accessModeCacheable = node.m_access.isTraceable() && node.isSourceAccessModeCacheable() &&
                                 std::all_of(node.m_children.begin(), node.m_children.end(), isCachable);
    if (node.m_info.pollingTime > 0)
        m_map.m_polled.push_back({&node, node.m_info.pollingTime, 0});
}

void NodeLinker::collectSelectors(Node& node)
{
    node.m_selectors = node.m_selecting;
    for (size_t next = 0; next < node.m_selectors.size(); ++next) {
        const Links further = node.m_selectors[next]->m_selecting; // a copy: the selector may be the node
        for (Node* selector : further)
            addOnce(node.m_selectors, *selector);
    }
}

/// A selector that the node selects in its turn cannot decide which instance of the node is meant.
void NodeLinker::breakSelectorCycles()
{
    std::vector<std::pair<Node*, Node*>> mutual;
    for (const auto& node : m_map.m_nodes) {
        for (Node* selector : node->m_selectors) {
            if (contains(selector->m_selectors, *node))
                mutual.emplace_back(node.get(), selector);
        }
    }
    for (const auto& [node, selector] : mutual) {
        Links& selectors = node->m_selectors;
        selectors.erase(std::find(selectors.begin(), selectors.end(), selector));
    }
}

void NodeLinker::markFeatures(Node& category)
{
    for (Node* member : category.m_children) {
        if (std::exchange(member->m_feature, true))
            continue;
        if (member->m_type == GenApi::intfICategory)
            markFeatures(*member);
    }
}

NodeLinker::Links NodeLinker::find(const Node& owner, const std::vector<std::string>& names)
{
    Links nodes;
    for (const std::string& name : names) {
        if (Node* node = find(owner, name))
            nodes.push_back(node);
    }
    return nodes;
}

Node* NodeLinker::find(const Node& owner, const std::string& name)
{
    Node* node = m_map.find(name);
    if (!node)
        m_missing.push_back(owner.name() + " -> " + name);
    return node;
}

void NodeLinker::addDependent(Node& node, Node& dependent)
{
    if (&node != &dependent)
        addOnce(node.m_dependents, dependent);
}

void NodeLinker::addInvalidator(Node& node, Node& invalidator)
{
    addOnce(node.m_invalidators, invalidator);
    addDependent(invalidator, node);
}

void NodeLinker::addChild(Node& parent, Node& child)
{
    addOnce(parent.m_children, child);
    addOnce(child.m_parents, parent);
}

bool NodeLinker::contains(const Links& links, const Node& node)
{
    return std::find(links.begin(), links.end(), &node) != links.end();
}

void NodeLinker::addOnce(Links& links, Node& node)
{
    if (!contains(links, node))
        links.push_back(&node);
}

} // namespace ZetoNodeMap
