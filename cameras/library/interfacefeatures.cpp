#include "interfacefeatures.h"

#include "searchedinterface.h"

#include <genparamerror.h>
#include <nodemapbuilder.h>

using namespace ZetoNodeMap;

namespace ZetoCameraLibrary {
namespace {

/// Builds the features of one interface.
class InterfaceFeatures
{
public:
    explicit InterfaceFeatures(SearchedInterface& owner)
        : m_owner(owner)
    {
    }

    std::unique_ptr<NodeMap> build()
    {
        m_builder.category("Root");
        m_builder.category("InterfaceInformation").in("Root").displayName("Interface Information");
        m_builder.category("DeviceEnumeration")
            .in("Root")
            .displayName("Device Enumeration")
            .contains("DeviceUpdateList", "DeviceSelector");
        addIdentity();
        addIdentityOfDevice();
        if (m_owner.GetType() == ZetoCam::InterfaceGigEVision) {
            addAdapter();
            addNetworkOfDevice();
            addForceIp();
        }
        if (m_owner.usbVersion())
            deviceText("DeviceUSBVersionDetected",
                       [&owner = m_owner](ZetoCam::DeviceInfo&) { return owner.usbVersion(); });
        addSelector();
        return m_builder.build();
    }

private:
    /// The camera that the selector chooses; the last search may have found less than it points at.
    static ZetoCam::DeviceInfo& selected(SearchedInterface& owner, const NodeMap& map)
    {
        const std::vector<ZetoCam::DeviceInfo*> found = owner.found();
        const int64_t row = map.integer("DeviceSelector");
        if (row < 0 || static_cast<std::size_t>(row) >= found.size())
            throw ZetoGenParam::CodeException(ZetoCam::ErrorInvalidIndex);
        return *found[static_cast<std::size_t>(row)];
    }

    void addIdentity()
    {
        const auto text = [this](const char* name, const std::string& value) {
            m_builder.string(name).in("InterfaceInformation").standard().access(GenApi::RO).value(value);
        };
        text("InterfaceID", m_owner.GetID());
        text("InterfaceDisplayName", m_owner.GetDescription());
        m_builder.enumeration("InterfaceType")
            .in("InterfaceInformation")
            .standard()
            .access(GenApi::RO)
            .entries({"Custom", "USB3Vision", "GigEVision", "CameraLink", "CoaXPress", "HDSDI"})
            .value(int64_t{m_owner.GetType()});
    }

    void addAdapter()
    {
        adapterNumber("GevInterfaceMACAddress", GenApi::MACAddress,
                      [](const SearchedInterface& owner) { return owner.adapterMac(); });
        adapterNumber("GevInterfaceSubnetIPAddress", GenApi::IPV4Address,
                      [](const SearchedInterface& owner) { return owner.adapterAddress().ip; });
        adapterNumber("GevInterfaceSubnetMask", GenApi::IPV4Address,
                      [](const SearchedInterface& owner) { return owner.adapterAddress().mask; });
    }

    template <typename Read>
    void adapterNumber(const char* name, GenApi::ERepresentation representation, Read read)
    {
        m_builder.integer(name)
            .in("InterfaceInformation")
            .standard()
            .access(GenApi::RO)
            .representation(representation)
            .onRead([&owner = m_owner, read] { return static_cast<int64_t>(read(owner)); });
    }

    void addSelector()
    {
        SearchedInterface& owner = m_owner;
        m_builder.command("DeviceUpdateList").standard().onExecute([&owner] {
            constexpr uint64_t timeout = 200; // ms
            owner.ReEnumerateDevices(nullptr, timeout);
        });
        m_builder.integer("DeviceSelector")
            .standard()
            .limits(0, Setting<int64_t>([&owner] { return static_cast<int64_t>(owner.found().size()) - 1; }))
            .availableIf([&owner] { return !owner.found().empty(); })
            .selects(m_ofDevice)
            .value(0);
    }

