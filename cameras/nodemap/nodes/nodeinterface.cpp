// What a node answers to the clients of the GenApi interface.

#include "errors.h"
#include "node.h"
#include "nodechange.h"
#include "nodeproperties.h"
#include "text.h"

#include <algorithm>

namespace ZetoNodeMap {

static void fill(GenApi::NodeList_t& list, const std::vector<Node*>& nodes)
{
    list.clear();
    for (Node* node : nodes)
        list.push_back(node);
}

static void fill(GenApi::FeatureList_t& list, const std::vector<Node*>& nodes)
{
    list.clear();
    for (Node* node : nodes) {
        if (GenApi::IValue* value = node->value())
            list.push_back(value);
    }
}

// IBase and INode

GenApi::EAccessMode Node::GetAccessMode() const
{
    const Call call(m_map, this, "GetAccessMode");
    return effectiveAccessMode();
}

GenICam::gcstring Node::GetName(bool FullQualified) const
{
    const Call call(m_map, this, "GetName");
    if (!FullQualified)
        return toGenICam(name());
    return toGenICam((m_info.nameSpace == GenApi::Standard ? "Std::" : "Cust::") + name());
}

GenApi::ENameSpace Node::GetNameSpace() const
{
    const Call call(m_map, this, "GetNameSpace");
    return m_info.nameSpace;
}

GenApi::EVisibility Node::GetVisibility() const
{
    const Call call(m_map, this, "GetVisibility");
    return GenApi::Combine(m_info.visibility, m_imposedVisibility);
}

void Node::InvalidateNode()
{
    change("InvalidateNode", [this] { invalidate(); });
}

bool Node::IsCachable() const
{
    const Call call(m_map, this, "IsCachable");
    return GenApi::IsCacheable(m_info.cachingMode);
}

GenApi::EYesNo Node::IsAccessModeCacheable() const
{
    const Call call(m_map, this, "IsAccessModeCacheable");
    return m_accessModeCacheable ? GenApi::Yes : GenApi::No;
}

GenApi::ECachingMode Node::GetCachingMode() const
{
    const Call call(m_map, this, "GetCachingMode");
    return m_info.cachingMode;
}

int64_t Node::GetPollingTime() const
{
    const Call call(m_map, this, "GetPollingTime");
    return m_info.pollingTime;
}

GenICam::gcstring Node::GetToolTip() const
{
    const Call call(m_map, this, "GetToolTip");
    return toGenICam(m_info.toolTip);
}

GenICam::gcstring Node::GetDescription() const
{
    const Call call(m_map, this, "GetDescription");
    return toGenICam(m_info.description);
}

GenICam::gcstring Node::GetDisplayName() const
{
    const Call call(m_map, this, "GetDisplayName");
    return toGenICam(m_info.displayName.empty() ? name() : m_info.displayName);
}

GenICam::gcstring Node::GetDeviceName() const
{
    const Call call(m_map, this, "GetDeviceName");
    return toGenICam(m_map.m_deviceName);
}

static std::vector<Node*> withoutFirst(std::vector<Node*> nodes)
{
    nodes.erase(nodes.begin());
    return nodes;
}

void Node::GetChildren(GenApi::NodeList_t& Children, GenApi::ELinkType LinkType) const
{
    const Call call(m_map, this, "GetChildren");
    switch (LinkType) {
    case GenApi::ctParentNodes:
        return fill(Children, m_parents);
    case GenApi::ctReadingChildren:
        return fill(Children, m_children);
    case GenApi::ctInvalidatingChildren:
        return fill(Children, m_invalidators);
    case GenApi::ctDependingNodes:
        return fill(Children, withoutFirst(withDependents()));
    case GenApi::ctTerminalNodes: // every value ends in its own source
        return fill(Children, {const_cast<Node*>(this)});
    default:
        return fill(Children, {});
    }
}

void Node::GetParents(GenApi::NodeList_t& Parents) const
{
    const Call call(m_map, this, "GetParents");
    fill(Parents, m_parents);
}

GenApi::CallbackHandleType Node::RegisterCallback(GenApi::CNodeCallback* pCallback)
{
    if (!pCallback)
        throwInvalidArgument(name(), "no callback to register");
    const Call call(m_map, this, "RegisterCallback");
    const auto callback = std::make_shared<RegisteredCallback>(*pCallback);
    m_callbacks.push_back(callback);
    return callback->handle();
}

bool Node::DeregisterCallback(GenApi::CallbackHandleType hCallback)
{
    std::shared_ptr<RegisteredCallback> removed; // destroyed last, when the lock is released
    const Call call(m_map, this, "DeregisterCallback");
    const auto found = std::find_if(m_callbacks.begin(), m_callbacks.end(),
                                    [&](const auto& callback) { return callback->handle() == hCallback; });
    if (found == m_callbacks.end())
        return false;
    removed = std::move(*found);
    removed->deactivate();
    m_callbacks.erase(found);
    return true;
}

GenApi::INodeMap* Node::GetNodeMap() const
{
    const Call call(m_map, this, "GetNodeMap");
    return &m_map;
}

GenICam::gcstring Node::GetEventID() const
{
    const Call call(m_map, this, "GetEventID");
    return toGenICam(m_info.eventId);
}

bool Node::IsStreamable() const
{
    const Call call(m_map, this, "IsStreamable");
    return m_info.streamable;
}

void Node::GetPropertyNames(GenICam::gcstring_vector& PropertyNames) const
{
    const Call call(m_map, this, "GetPropertyNames");
    PropertyNames.clear();
    for (const NodeProperty& property : nodeProperties(m_info))
        PropertyNames.push_back(toGenICam(property.name));
}

bool Node::GetProperty(const GenICam::gcstring& PropertyName, GenICam::gcstring& ValueStr,
                       GenICam::gcstring& AttributeStr)
{
    const Call call(m_map, this, "GetProperty");
    for (const NodeProperty& property : nodeProperties(m_info)) {
        if (PropertyName == property.name.c_str()) {
            ValueStr = toGenICam(property.value);
            AttributeStr = GenICam::gcstring();
            return true;
        }
    }
    return false;
}

void Node::ImposeAccessMode(GenApi::EAccessMode ImposedAccessMode)
{
    const Call call(m_map, this, "ImposeAccessMode");
    m_imposedAccessMode = ImposedAccessMode;
    forgetAccessMode();
}

void Node::ImposeVisibility(GenApi::EVisibility ImposedVisibility)
{
    const Call call(m_map, this, "ImposeVisibility");
    m_imposedVisibility = ImposedVisibility;
}

GenApi::INode* Node::GetAlias() const
{
    const Call call(m_map, this, "GetAlias");
    return m_alias;
}

GenApi::INode* Node::GetCastAlias() const
{
    const Call call(m_map, this, "GetCastAlias");
    return m_castAlias;
}

GenICam::gcstring Node::GetDocuURL() const
{
    const Call call(m_map, this, "GetDocuURL");
    return toGenICam(m_info.docuUrl);
}

bool Node::IsDeprecated() const
{
    const Call call(m_map, this, "IsDeprecated");
    return m_info.deprecated;
}

GenApi::EInterfaceType Node::GetPrincipalInterfaceType() const
{
    const Call call(m_map, this, "GetPrincipalInterfaceType");
    return m_type;
}

bool Node::IsFeature() const
{
    const Call call(m_map, this, "IsFeature");
    return m_feature;
}

// ISelector

bool Node::IsSelector() const
{
    const Call call(m_map, this, "IsSelector");
    return !m_selected.empty();
}

void Node::GetSelectedFeatures(GenApi::FeatureList_t& List) const
{
    const Call call(m_map, this, "GetSelectedFeatures");
    fill(List, m_selected);
}

void Node::GetSelectingFeatures(GenApi::FeatureList_t& List) const
{
    const Call call(m_map, this, "GetSelectingFeatures");
    fill(List, m_selecting);
}

} // namespace ZetoNodeMap
