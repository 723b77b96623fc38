#include "cameraroute.h"

#include "gcerror.h"
#include "nodevalues.h"

#include <genparamerror.h>

namespace ZetoAravis {

GObjectPointer<ArvDevice> openDevice(const std::function<ArvDevice*(GError**)>& open)
{
    const std::lock_guard<std::mutex> lock(NodeValues::parserMutex());
    GError* raw = nullptr;
    GObjectPointer<ArvDevice> device(open(&raw));
    const std::unique_ptr<GError, GErrorFree> error(raw);
    if (error && g_error_matches(raw, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_GENICAM_NOT_FOUND))
        throw ZetoGenParam::CodeException(ZetoCam::ErrorGenICamTree);
    if (error || !device)
        throw ZetoGenParam::CodeException(ZetoCam::ErrorNoDevice);
    return device;
}

} // namespace ZetoAravis
