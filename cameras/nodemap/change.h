#pragma once

#include "call.h"

namespace ZetoNodeMap {

template <class Action>
void NodeMap::change(const GenApi::INode* node, const char* call, Action action) const
{
    CallbackList delivered;
    {
        const Call entry(*this, node, call);
        const CallbackQueue::Change change(m_queue);
        action();
        if (change.isOutermost())
            delivered = deliverInsideLock();
    }
    for (const auto& callback : delivered)
        (*callback)(GenApi::cbPostOutsideLock);
}

} // namespace ZetoNodeMap
