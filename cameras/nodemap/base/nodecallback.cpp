#include <GenApi/NodeCallback.h>

namespace GENAPI_NAMESPACE {

void Deregister(CallbackHandleType pCallbackInfo)
{
    auto* const callback = reinterpret_cast<CNodeCallback*>(pCallbackInfo);
    callback->GetNode()->DeregisterCallback(pCallbackInfo);
}

} // namespace GENAPI_NAMESPACE
