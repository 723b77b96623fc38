#pragma once

#include "nodedeclaration.h"
#include "registeredcallback.h"

#include <string>
#include <vector>

namespace ZetoNodeMap {

class NodeMap;

/// What all nodes have in common. The functions named in lower case are the node's inside, for sources and
/// for the nodes of the same map: they expect the lock to be held and do not run the access hook.
class Node : public GenApi::INode, public GenApi::ISelector
{
public:
    ~Node() override;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    NodeMap& map() const { return m_map; }
    const std::string& name() const { return m_info.name; }
    const NodeInfo& info() const { return m_info; }

    /// The node that this one is a part of (the enumeration of an entry), else null.
    virtual Node* owner() const { return nullptr; }

    /// The value interface, null for a node without one (a port).
    virtual GenApi::IValue* value() { return nullptr; }

    // The value as the camera side sees it, see NodeMap. Without such a value: LogicalErrorException.
    virtual int64_t integerValue() const;
    virtual double floatValue() const;
    virtual std::string textValue() const;
    virtual void assign(int64_t value);
    virtual void assign(double value);
    virtual void assign(const std::string& value);

    /// The members of a category, the entries of an enumeration and what limits and conditions read.
    const std::vector<Node*>& children() const { return m_children; }

    bool hasSelectors() const { return !m_selectors.empty(); }

    /// The values of all selectors that decide which instance of the feature is meant, selectors of selectors
    /// included, in the order of their declaration.
    std::vector<int64_t> selectorValues() const;

    GenApi::EAccessMode effectiveAccessMode() const;
    void setDeclaredAccessMode(GenApi::EAccessMode mode);

    /// Drops what is cached here and has it call back.
    void drop();
    /// Drops what is cached here and in everything that depends on it and has all of it call back.
    void invalidate();

    void forgetAccessMode() { m_cachedAccessMode = GenApi::_UndefinedAccesMode; }

    /// What happens when the polling time is over.
    virtual void poll() { invalidate(); }

    const CallbackList& callbacks() const { return m_callbacks; }
    /// \return whether that was a change
    bool setQueued(bool queued);

    // IBase
    GenApi::EAccessMode GetAccessMode() const override;

    // INode
    GenICam::gcstring GetName(bool FullQualified = false) const override;
    GenApi::ENameSpace GetNameSpace() const override;
    GenApi::EVisibility GetVisibility() const override;
    void InvalidateNode() override;
    bool IsCachable() const override;
    GenApi::EYesNo IsAccessModeCacheable() const override;
    GenApi::ECachingMode GetCachingMode() const override;
    int64_t GetPollingTime() const override;
    GenICam::gcstring GetToolTip() const override;
    GenICam::gcstring GetDescription() const override;
    GenICam::gcstring GetDisplayName() const override;
    GenICam::gcstring GetDeviceName() const override;
    void GetChildren(GenApi::NodeList_t& Children,
                     GenApi::ELinkType LinkType = GenApi::ctReadingChildren) const override;
    void GetParents(GenApi::NodeList_t& Parents) const override;
    GenApi::CallbackHandleType RegisterCallback(GenApi::CNodeCallback* pCallback) override;
    bool DeregisterCallback(GenApi::CallbackHandleType hCallback) override;
    GenApi::INodeMap* GetNodeMap() const override;
    GenICam::gcstring GetEventID() const override;
    bool IsStreamable() const override;
    void GetPropertyNames(GenICam::gcstring_vector& PropertyNames) const override;
    bool GetProperty(const GenICam::gcstring& PropertyName, GenICam::gcstring& ValueStr,
                     GenICam::gcstring& AttributeStr) override;
    void ImposeAccessMode(GenApi::EAccessMode ImposedAccessMode) override;
    void ImposeVisibility(GenApi::EVisibility ImposedVisibility) override;
    GenApi::INode* GetAlias() const override;
    GenApi::INode* GetCastAlias() const override;
    GenICam::gcstring GetDocuURL() const override;
    bool IsDeprecated() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override;
    bool IsFeature() const override;

    // ISelector
    bool IsSelector() const override;
    void GetSelectedFeatures(GenApi::FeatureList_t& List) const override;
    void GetSelectingFeatures(GenApi::FeatureList_t& List) const override;

protected:
    Node(NodeMap& map, NodeDeclaration&& declaration, GenApi::EInterfaceType type);

    /// The mode that the source of the value grants.
    virtual GenApi::EAccessMode sourceAccessMode() const { return GenApi::RW; }
    virtual bool isSourceAccessModeCacheable() const { return true; }
    virtual void dropCache() {}

    void requireReadable() const;
    /// The check on entry of a write: with \a verify always, without it since GenApi 3.4.
    void requireWritable(bool verify) const;
    void requireImplemented() const;
    /// What limits and increments ask for; GenApi 3.0 does not.
    void requireAvailableLimits() const;

    /// The caching mode of a node that does not state one.
    void setDefaultCachingMode(GenApi::ECachingMode mode);

    /// Runs \a action, which changes this node, as the function \a call of the GenApi interface.
    template <class Action>
    void change(const char* call, Action action) const;

private:
    friend class NodeLinker;

    /// This node and everything that depends on it, each once, nearest first.
    std::vector<Node*> withDependents() const;
    [[noreturn]] void throwNoSuchValue(const char* kind) const;

    NodeMap& m_map;
    NodeInfo m_info;
    AccessRules m_access;
    GenApi::EInterfaceType m_type;
    GenApi::EAccessMode m_imposedAccessMode = GenApi::RW;
    GenApi::EVisibility m_imposedVisibility = GenApi::Beginner;
    mutable GenApi::EAccessMode m_cachedAccessMode = GenApi::_UndefinedAccesMode;

    std::vector<Node*> m_children;     // read for value, limits and conditions; members, entries
    std::vector<Node*> m_invalidators; // named as such
    std::vector<Node*> m_dependents;   // to be invalidated with this node
    std::vector<Node*> m_parents;
    std::vector<Node*> m_selected;
    std::vector<Node*> m_selecting;
    std::vector<Node*> m_selectors; // selecting, and selecting those
    Node* m_alias = nullptr;
    Node* m_castAlias = nullptr;

    CallbackList m_callbacks;
    unsigned m_traversal = 0;
    bool m_queued = false;
    bool m_feature = false;
    bool m_accessModeCacheable = false;
};

} // namespace ZetoNodeMap
