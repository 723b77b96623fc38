#pragma once

#include "callbackqueue.h"
#include "genapiversion.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ZetoNodeMap {

class Node;

/// Runs at the entry of every function that a client calls through the GenApi interface of a node map and
/// its nodes (except GetLock()), with the lock held: \a call is the function's name, \a node null for the
/// map's own functions. What it throws leaves the client's call; what it waits, the client waits.
using AccessHook = std::function<void(const char* call, const GenApi::INode* node)>;

/// A GenApi node map in memory, made by NodeMapBuilder. Its nodes get their values from sources (Source), by
/// default from memory.
///
/// Ownership: whoever built it destroys it, and with it its nodes and their callbacks; there is no IDestroy.
/// Thread: the GenApi functions and the functions of the camera side below may be called from any thread; all
/// take the one recursive lock of the map. Destroy it when no other thread uses it.
class NodeMap : public GenApi::INodeMap
{
public:
    virtual ~NodeMap();
    NodeMap(const NodeMap&) = delete;
    NodeMap& operator=(const NodeMap&) = delete;

    // The camera side: no access checks, no access hook. An unknown name or a node without such a value
    // throws LogicalErrorException.

    /// The value of an integer, enumeration or boolean; of a float the nearest integer.
    int64_t integer(std::string_view name) const;
    /// The value of a float or of anything that integer() takes.
    double number(std::string_view name) const;
    /// The value of a string, the symbolic of an enumeration's value or the text of anything else.
    std::string text(std::string_view name) const;

    /// Changes a value as the camera does by itself, without limits and access checks, and calls back.
    template <class Value>
    void assign(std::string_view name, const Value& value)
    {
        if constexpr (std::is_integral_v<Value>)
            assignInteger(name, value);
        else if constexpr (std::is_floating_point_v<Value>)
            assignNumber(name, value);
        else
            assignText(name, value);
    }

    /// Changes the mode that the node was declared with; NA and NI come and go this way. Calls back.
    void setAccessMode(std::string_view name, GenApi::EAccessMode mode);

    /// The place where tests and simulators interpose: counting, slow access, a camera that dies. An empty
    /// function removes the hook. Not to be called by the hook itself.
    void setAccessHook(AccessHook hook);

    /// \return null if there is none
    Node* find(std::string_view name) const;

    // INodeMap
    void GetNodes(GenApi::NodeList_t& Nodes) const override;
    GenApi::INode* GetNode(const GenICam::gcstring& Name) const override;
    void InvalidateNodes() const override;
    bool Connect(GenApi::IPort* pPort, const GenICam::gcstring& PortName) const override;
    bool Connect(GenApi::IPort* pPort) const override;
#if ZETO_GENAPI_VERSION >= 302
    bool Connect(GenApi::IPortStacked* pPort, const GenICam::gcstring& PortName) override;
    bool Connect(GenApi::IPortStacked* pPort) override;
#endif
    GenICam::gcstring GetDeviceName() override;
    void Poll(int64_t ElapsedTime) override;
    GenApi::CLock& GetLock() const override;
    uint64_t GetNumNodes() const override;
#if ZETO_GENAPI_VERSION >= 301
    bool ParseSwissKnifes(GenICam::gcstring_vector* pErrorList = nullptr) const override;
#endif
#if ZETO_GENAPI_VERSION >= 302
    GenApi::CNodeWriteConcatenator* NewNodeWriteConcatenator() const override;
    bool ConcatenatedWrite(GenApi::CNodeWriteConcatenator*, bool featureStreaming = true,
                           GenICam::gcstring_vector* pErrorList = nullptr) override;
#endif
#if ZETO_GENAPI_VERSION >= 304
    void SetSuppressCallbackMode(GenApi::ECallbackSuppressMode mode) override;
#endif

private:
    friend class Call;
    friend class Node;
    friend class NodeLinker;
    friend class NodeMapBuilder;

    struct PolledNode
    {
        Node* node;
        int64_t interval; // ms
        int64_t elapsed;  // ms
    };

    explicit NodeMap(std::string deviceName);

    Node& node(std::string_view name) const;
    void assignInteger(std::string_view name, int64_t value);
    void assignNumber(std::string_view name, double value);
    void assignText(std::string_view name, const std::string& value);

    /// \return false if there is a node of that name already
    bool add(std::unique_ptr<Node> node);
    void advance(int64_t elapsed);

    /// Runs \a action, which changes nodes, under the lock and calls back when the outermost one is over.
    /// \a call is the function of the GenApi interface that does it, null for the camera side.
    template <class Action>
    void change(const GenApi::INode* node, const char* call, Action action) const;
    CallbackList deliverInsideLock() const;

    std::string m_deviceName;
    mutable GenApi::CLock m_lock;
    mutable int m_callDepth = 0;
    AccessHook m_hook;
    mutable CallbackQueue m_queue;
    mutable unsigned m_traversal = 0;
    std::vector<std::unique_ptr<Node>> m_nodes;
    std::unordered_map<std::string_view, Node*> m_byName;
    std::vector<PolledNode> m_polled;
    bool m_callbacksSuppressed = false;
};

} // namespace ZetoNodeMap
