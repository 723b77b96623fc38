#include "nodeparam.h"

#include "genparamerror.h"

using namespace GENAPI_NAMESPACE;

namespace ZetoGenParam {

NodeParam::NodeParam(INode& node, ParamType type)
    : m_node(node)
    , m_lock(node.GetNodeMap()->GetLock())
    , m_type(type)
    , m_name(node.GetName().c_str())
{
}

NodeParam::~NodeParam()
{
    if (m_callback)
        guardedCall([this] { m_node.DeregisterCallback(m_callback); });
}

int32_t NodeParam::GetType()
{
    return m_type;
}

const char* NodeParam::GetName()
{
    return m_name.c_str();
}

bool NodeParam::IsAvailable()
{
    return GENAPI_NAMESPACE::IsAvailable(accessMode());
}

bool NodeParam::IsWritable()
{
    return GENAPI_NAMESPACE::IsWritable(accessMode());
}

bool NodeParam::IsReadable()
{
    return GENAPI_NAMESPACE::IsReadable(accessMode());
}

int32_t NodeParam::RegisterEventSink(ParamEventSink* sink)
{
    if (!sink)
        return ZetoCam::ErrorInvalidArgument;
    return guardedCall([this, sink] {
        const AutoLock guard(lock());
        if (!m_callback)
            m_callback = Register(&m_node, *this, &NodeParam::onNodeChanged, cbPostInsideLock);
        m_sinks.add(sink);
    });
}

int32_t NodeParam::UnregisterEventSink(ParamEventSink* sink)
{
    return guardedCall([this, sink] {
        const AutoLock guard(lock());
        m_sinks.remove(sink);
    });
}

void NodeParam::onNodeChanged(INode*)
{
    guardedCall([this] { m_sinks.notify([this](ParamEventSink* sink) { sink->OnParamChanged(this); }); });
}

EAccessMode NodeParam::accessMode() const
{
    return guardedGet(nullptr, NA, [this] { return m_node.GetAccessMode(); });
}

} // namespace ZetoGenParam
