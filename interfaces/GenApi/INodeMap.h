#pragma once

#include <GenApi/INode.h>
#include <GenApi/Synch.h>

namespace GENAPI_NAMESPACE {

/// All nodes of one device. The map is destroyed by its creator through IDestroy and by nobody else, and says
/// nothing before that.
struct GENAPI_DECL_ABSTRACT INodeMap
{
    /// Puts all nodes into the empty list \a Nodes, in no particular order.
    virtual void GetNodes(NodeList_t& Nodes) const = 0;

    /// The node of this name, or null.
    virtual INode* GetNode(const GENICAM_NAMESPACE::gcstring& Name) const = 0;

    /// Drops everything that is cached and calls the callbacks.
    virtual void InvalidateNodes() const = 0;

    /// Connects the port node \a PortName with the device; for the library that makes the map.
    virtual bool Connect(IPort* pPort, const GENICAM_NAMESPACE::gcstring& PortName) const = 0;

    /// Connects the port node \c Device.
    virtual bool Connect(IPort* pPort) const = 0;

    /// The name of the device.
    virtual GENICAM_NAMESPACE::gcstring GetDeviceName() = 0;

    /// To be called now and then with the ms since the last call: invalidates each node whose polling time is
    /// over and calls its callbacks on this thread.
    virtual void Poll(int64_t ElapsedTime) = 0;

    /// The lock that every call on a node takes. Hold it to make several calls consistent.
    virtual CLock& GetLock() const = 0;

    /// The number of all nodes.
    virtual uint64_t GetNumNodes() const = 0;

protected:
    ~INodeMap() = default;
};

} // namespace GENAPI_NAMESPACE
