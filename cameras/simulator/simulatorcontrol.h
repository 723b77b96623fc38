#pragma once

#include <ZetoCameraApi.h>

#include <cstdint>
#include <string>
#include <vector>

namespace ZetoSimulator {

/// What a test or a demonstration does to the simulated hardware. Cameras and interfaces are named by their
/// ids; an unknown id gives false and changes nothing.
///
/// Thread: any; the calls are served one after the other. The events of open cameras come on the calling
/// thread before the call returns.
class SimulatorControl
{
public:
    virtual ~SimulatorControl() = default;

    /// All that the simulator knows, plugged or not.
    virtual std::vector<std::string> interfaceIds() const = 0;
    virtual std::vector<std::string> cameraIds() const = 0;

    /// A camera that is plugged again comes up with its own address, whatever was forced before.
    virtual bool setCameraPlugged(const std::string& cameraId, bool plugged) = 0;
    virtual bool setInterfacePlugged(const std::string& interfaceId, bool plugged) = 0;

    /// A camera that stops answering is as good as gone: it is lost to its session and no search finds it.
    virtual bool setAnswering(const std::string& cameraId, bool answering) = 0;

    /// Whether another program holds the camera.
    virtual bool setHeldByOther(const std::string& cameraId, bool held) = 0;

    /// The next write or command fails with \a code, a ZetoCam::ErrorCode, and nothing is written. 0 takes a
    /// refusal back.
    virtual bool refuseNextWrite(const std::string& cameraId, int32_t code) = 0;

    /// Each read and write of a value takes so many milliseconds longer.
    virtual bool setAccessDelay(const std::string& cameraId, int milliseconds) = 0;

    /// Each search on the interface takes so long, whatever time its caller allows.
    virtual bool setSearchDelay(const std::string& interfaceId, int milliseconds) = 0;

    /// In demo mode the cameras that were set up to come and go do so, one at each \a period in milliseconds;
    /// cameras in use stay. 0 ends it. Not to be called out of an event callback.
    virtual void setDemo(int period) = 0;
};

} // namespace ZetoSimulator

/// The simulator inside the camera library that ZetoCam_GetSystem() opened, null when it runs without.
extern "C" ZETOCAM_API ZetoSimulator::SimulatorControl* ZetoSimulator_GetControl();
