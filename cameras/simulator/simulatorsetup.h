#pragma once

#include <ZetoCameraApi.h>
#include <networkaddress.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace ZetoSimulator {

using ZetoCameraLibrary::ipv4;
using ZetoCameraLibrary::NetworkAddress;

enum class CameraKind
{
    DualFrame, ///< alternates between two frame set-ups; has every feature that the configuration tool knows
    Plain,     ///< an area camera with the common features only
};

/// A camera as it comes from the maker. Texts are UTF-8 but for the id.
struct CameraSetup
{
    std::string id; ///< unique in the simulator
    CameraKind kind = CameraKind::Plain;
    std::string vendor;
    std::string model;
    std::string displayName;
    std::string userName;
    std::string serialNumber;
    std::string version;
    uint64_t mac = 0;          ///< GigE Vision only
    NetworkAddress address{};  ///< GigE Vision only: what the camera uses after its power comes
    bool heldByOther = false;  ///< another program has it open
    bool plugged = true;       ///< there from the start
    bool comesAndGoes = false; ///< in demo mode
};

struct InterfaceSetup
{
    std::string id; ///< unique in the simulator
    ZetoCam::InterfaceType type = ZetoCam::InterfaceCustom;
    std::string description;
    std::string version;
    uint64_t mac = 0;         ///< GigE Vision only
    NetworkAddress address{}; ///< GigE Vision only
    std::vector<CameraSetup> cameras;
};

using Clock = std::function<std::chrono::steady_clock::time_point()>;

struct SimulatorSetup
{
    std::vector<InterfaceSetup> interfaces;
    Clock clock = std::chrono::steady_clock::now; ///< drives everything that changes with time

    /// The interfaces and cameras of every kind that the tools are to cope with.
    static SimulatorSetup standard();

    /// Many plain cameras, for measurements: alternately GigE Vision and USB3 Vision interfaces.
    static SimulatorSetup ofSize(int interfaceCount, int camerasPerInterface);
};

} // namespace ZetoSimulator
