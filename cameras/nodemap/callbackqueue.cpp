#include "callbackqueue.h"

#include "node.h"

#include <algorithm>

namespace ZetoNodeMap {

CallbackQueue::Change::Change(CallbackQueue& queue)
    : m_queue(queue)
{
    ++m_queue.m_depth;
}

CallbackQueue::Change::~Change()
{
    if (--m_queue.m_depth == 0)
        m_queue.clear();
}

void CallbackQueue::add(Node& node)
{
    if (node.setQueued(true))
        m_nodes.push_back(&node);
}

void CallbackQueue::clear()
{
    for (Node* node : m_nodes)
        node->setQueued(false);
    m_nodes.clear();
}

CallbackList CallbackQueue::takeCallbacks()
{
    CallbackList callbacks;
    for (const Node* node : m_nodes)
        callbacks.insert(callbacks.end(), node->callbacks().begin(), node->callbacks().end());
    clear();
    return callbacks;
}

CallbackList CallbackQueue::deliverInsideLock()
{
    CallbackList delivered = takeCallbacks();
    for (size_t next = 0; next < delivered.size();) {
        for (; next < delivered.size(); ++next)
            (*delivered[next])(GenApi::cbPostInsideLock);
        const CallbackList more = takeCallbacks();
        delivered.insert(delivered.end(), more.begin(), more.end());
    }
    return delivered;
}

} // namespace ZetoNodeMap
