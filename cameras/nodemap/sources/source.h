#pragma once

#include "genapiversion.h"

namespace ZetoNodeMap {

class Node;

/// Where a node gets its value from: memory, a function, a camera. One source serves one node.
///
/// Every call comes with the node map's lock held, on the thread of the client that asked. A source reports a
/// failure by an exception of GenICam; it leaves the client's call unchanged. The node has checked access,
/// limits and increment before it writes (unless the client asked it not to) and does the caching.
///
/// A source whose value changes by itself calls `node.InvalidateNode()` when it does, or declares a polling
/// time.
class Source
{
public:
    virtual ~Source();
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    /// Tells the source its node, once, when the node map is built.
    virtual void attach(Node& node);

    /// What the source itself allows; the access rules of the node are applied on top.
    virtual GenApi::EAccessMode accessMode();

    /// Whether accessMode() changes only when the node is invalidated.
    virtual bool isAccessModeCacheable() const;

protected:
    Source() = default;
};

/// A source of values of type \a T.
template <class T>
class ValueSource : public Source
{
public:
    using Value = T;

    virtual Value read() = 0;

    /// Writes what a client set.
    virtual void write(const Value& value) = 0;

    /// Takes over what the camera side set (NodeMap::assign()): no checks, no behaviour of a written value.
    virtual void store(const Value& value) { write(value); }

    /// The caching mode of a node that does not state one. What can change behind the node's back must not
    /// be cached unless whoever declares the node knows better.
    virtual GenApi::ECachingMode defaultCachingMode() const { return GenApi::NoCache; }
};

} // namespace ZetoNodeMap
