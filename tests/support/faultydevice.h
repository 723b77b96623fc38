#pragma once

#include "paramfaults.h"

#include <ZetoCameraApi.h>
#include <ZetoGenParam.h>

#include <memory>
#include <unordered_map>

/// The parameters of \a inner, each call passing through \a faults.
class FaultyArray final : public ZetoGenParam::Array
{
public:
    FaultyArray(ZetoGenParam::Array& inner, ParamFaults& faults);
    ~FaultyArray() override;

    ZetoGenParam::Param* GetParam(const char* name, int32_t* error) override;
    ZetoGenParam::Enum* GetEnum(const char* name, int32_t* error) override;
    ZetoGenParam::Int* GetInt(const char* name, int32_t* error) override;
    ZetoGenParam::Float* GetFloat(const char* name, int32_t* error) override;
    ZetoGenParam::Boolean* GetBoolean(const char* name, int32_t* error) override;
    ZetoGenParam::String* GetString(const char* name, int32_t* error) override;
    ZetoGenParam::Command* GetCommand(const char* name, int32_t* error) override;
    GENAPI_NAMESPACE::INodeMap* GetNodeMap(uint32_t index) override;

    /// The faulty parameter around \a inner, made once; null for null.
    template <typename Interface>
    Interface* around(Interface* inner);

private:
    ZetoGenParam::Param* aroundAny(ZetoGenParam::Param* inner);

    ZetoGenParam::Array& m_inner;
    ParamFaults& m_faults;
    std::unordered_map<ZetoGenParam::Param*, std::unique_ptr<ZetoGenParam::Param>> m_params;
};

/// The open camera \a inner with parameters that fail.
class FaultyDevice final : public ZetoCam::Device
{
public:
    explicit FaultyDevice(ZetoCam::Device& inner);

    ParamFaults& faults() { return m_faults; }

    /// Releases nothing: the inner device is its owner's.
    void Release() override {}
    ZetoGenParam::Array* GetParameters(int32_t* error) override;
    int32_t RegisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;
    int32_t UnregisterEvent(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context) override;

private:
    ZetoCam::Device& m_inner;
    ParamFaults m_faults;
    FaultyArray m_array;
};
