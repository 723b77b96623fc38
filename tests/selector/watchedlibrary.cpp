#include "watchedlibrary.h"

#include "faultydevice.h"

#include <takelist.h>
#include <vectorlist.h>

#include <map>
#include <mutex>
#include <string>

namespace {

using Watch = WatchedLibrary::Watch;

class Watched
{
public:
    explicit Watched(const Watch& watch)
        : m_watch(watch)
    {
    }

protected:
    template <typename Value, typename Call>
    Value answer(const char* name, Value failure, Call call) const
    {
        return m_watch(name) ? failure : call();
    }
    const char* text(const char* name, const char* value) const { return m_watch(name) ? nullptr : value; }
    template <typename Number>
    Number number(const char* name, Number value) const
    {
        return m_watch(name) ? Number{0} : value;
    }

    const Watch& m_watch;
};

/// The watched objects of one kind, made when first asked for: the same one for the same real one.
template <typename Kind>
class Wrappers
{
public:
    template <typename Real, typename... Arguments>
    Kind* of(Real* real, Arguments&&... arguments)
    {
        const std::lock_guard guard(m_mutex);
        std::unique_ptr<Kind>& wrapper = m_wrappers[real];
        if (real && !wrapper)
            wrapper = std::make_unique<Kind>(*real, std::forward<Arguments>(arguments)...);
        return wrapper.get();
    }

private:
    std::mutex m_mutex;
    std::map<void*, std::unique_ptr<Kind>> m_wrappers;
};

template <typename T>
class WatchedList final : public ZetoCam::List<T>, Watched
{
public:
    WatchedList(ZetoCam::List<T>* real, const Watch& watch)
        : Watched(watch)
        , m_real(real)
    {
    }
    void Release() override
    {
        const std::unique_ptr<WatchedList> self(this);
        m_real->Release();
    }
    uint64_t GetCount() override { return number("GetCount", m_real->GetCount()); }
    T* GetFirst() override
    {
        return answer<T*>("GetFirst", nullptr, [&] { return m_real->GetFirst(); });
    }
    T* GetNext() override
    {
        return answer<T*>("GetNext", nullptr, [&] { return m_real->GetNext(); });
    }

private:
    ZetoCam::List<T>* const m_real;
};

/// A list of what \a wrap makes of the elements of \a real.
template <typename T, typename Wrap>
ZetoCam::List<T>* watchedList(ZetoCam::List<T>* real, const Watch& watch, Wrap wrap)
{
    std::vector<T*> elements;
    for (T* each : takeList(real))
        elements.push_back(wrap(each));
    auto list = std::make_unique<WatchedList<T>>(ZetoCameraLibrary::VectorList<T>::make(elements), watch);
    return list.release();
}

class WatchedInfo final : public ZetoCam::DeviceInfo, Watched
{
public:
    WatchedInfo(ZetoCam::DeviceInfo& real, ZetoCam::Interface& owner, const Watch& watch)
        : Watched(watch)
        , m_real(real)
        , m_owner(owner)
    {
    }
    ZetoCam::Interface* GetInterface() override
    {
        return answer<ZetoCam::Interface*>("GetInterface", nullptr, [&] { return &m_owner; });
    }
    const char* GetID() override { return text("DeviceInfo::GetID", m_real.GetID()); }
    const char* GetVendor() override { return text("GetVendor", m_real.GetVendor()); }
    const char* GetModel() override { return text("GetModel", m_real.GetModel()); }
    const char* GetDisplayName() override { return text("GetDisplayName", m_real.GetDisplayName()); }
    const char* GetUserName() override { return text("GetUserName", m_real.GetUserName()); }
    const char* GetSerialNumber() override { return text("GetSerialNumber", m_real.GetSerialNumber()); }
    const char* GetVersion() override { return text("DeviceInfo::GetVersion", m_real.GetVersion()); }
    int32_t GetAccessStatus() override { return number("GetAccessStatus", m_real.GetAccessStatus()); }
    uint64_t GetMACAddress() override { return number("GetMACAddress", m_real.GetMACAddress()); }
    uint32_t GetIPAddress() override { return number("GetIPAddress", m_real.GetIPAddress()); }
    uint32_t GetSubnetMask() override { return number("GetSubnetMask", m_real.GetSubnetMask()); }
    uint32_t GetGateway() override { return number("GetGateway", m_real.GetGateway()); }
    int32_t ForceIP(uint32_t address, uint32_t mask, uint32_t gateway) override
    {
        return answer("ForceIP", int32_t{ZetoCam::ErrorNoDevice},
                      [&] { return m_real.ForceIP(address, mask, gateway); });
    }

private:
    ZetoCam::DeviceInfo& m_real;
    ZetoCam::Interface& m_owner;
};

class WatchedInterface final : public ZetoCam::Interface, Watched
{
public:
    WatchedInterface(ZetoCam::Interface& real, ZetoCam::System& system, const Watch& watch,
                     ParamFaults& faults)
        : Watched(watch)
        , m_real(real)
        , m_system(system)
        , m_faults(faults)
    {
    }
    ZetoCam::DeviceInfoList* GetDeviceInfoList() override
    {
        return answer<ZetoCam::DeviceInfoList*>("GetDeviceInfoList", nullptr, [&] {
            return watchedList(m_real.GetDeviceInfoList(), m_watch,
                               [&](ZetoCam::DeviceInfo* info) { return m_infos.of(info, *this, m_watch); });
        });
    }
    ZetoGenParam::Array* GetParameters(int32_t* error) override
    {
        return m_faults.get(error, [&]() -> ZetoGenParam::Array* {
            return m_arrays.of(m_real.GetParameters(error), m_faults);
        });
    }
    ZetoCam::System* GetSystem() override { return &m_system; }
    int32_t ReEnumerateDevices(bool* changed, uint64_t timeout) override
    {
        return answer("ReEnumerateDevices", int32_t{ZetoCam::ErrorUnknown},
                      [&] { return m_real.ReEnumerateDevices(changed, timeout); });
    }
    const char* GetDescription() override { return text("GetDescription", m_real.GetDescription()); }
    int32_t GetType() override { return number("GetType", m_real.GetType()); }
    const char* GetID() override { return text("Interface::GetID", m_real.GetID()); }
    const char* GetVersion() override { return text("Interface::GetVersion", m_real.GetVersion()); }

private:
    ZetoCam::Interface& m_real;
    ZetoCam::System& m_system;
    ParamFaults& m_faults;
    Wrappers<WatchedInfo> m_infos;
    Wrappers<FaultyArray> m_arrays;
};

class WatchedSystem final : public ZetoCam::System, Watched
{
public:
    WatchedSystem(ZetoCam::System& real, Watch watch, ParamFaults& faults)
        : Watched(m_ownWatch)
        , m_real(real)
        , m_ownWatch(std::move(watch))
        , m_faults(faults)
    {
    }
    int32_t Close() override { return ZetoCam::ErrorInvalidState; }
    ZetoCam::InterfaceList* GetInterfaceList(uint32_t typeMask) override
    {
        return answer<ZetoCam::InterfaceList*>("GetInterfaceList", nullptr, [&] {
            return watchedList(m_real.GetInterfaceList(typeMask), m_watch, [&](ZetoCam::Interface* each) {
                return m_interfaces.of(each, *this, m_watch, m_faults);
            });
        });
    }

private:
    ZetoCam::System& m_real;
    const Watch m_ownWatch;
    ParamFaults& m_faults;
    Wrappers<WatchedInterface> m_interfaces;
};

} // namespace

WatchedLibrary::WatchedLibrary(ZetoCam::System& real, Watch watch)
    : m_system(std::make_unique<WatchedSystem>(real, std::move(watch), m_faults))
{
}

WatchedLibrary::~WatchedLibrary() = default;

ZetoCam::System& WatchedLibrary::system()
{
    return *m_system;
}
