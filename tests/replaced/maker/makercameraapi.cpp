#include <ZetoCameraApi.h>
#include <ZetoGenParam.h>

#include <cstring>

namespace {

using namespace ZetoCam;

/// A list of one element that lives elsewhere.
template <typename T>
class OneElement : public List<T>
{
public:
    explicit OneElement(T* element)
        : m_element(element)
    {
    }
    void Release() override { delete this; }
    uint64_t GetCount() override { return 1; }
    T* GetFirst() override { return m_element; }
    T* GetNext() override { return nullptr; }

private:
    T* m_element;
};

class PulsePeriod : public ZetoGenParam::Int
{
public:
    int32_t GetType() override { return ZetoGenParam::TypeInt; }
    const char* GetName() override { return "PulseGenPeriod"; }
    bool IsAvailable() override { return true; }
    bool IsWritable() override { return true; }
    bool IsReadable() override { return true; }

    int32_t RegisterEventSink(ZetoGenParam::ParamEventSink* sink) override
    {
        m_sink = sink;
        return Success;
    }
    int32_t UnregisterEventSink(ZetoGenParam::ParamEventSink*) override
    {
        m_sink = nullptr;
        return Success;
    }

    int32_t SetValue(int64_t value) override
    {
        if (value < 1 || value > 1000)
            return ErrorGenICamRange;
        m_value = value;
        if (m_sink)
            m_sink->OnParamChanged(this);
        return Success;
    }
    int64_t GetValue(int32_t*) override { return m_value; }
    int64_t GetMin(int32_t*) override { return 1; }
    int64_t GetMax(int32_t*) override { return 1000; }
    int64_t GetIncrement(int32_t*) override { return 1; }

private:
    ZetoGenParam::ParamEventSink* m_sink = nullptr;
    int64_t m_value = 42;
};

class Parameters : public ZetoGenParam::Array
{
public:
    ZetoGenParam::Param* GetParam(const char* name, int32_t* error) override { return GetInt(name, error); }
    ZetoGenParam::Int* GetInt(const char* name, int32_t* error) override
    {
        return std::strcmp(name, m_period.GetName()) == 0 ? &m_period : none<ZetoGenParam::Int>(error);
    }
    ZetoGenParam::Enum* GetEnum(const char*, int32_t* error) override
    {
        return none<ZetoGenParam::Enum>(error);
    }
    ZetoGenParam::Float* GetFloat(const char*, int32_t* error) override
    {
        return none<ZetoGenParam::Float>(error);
    }
    ZetoGenParam::Boolean* GetBoolean(const char*, int32_t* error) override
    {
        return none<ZetoGenParam::Boolean>(error);
    }
    ZetoGenParam::String* GetString(const char*, int32_t* error) override
    {
        return none<ZetoGenParam::String>(error);
    }
    ZetoGenParam::Command* GetCommand(const char*, int32_t* error) override
    {
        return none<ZetoGenParam::Command>(error);
    }
    GENAPI_NAMESPACE::INodeMap* GetNodeMap(uint32_t) override { return nullptr; }

private:
    template <typename T>
    static T* none(int32_t* error)
    {
        if (error)
            *error = ErrorGenICamUnknownParam;
        return nullptr;
    }

    PulsePeriod m_period;
};

class OneCamera : public DeviceInfo, public Device
{
public:
    explicit OneCamera(Interface& where)
        : m_interface(where)
    {
    }

    Interface* GetInterface() override { return &m_interface; }
    const char* GetID() override { return "maker.0"; }
    const char* GetVendor() override { return "Maker"; }
    const char* GetModel() override { return "One"; }
    const char* GetDisplayName() override { return "The maker's camera"; }
    const char* GetUserName() override { return ""; }
    const char* GetSerialNumber() override { return "1"; }
    const char* GetVersion() override { return "1.0"; }
    int32_t GetAccessStatus() override { return AccessStatusReadWrite; }
    uint64_t GetMACAddress() override { return 0; }
    uint32_t GetIPAddress() override { return 0; }
    uint32_t GetSubnetMask() override { return 0; }
    uint32_t GetGateway() override { return 0; }
    int32_t ForceIP(uint32_t, uint32_t, uint32_t) override { return ErrorInvalidState; }

    void Release() override {}
    ZetoGenParam::Array* GetParameters(int32_t*) override { return &m_parameters; }
    int32_t RegisterEvent(int32_t, DeviceEventCallback, void*) override { return Success; }
    int32_t UnregisterEvent(int32_t, DeviceEventCallback, void*) override { return Success; }

private:
    Interface& m_interface;
    Parameters m_parameters;
};

class OneInterface : public System, public Interface
{
public:
    int32_t Close() override { return Success; }
    InterfaceList* GetInterfaceList(uint32_t) override { return new OneElement<Interface>(this); }

    DeviceInfoList* GetDeviceInfoList() override { return new OneElement<DeviceInfo>(&camera); }
    ZetoGenParam::Array* GetParameters(int32_t* error) override
    {
        if (error)
            *error = ErrorInvalidState;
        return nullptr;
    }
    System* GetSystem() override { return this; }
    int32_t ReEnumerateDevices(bool* changed, uint64_t) override
    {
        if (changed)
            *changed = false;
        return Success;
    }
    const char* GetDescription() override { return "The maker's interface"; }
    int32_t GetType() override { return InterfaceCustom; }
    const char* GetID() override { return "maker"; }
    const char* GetVersion() override { return "1.0"; }

    OneCamera camera{*this};
};

OneInterface maker;

} // namespace

ZetoCam::System* ZetoCam_GetSystem()
{
    return &maker;
}

ZetoCam::Device* ZetoCam_CreateDevice(ZetoCam::DeviceInfo* info, int32_t, int32_t* error)
{
    const bool known = info == &maker.camera;
    if (error)
        *error = known ? Success : ErrorInvalidArgument;
    return known ? &maker.camera : nullptr;
}
