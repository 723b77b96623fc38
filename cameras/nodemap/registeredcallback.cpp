#include "registeredcallback.h"

namespace ZetoNodeMap {

RegisteredCallback::RegisteredCallback(GenApi::CNodeCallback& callback)
    : m_callback(callback)
{
}

RegisteredCallback::~RegisteredCallback()
{
    m_callback.Destroy();
}

GenApi::CallbackHandleType RegisteredCallback::handle() const
{
    return reinterpret_cast<GenApi::CallbackHandleType>(&m_callback);
}

void RegisteredCallback::deactivate()
{
    m_active = false;
}

void RegisteredCallback::operator()(GenApi::ECallbackType phase) const
{
    if (m_active)
        m_callback(phase);
}

} // namespace ZetoNodeMap
