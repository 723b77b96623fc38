#pragma once

#include <ZetoCameraApi.h>
#include <ZetoGenParam.h>

#include <string>
#include <vector>

/// A camera that keeps the names of the features that were asked for.
class RecordingDevice final : public ZetoCam::Device, public ZetoGenParam::Array
{
public:
    explicit RecordingDevice(ZetoCam::Device& inner);

    const std::vector<std::string>& names() const { return m_names; }

    void Release() override {}
    ZetoGenParam::Array* GetParameters(int32_t* error) override;
    int32_t RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;
    int32_t UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;

    ZetoGenParam::Param* GetParam(const char* name, int32_t* error) override;
    ZetoGenParam::Enum* GetEnum(const char* name, int32_t* error) override;
    ZetoGenParam::Int* GetInt(const char* name, int32_t* error) override;
    ZetoGenParam::Float* GetFloat(const char* name, int32_t* error) override;
    ZetoGenParam::Boolean* GetBoolean(const char* name, int32_t* error) override;
    ZetoGenParam::String* GetString(const char* name, int32_t* error) override;
    ZetoGenParam::Command* GetCommand(const char* name, int32_t* error) override;
    GENAPI_NAMESPACE::INodeMap* GetNodeMap(uint32_t index) override;

private:
    ZetoGenParam::Array& recorded(const char* name);

    ZetoCam::Device& m_inner;
    ZetoGenParam::Array& m_array;
    std::vector<std::string> m_names; ///< each once, in the order of the first call
};
