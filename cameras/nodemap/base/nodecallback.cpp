#include <GenApi/NodeCallback.h>

namespace GENAPI_NAMESPACE {

void Deregister(CallbackHandleType pCallbackInfo)
{
    // A handle is the address of its callback: the interface hands it out as a number.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    auto* const callback = reinterpret_cast<CNodeCallback*>(pCallbackInfo);
    callback->GetNode()->DeregisterCallback(pCallbackInfo);
}

} // namespace GENAPI_NAMESPACE
