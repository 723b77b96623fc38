#include "camerafeatures.h"
#include "simulatedcamera.h"

#include <nodemapbuilder.h>

#include <cmath>

using namespace ZetoNodeMap;

namespace ZetoSimulator {
namespace {

double secondsOf(const SimulatedCamera& camera)
{
    return std::chrono::duration<double>(camera.clock()().time_since_epoch()).count();
}

/// Degrees Celsius: goes up and down between 38 and 46 in two minutes, as if a fan went on and off.
double temperatureOf(const SimulatedCamera& camera)
{
    constexpr double radiansPerSecond = 2 * 3.14159265358979 / 120;
    return 42 + 4 * std::sin(secondsOf(camera) * radiansPerSecond);
}

void addText(NodeMapBuilder& b, const char* name, const std::string& text)
{
    b.string(name).in("DeviceControl").standard().access(GenApi::RO).value(text);
}

void addNumber(NodeMapBuilder& b, const char* name, int64_t value)
{
    b.integer(name).in("DeviceControl").visibility(GenApi::Expert).access(GenApi::RO).value(value);
}

void addIdentity(NodeMapBuilder& b, SimulatedCamera& camera)
{
    const CameraSetup& setup = camera.setup();
    addText(b, "DeviceVendorName", setup.vendor);
    addText(b, "DeviceModelName", setup.model);
    addText(b, "DeviceVersion", setup.version);
    addText(b, "DeviceSerialNumber", setup.serialNumber);
    b.string("DeviceUserID")
        .in("DeviceControl")
        .standard()
        .toolTip("A name for this camera, shown in the list of cameras")
        .maxLength(64)
        .value(setup.userName)
        .onWrite([&camera](NodeMap&, const std::string& name) { camera.setUserName(name); });
}

void addIdentityOfDualFrame(NodeMapBuilder& b)
{
    addText(b, "DeviceFamilyName", "DF");
    addText(b, "DeviceFirmwareVersion", "2.4.0-rc1");
    addText(b, "DeviceManufacturerInfo", "Simulated dual-frame colour camera");
    b.enumeration("SensorType")
        .in("DeviceControl")
        .visibility(GenApi::Expert)
        .access(GenApi::RO)
        .entries({"Monochrome", "BayerRG", "BayerGR"})
        .value("BayerRG");
    addNumber(b, "RgsID", 7);
    addNumber(b, "FpgaID", 18002);
    addNumber(b, "EpcsID", 64);
    addNumber(b, "FirmwareImage", 1);
    addNumber(b, "CustomerID", 0);
    addNumber(b, "FamilyID", 12);
    addNumber(b, "XmlVersion", 10302);
}

void addTimestamp(NodeMapBuilder& b, const SimulatedCamera& camera)
{
    b.command("TimestampLatch")
        .in("DeviceControl")
        .standard()
        .visibility(GenApi::Expert)
        .toolTip("Takes the time of the camera's clock into TimestampLatchValue")
        .invalidates({"TimestampLatchValue"})
        .onExecute([&camera](NodeMap& map) {
            map.assign("TimestampLatchValue", static_cast<int64_t>(secondsOf(camera) * 1e9));
        });
    b.integer("TimestampLatchValue")
        .in("DeviceControl")
        .standard()
        .visibility(GenApi::Expert)
        .access(GenApi::RO)
        .unit("ns")
        .value(0);
}

} // namespace

void addDeviceFeatures(NodeMapBuilder& b, SimulatedCamera& camera)
{
    b.category("DeviceControl").in("Root").displayName("Device Control");
    addIdentity(b, camera);
    if (camera.setup().kind == CameraKind::DualFrame) {
        addIdentityOfDualFrame(b);
        b.integer("CurrentTemperature")
            .in("DeviceControl")
            .toolTip("Temperature of the sensor board")
            .access(GenApi::RO)
            .unit("\xc2\xb0"
                  "C")
            .pollingTime(1000)
            .onRead([&camera] { return std::lround(temperatureOf(camera)); });
    } else {
        b.floating("DeviceTemperature")
            .in("DeviceControl")
            .standard()
            .access(GenApi::RO)
            .unit("\xc2\xb0"
                  "C")
            .notation(GenApi::fnFixed, 1)
            .pollingTime(1000)
            .onRead([&camera] { return temperatureOf(camera); });
    }
    addTimestamp(b, camera);
}

void addNetworkFeatures(NodeMapBuilder& b, SimulatedCamera& camera)
{
    b.category("TransportLayerControl").in("Root").displayName("Transport Layer Control");
    const auto address = [&](const char* name, uint32_t NetworkAddress::*part) {
        b.integer(name)
            .in("TransportLayerControl")
            .standard()
            .access(GenApi::RO)
            .representation(GenApi::IPV4Address)
            .limits(0, 0xffffffff)
            .onRead([&camera, part] { return int64_t{camera.address().*part}; });
    };
    b.integer("GevMACAddress")
        .in("TransportLayerControl")
        .standard()
        .access(GenApi::RO)
        .representation(GenApi::MACAddress)
        .value(static_cast<int64_t>(camera.setup().mac));
    address("GevCurrentIPAddress", &NetworkAddress::ip);
    address("GevCurrentSubnetMask", &NetworkAddress::mask);
    address("GevCurrentDefaultGateway", &NetworkAddress::gateway);
    b.integer("GevSCPSPacketSize")
        .in("TransportLayerControl")
        .standard()
        .visibility(GenApi::Expert)
        .unit("B")
        .limits(220, 9000)
        .increment(4)
        .lockedIf("AcquisitionActive")
        .value(1500);
}

} // namespace ZetoSimulator
