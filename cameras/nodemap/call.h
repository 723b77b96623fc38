#pragma once

#include "nodemap.h"

namespace ZetoNodeMap {

/// Counts how deep calls are nested.
class CallDepth
{
public:
    explicit CallDepth(int& depth)
        : m_depth(depth)
    {
        ++m_depth;
    }
    ~CallDepth() { --m_depth; }
    CallDepth(const CallDepth&) = delete;
    CallDepth& operator=(const CallDepth&) = delete;

private:
    int& m_depth;
};

/// The entry of every function of the GenApi interface: holds the node map's lock for the scope and runs the
/// access hook, unless the call comes from another node or, with a null name, from the camera side.
class Call
{
public:
    Call(const NodeMap& map, const GenApi::INode* node, const char* name)
        : m_lock(map.m_lock)
        , m_depth(map.m_callDepth)
    {
        if (map.m_hook && name && map.m_callDepth == 1)
            map.m_hook(name, node);
    }

private:
    GenApi::AutoLock m_lock;
    CallDepth m_depth;
};

} // namespace ZetoNodeMap
