#include "recordingdevice.h"

#include <algorithm>

RecordingDevice::RecordingDevice(ZetoCam::Device& inner)
    : m_inner(inner)
    , m_array(*inner.GetParameters(nullptr))
{
}

ZetoGenParam::Array* RecordingDevice::GetParameters(int32_t* error)
{
    if (error)
        *error = ZetoCam::Success;
    return this;
}

int32_t RecordingDevice::RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context)
{
    return m_inner.RegisterEvent(eventId, callback, context);
}

int32_t RecordingDevice::UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback,
                                         void* context)
{
    return m_inner.UnregisterEvent(eventId, callback, context);
}

ZetoGenParam::Array& RecordingDevice::recorded(const char* name)
{
    if (std::find(m_names.begin(), m_names.end(), name) == m_names.end())
        m_names.emplace_back(name);
    return m_array;
}

ZetoGenParam::Param* RecordingDevice::GetParam(const char* name, int32_t* error)
{
    return recorded(name).GetParam(name, error);
}

ZetoGenParam::Enum* RecordingDevice::GetEnum(const char* name, int32_t* error)
{
    return recorded(name).GetEnum(name, error);
}

ZetoGenParam::Int* RecordingDevice::GetInt(const char* name, int32_t* error)
{
    return recorded(name).GetInt(name, error);
}

ZetoGenParam::Float* RecordingDevice::GetFloat(const char* name, int32_t* error)
{
    return recorded(name).GetFloat(name, error);
}

ZetoGenParam::Boolean* RecordingDevice::GetBoolean(const char* name, int32_t* error)
{
    return recorded(name).GetBoolean(name, error);
}

ZetoGenParam::String* RecordingDevice::GetString(const char* name, int32_t* error)
{
    return recorded(name).GetString(name, error);
}

ZetoGenParam::Command* RecordingDevice::GetCommand(const char* name, int32_t* error)
{
    return recorded(name).GetCommand(name, error);
}

GENAPI_NAMESPACE::INodeMap* RecordingDevice::GetNodeMap(uint32_t index)
{
    return m_array.GetNodeMap(index);
}
