#pragma once

#include "listenerlist.h"

#include <ZetoGenParam.h>

#include <GenICam.h>

#include <string>

namespace ZetoGenParam {

/// What all parameters over a node have in common. Alone it stands for a node of a kind that has no class of
/// its own. The node must outlive it.
class NodeParam : public virtual Param
{
public:
    NodeParam(GENAPI_NAMESPACE::INode& node, ParamType type);
    ~NodeParam() override;
    NodeParam(const NodeParam&) = delete;
    NodeParam& operator=(const NodeParam&) = delete;

    int32_t GetType() override;
    const char* GetName() override;
    bool IsAvailable() override;
    bool IsWritable() override;
    bool IsReadable() override;
    int32_t RegisterEventSink(ParamEventSink* sink) override;
    int32_t UnregisterEventSink(ParamEventSink* sink) override;

protected:
    /// The lock that serves the calls on a node map one after the other; a thread may take it again.
    GENAPI_NAMESPACE::CLock& lock() const { return m_lock; }

private:
    void onNodeChanged(GENAPI_NAMESPACE::INode*);
    GENAPI_NAMESPACE::EAccessMode accessMode() const;

    GENAPI_NAMESPACE::INode& m_node;
    GENAPI_NAMESPACE::CLock& m_lock;
    const ParamType m_type;
    const std::string m_name;
    ListenerList<ParamEventSink*> m_sinks; ///< guarded by lock()
    /// 0 until the first sink comes. It stays registered afterwards: a sink may leave in the midst of a
    /// callback, where GenApi does not allow a callback to be removed.
    GENAPI_NAMESPACE::CallbackHandleType m_callback = 0;
};

} // namespace ZetoGenParam