    void addIdentityOfDevice()
    {
        deviceText("DeviceID", [](ZetoCam::DeviceInfo& info) { return info.GetID(); });
        deviceText("DeviceVendorName", [](ZetoCam::DeviceInfo& info) { return info.GetVendor(); });
        deviceText("DeviceModelName", [](ZetoCam::DeviceInfo& info) { return info.GetModel(); });
        deviceText("DeviceSerialNumber", [](ZetoCam::DeviceInfo& info) { return info.GetSerialNumber(); });
        deviceText("DeviceUserID", [](ZetoCam::DeviceInfo& info) { return info.GetUserName(); });
        deviceNumber("DeviceAccessStatus", GenApi::PureNumber,
                     [](ZetoCam::DeviceInfo& info) { return int64_t{info.GetAccessStatus()}; });
    }

    void addNetworkOfDevice()
    {
        deviceNumber("GevDeviceMACAddress", GenApi::MACAddress,
                     [](ZetoCam::DeviceInfo& info) { return static_cast<int64_t>(info.GetMACAddress()); });
        deviceNumber("GevDeviceIPAddress", GenApi::IPV4Address,
                     [](ZetoCam::DeviceInfo& info) { return int64_t{info.GetIPAddress()}; });
        deviceNumber("GevDeviceSubnetMask", GenApi::IPV4Address,
                     [](ZetoCam::DeviceInfo& info) { return int64_t{info.GetSubnetMask()}; });
        deviceNumber("GevDeviceGateway", GenApi::IPV4Address,
                     [](ZetoCam::DeviceInfo& info) { return int64_t{info.GetGateway()}; });
    }

    void addForceIp()
    {
        for (const char* name :
             {"GevDeviceForceIPAddress", "GevDeviceForceSubnetMask", "GevDeviceForceGateway"})
            m_builder.integer(name)
                .in("DeviceEnumeration")
                .standard()
                .representation(GenApi::IPV4Address)
                .limits(0, 0xffffffff)
                .value(0);
        SearchedInterface& owner = m_owner;
        m_builder.command("GevDeviceForceIP")
            .in("DeviceEnumeration")
            .standard()
            .onExecute([&owner](NodeMap& map) {
                const auto part = [&map](const char* name) {
                    return static_cast<uint32_t>(map.integer(name));
                };
                const int32_t code =
                    selected(owner, map)
                        .ForceIP(part("GevDeviceForceIPAddress"), part("GevDeviceForceSubnetMask"),
                                 part("GevDeviceForceGateway"));
                if (code != ZetoCam::Success)
                    throw ZetoGenParam::CodeException(code);
            });
    }

    template <typename Read>
    void deviceText(const char* name, Read read)
    {
        m_ofDevice.emplace_back(name);
        ofDevice(m_builder.string(name)).onRead([&owner = m_owner, read](const NodeMap& map) {
            return std::string(read(selected(owner, map)));
        });
    }

    template <typename Read>
    void deviceNumber(const char* name, GenApi::ERepresentation representation, Read read)
    {
        m_ofDevice.emplace_back(name);
        ofDevice(m_builder.integer(name))
            .representation(representation)
            .onRead([&owner = m_owner, read](const NodeMap& map) { return read(selected(owner, map)); });
    }

    /// What is said of all features about the selected camera.
    template <typename Builder>
    Builder ofDevice(Builder builder)
    {
        SearchedInterface& owner = m_owner;
        return builder.in("DeviceEnumeration").standard().access(GenApi::RO).availableIf([&owner] {
            return !owner.found().empty();
        });
    }

    SearchedInterface& m_owner;
    NodeMapBuilder m_builder;
    std::vector<std::string> m_ofDevice; ///< the features that DeviceSelector selects
};

} // namespace

std::unique_ptr<NodeMap> makeInterfaceFeatures(SearchedInterface& owner)
{
    return InterfaceFeatures(owner).build();
}

} // namespace ZetoCameraLibrary
