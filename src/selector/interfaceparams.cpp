#include "interfaceparams.h"

#include "camerasnapshot.h"

#include <ZetoGenParam.h>

#include <algorithm>

namespace {

ZetoGenParam::Array* parametersOf(ZetoCam::Interface& owner)
{
    int32_t error = ZetoCam::Success;
    ZetoGenParam::Array* const array = owner.GetParameters(&error);
    return error == ZetoCam::Success ? array : nullptr;
}

bool select(ZetoGenParam::Array& array, ZetoCam::Interface& owner, ZetoCam::DeviceInfo& camera)
{
    // A search on another thread may have moved it since it was shown.
    const std::vector<ZetoCam::DeviceInfo*> listed = camerasListedBy(owner);
    const auto found = std::find(listed.begin(), listed.end(), &camera);
    ZetoGenParam::Int* const selector = array.GetInt("DeviceSelector", nullptr);
    return selector && found != listed.end() &&
           selector->SetValue(found - listed.begin()) == ZetoCam::Success;
}

} // namespace

InterfaceParams::InterfaceParams(ZetoCam::Interface& owner)
    : m_array(parametersOf(owner))
{
}

InterfaceParams InterfaceParams::about(ZetoCam::DeviceInfo& camera)
{
    ZetoCam::Interface* const owner = camera.GetInterface();
    ZetoGenParam::Array* const array = owner ? parametersOf(*owner) : nullptr;
    return InterfaceParams(array && select(*array, *owner, camera) ? array : nullptr);
}

std::optional<qint64> InterfaceParams::integer(const char* name) const
{
    ZetoGenParam::Int* const param = m_array ? m_array->GetInt(name, nullptr) : nullptr;
    if (!param)
        return std::nullopt;
    int32_t error = ZetoCam::Success;
    const qint64 value = param->GetValue(&error);
    return error == ZetoCam::Success ? std::make_optional(value) : std::nullopt;
}

std::optional<QString> InterfaceParams::text(const char* name) const
{
    ZetoGenParam::String* const param = m_array ? m_array->GetString(name, nullptr) : nullptr;
    if (!param)
        return std::nullopt;
    int32_t error = ZetoCam::Success;
    const QString value = QString::fromUtf8(param->GetValue(&error));
    return error == ZetoCam::Success ? std::make_optional(value) : std::nullopt;
}
