#pragma once

#include "change.h"
#include "node.h"

namespace ZetoNodeMap {

template <class Action>
void Node::change(const char* call, Action action) const
{
    m_map.change(this, call, std::move(action));
}

} // namespace ZetoNodeMap
