#pragma once

#include "librarysystem.h"
#include "simulator.h"
#include "takelist.h"

#include <ZetoGenParam.h>

#include <QString>

/// A system of simulated cameras that a test has to itself.
class SimulatorFixture
{
public:
    explicit SimulatorFixture(
        const ZetoSimulator::SimulatorSetup& setup = ZetoSimulator::SimulatorSetup::standard())
        : m_simulator(new ZetoSimulator::Simulator(m_system, setup))
    {
        m_system.add(std::unique_ptr<ZetoCameraLibrary::CameraBackend>(m_simulator));
        search();
    }

    ZetoCam::System& system() { return m_system; }
    ZetoSimulator::SimulatorControl& control() { return *m_simulator; }

    /// \return whether any interface reported a change
    bool search()
    {
        bool anyChanged = false;
        for (ZetoCam::Interface* each : interfaces()) {
            bool changed = false;
            each->ReEnumerateDevices(&changed, 200);
            anyChanged = anyChanged || changed;
        }
        return anyChanged;
    }

    std::vector<ZetoCam::Interface*> interfaces(uint32_t mask = ZetoCam::InterfaceMaskAll)
    {
        return takeList(m_system.GetInterfaceList(mask));
    }

    static std::vector<ZetoCam::DeviceInfo*> cameras(ZetoCam::Interface& owner)
    {
        return takeList(owner.GetDeviceInfoList());
    }

    /// The camera as the last search found it, or null.
    ZetoCam::DeviceInfo* camera(const std::string& id)
    {
        for (ZetoCam::Interface* each : interfaces()) {
            for (ZetoCam::DeviceInfo* info : cameras(*each)) {
                if (info->GetID() == id)
                    return info;
            }
        }
        return nullptr;
    }

    ZetoCam::Device* open(const std::string& id, int32_t mode = ZetoCam::AccessControl,
                          int32_t* error = nullptr)
    {
        return ZetoCameraLibrary::openDevice(camera(id), mode, error);
    }

private:
    ZetoCameraLibrary::LibrarySystem m_system;
    ZetoSimulator::Simulator* m_simulator; ///< owned by the system
};
