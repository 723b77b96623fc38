#include "simulatorsetup.h"

namespace ZetoSimulator {
namespace {

constexpr uint32_t classC = ipv4(255, 255, 255, 0);

CameraSetup dualFrameCamera(const std::string& id, const std::string& serialNumber)
{
    CameraSetup camera;
    camera.id = id;
    camera.kind = CameraKind::DualFrame;
    camera.vendor = "Zeto";
    camera.model = "Zeto DF-12C";
    camera.displayName = "Zeto DF-12C (" + serialNumber + ")";
    camera.serialNumber = serialNumber;
    camera.version = "2.4.0";
    return camera;
}

CameraSetup plainCamera(const std::string& id, const std::string& model, const std::string& serialNumber)
{
    CameraSetup camera;
    camera.id = id;
    camera.vendor = "Zeto";
    camera.model = model;
    camera.displayName = model + " (" + serialNumber + ")";
    camera.serialNumber = serialNumber;
    camera.version = "1.1.7";
    return camera;
}

CameraSetup onNetwork(CameraSetup camera, uint64_t mac, NetworkAddress address)
{
    camera.mac = mac;
    camera.address = address;
    return camera;
}

/// Nothing that a program may rely on but the id.
CameraSetup awkwardCamera()
{
    CameraSetup camera;
    camera.id = "sim.gev0.awkward";
    camera.model = "A model name that goes on and on" + std::string(200, '.');
    camera.displayName = "K\xc3\xa4mer\xc3\xa4 \xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e & <b>not bold</b>";
    camera.userName = "Kamera \xce\xbc-1 \xe2\x80\x9cS\xc3\xbc"
                      "d\xe2\x80\x9d";
    camera.version = "\t ";
    return onNetwork(camera, 0, {ipv4(192, 168, 10, 254), classC, 0});
}

InterfaceSetup firstNetwork()
{
    InterfaceSetup adapter;
    adapter.id = "sim.gev0";
    adapter.type = ZetoCam::InterfaceGigEVision;
    adapter.description = "GigE Vision: simulated adapter 192.168.10.1";
    adapter.version = "2.2.0";
    adapter.mac = 0x02005e0a0001;
    adapter.address = {ipv4(192, 168, 10, 1), classC, 0};
    const uint32_t gateway = ipv4(192, 168, 10, 1);

    CameraSetup dualFrame = dualFrameCamera("sim.gev0.dual", "120447");
    dualFrame.userName = "Left";
    CameraSetup foreign = plainCamera("sim.gev0.foreign", "Zeto M-2", "200113");
    CameraSetup held = plainCamera("sim.gev0.held", "Zeto M-5", "310029");
    held.heldByOther = true;
    CameraSetup wanderer = plainCamera("sim.gev0.wanderer", "Zeto M-2", "200271");
    wanderer.comesAndGoes = true;
    adapter.cameras = {
        onNetwork(dualFrame, 0x02005e0a0010, {ipv4(192, 168, 10, 16), classC, gateway}),
        onNetwork(foreign, 0x02005e0a0011, {ipv4(10, 0, 0, 7), ipv4(255, 0, 0, 0), ipv4(10, 0, 0, 1)}),
        onNetwork(held, 0x02005e0a0012, {ipv4(192, 168, 10, 18), classC, gateway}),
        onNetwork(wanderer, 0x02005e0a0013, {ipv4(192, 168, 10, 19), classC, gateway}),
        awkwardCamera(),
    };
    return adapter;
}

/// An adapter without cameras.
InterfaceSetup secondNetwork()
{
    InterfaceSetup adapter;
    adapter.id = "sim.gev1";
    adapter.type = ZetoCam::InterfaceGigEVision;
    adapter.description = "GigE Vision: simulated adapter 10.20.30.129";
    adapter.version = "2.2.0";
    adapter.mac = 0x02005e0a0101;
    adapter.address = {ipv4(10, 20, 30, 129), ipv4(255, 255, 0, 0), 0};
    return adapter;
}

InterfaceSetup usbController()
{
    CameraSetup wanderer = plainCamera("sim.u3v0.wanderer", "Zeto U-5", "500802");
    wanderer.comesAndGoes = true;
    wanderer.plugged = false;
    InterfaceSetup controller;
    controller.id = "sim.u3v0";
    controller.type = ZetoCam::InterfaceUSB3Vision;
    controller.description = "USB3 Vision: simulated controller";
    controller.version = "1.0.1";
    controller.cameras = {plainCamera("sim.u3v0.plain", "Zeto U-5", "500117"), wanderer};
    return controller;
}

InterfaceSetup frameGrabber()
{
    InterfaceSetup grabber;
    grabber.id = "sim.cl0";
    grabber.type = ZetoCam::InterfaceCameraLink;
    grabber.description = "Camera Link: simulated frame grabber, port 0";
    grabber.version = "5.3";
    grabber.cameras = {dualFrameCamera("sim.cl0.dual", "120512")};
    return grabber;
}

InterfaceSetup numberedInterface(int index, int cameraCount)
{
    InterfaceSetup numbered = index % 2 ? usbController() : firstNetwork();
    numbered.id = "sim.interface" + std::to_string(index);
    numbered.cameras.clear();
    for (int i = 0; i < cameraCount; ++i) {
        const std::string number = std::to_string(index * 1000 + i);
        const CameraSetup camera =
            plainCamera(numbered.id + ".camera" + std::to_string(i), "Zeto M-2", number);
        const auto host = static_cast<uint32_t>(2 + i % 250);
        const NetworkAddress address = {ipv4(192, 168, 10, host), classC, 0};
        const bool isOnNetwork = numbered.type == ZetoCam::InterfaceGigEVision;
        numbered.cameras.push_back(isOnNetwork ? onNetwork(camera, 0x02005e0b0000 + host, address) : camera);
    }
    return numbered;
}

} // namespace

SimulatorSetup SimulatorSetup::standard()
{
    SimulatorSetup setup;
    setup.interfaces = {firstNetwork(), secondNetwork(), usbController(), frameGrabber()};
    return setup;
}

SimulatorSetup SimulatorSetup::ofSize(int interfaceCount, int camerasPerInterface)
{
    SimulatorSetup setup;
    for (int i = 0; i < interfaceCount; ++i)
        setup.interfaces.push_back(numberedInterface(i, camerasPerInterface));
    return setup;
}

} // namespace ZetoSimulator
