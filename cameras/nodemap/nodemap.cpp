#include "nodemap.h"

#include "change.h"
#include "errors.h"
#include "node.h"
#include "text.h"

#include <utility>

namespace ZetoNodeMap {

NodeMap::NodeMap(std::string deviceName)
    : m_deviceName(std::move(deviceName))
{
}

NodeMap::~NodeMap() = default;

Node* NodeMap::find(std::string_view name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

Node& NodeMap::node(std::string_view name) const
{
    Node* node = find(name);
    if (!node)
        throwLogicalError(std::string(name), "no such node");
    return *node;
}

bool NodeMap::add(std::unique_ptr<Node> node)
{
    const bool isNew = m_byName.emplace(node->name(), node.get()).second;
    if (isNew)
        m_nodes.push_back(std::move(node));
    return isNew;
}

CallbackList NodeMap::deliverInsideLock() const
{
    if (m_callbacksSuppressed)
        return {};
    const int depth = std::exchange(m_callDepth, 0); // what a callback calls is a client's call again
    try {
        CallbackList delivered = m_queue.deliverInsideLock();
        m_callDepth = depth;
        return delivered;
    } catch (...) {
        m_callDepth = depth;
        throw;
    }
}

// The camera side

int64_t NodeMap::integer(std::string_view name) const
{
    const Call call(*this, nullptr, nullptr);
    return node(name).integerValue();
}

double NodeMap::number(std::string_view name) const
{
    const Call call(*this, nullptr, nullptr);
    return node(name).floatValue();
}

std::string NodeMap::text(std::string_view name) const
{
    const Call call(*this, nullptr, nullptr);
    return node(name).textValue();
}

void NodeMap::assignInteger(std::string_view name, int64_t value)
{
    change(nullptr, nullptr, [&] { node(name).assign(value); });
}

void NodeMap::assignNumber(std::string_view name, double value)
{
    change(nullptr, nullptr, [&] { node(name).assign(value); });
}

void NodeMap::assignText(std::string_view name, const std::string& value)
{
    change(nullptr, nullptr, [&] { node(name).assign(value); });
}

void NodeMap::setAccessMode(std::string_view name, GenApi::EAccessMode mode)
{
    change(nullptr, nullptr, [&] { node(name).setDeclaredAccessMode(mode); });
}

void NodeMap::setAccessHook(AccessHook hook)
{
    const Call call(*this, nullptr, nullptr);
    m_hook = std::move(hook);
}

// INodeMap

void NodeMap::GetNodes(GenApi::NodeList_t& Nodes) const
{
    const Call call(*this, nullptr, "GetNodes");
    Nodes.clear();
    Nodes.reserve(m_nodes.size());
    for (const auto& node : m_nodes)
        Nodes.push_back(node.get());
}

GenApi::INode* NodeMap::GetNode(const GenICam::gcstring& Name) const
{
    const Call call(*this, nullptr, "GetNode");
    return find(std::string_view(Name.c_str(), Name.size()));
}

void NodeMap::InvalidateNodes() const
{
    change(nullptr, "InvalidateNodes", [this] {
        for (const auto& node : m_nodes)
            node->drop();
    });
}

/// The nodes have their own sources; there is no port to connect.
bool NodeMap::Connect(GenApi::IPort*, const GenICam::gcstring&) const
{
    const Call call(*this, nullptr, "Connect");
    return false;
}

bool NodeMap::Connect(GenApi::IPort*) const
{
    const Call call(*this, nullptr, "Connect");
    return false;
}

GenICam::gcstring NodeMap::GetDeviceName()
{
    const Call call(*this, nullptr, "GetDeviceName");
    return toGenICam(m_deviceName);
}

void NodeMap::Poll(int64_t ElapsedTime)
{
    change(nullptr, "Poll", [&] { advance(ElapsedTime); });
}

void NodeMap::advance(int64_t elapsed)
{
    for (PolledNode& polled : m_polled) {
        if (elapsed < polled.interval - polled.elapsed) {
            polled.elapsed += elapsed;
            continue;
        }
        polled.elapsed = 0;
        polled.node->poll();
    }
}

GenApi::CLock& NodeMap::GetLock() const
{
    return m_lock;
}

uint64_t NodeMap::GetNumNodes() const
{
    const Call call(*this, nullptr, "GetNumNodes");
    return m_nodes.size();
}

#if ZETO_GENAPI_VERSION >= 301
bool NodeMap::ParseSwissKnifes(GenICam::gcstring_vector*) const
{
    return true;
}
#endif

#if ZETO_GENAPI_VERSION >= 302
bool NodeMap::Connect(GenApi::IPortStacked*, const GenICam::gcstring&)
{
    return false;
}

bool NodeMap::Connect(GenApi::IPortStacked*)
{
    return false;
}

GenApi::CNodeWriteConcatenator* NodeMap::NewNodeWriteConcatenator() const
{
    throwLogicalError(m_deviceName, "does not bundle writes");
}

bool NodeMap::ConcatenatedWrite(GenApi::CNodeWriteConcatenator*, bool, GenICam::gcstring_vector*)
{
    throwLogicalError(m_deviceName, "does not bundle writes");
}
#endif

#if ZETO_GENAPI_VERSION >= 304
void NodeMap::SetSuppressCallbackMode(GenApi::ECallbackSuppressMode mode)
{
    const Call call(*this, nullptr, "SetSuppressCallbackMode");
    m_callbacksSuppressed = mode != GenApi::csmOff;
}
#endif

} // namespace ZetoNodeMap
