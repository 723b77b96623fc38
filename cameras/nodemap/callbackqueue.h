#pragma once

#include "registeredcallback.h"

namespace ZetoNodeMap {

class Node;

/// Collects the nodes that a change touches and delivers their callbacks once the outermost change is over.
/// Used with the node map's lock held.
class CallbackQueue
{
public:
    /// One change, possibly within another one. The end of the outermost drops what was not delivered, so
    /// a change that throws calls nobody back.
    class Change
    {
    public:
        explicit Change(CallbackQueue& queue);
        ~Change();
        Change(const Change&) = delete;
        Change& operator=(const Change&) = delete;

        bool isOutermost() const { return m_queue.m_depth == 1; }

    private:
        CallbackQueue& m_queue;
    };

    /// Has the callbacks of \a node called, once however often it is added.
    void add(Node& node);

    /// Calls the inside-lock phase of everything added, also of what the callbacks add by changing nodes.
    /// \return the callbacks whose outside-lock phase is to be called when the lock is released.
    CallbackList deliverInsideLock();

private:
    CallbackList takeCallbacks();
    void clear();

    int m_depth = 0;
    std::vector<Node*> m_nodes;
};

} // namespace ZetoNodeMap
