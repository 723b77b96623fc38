#pragma once

#include "faultydevice.h"
#include "nodemap.h"
#include "simulatorfixture.h"

#include <QDialog>

#include <functional>
#include <memory>

/// A simulated camera that is open, its features as the camera sees them, and its calls in the hand of a
/// test.
class DialogFixture
{
public:
    explicit DialogFixture(const char* cameraId = "sim.gev0.dual");
    ~DialogFixture();

    /// What dialogs are given.
    FaultyDevice& device() { return *m_faulty; }
    ParamFaults& faults() { return m_faulty->faults(); }
    QStringList takeWrites() { return faults().takeWrites(); }

    ZetoNodeMap::NodeMap& features();
    /// The camera refuses the next write with \a code.
    void refuseNextWrite(int32_t code);

    void plug(bool plugged);

    /// Has every feature of the camera take other values, limits and access modes by itself, and come back.
    void moveEverything();

private:
    const std::string m_id;
    SimulatorFixture m_simulator;
    ZetoCam::Device* m_device;
    std::unique_ptr<FaultyDevice> m_faulty;
};

/// One of the feature dialogs, for tests that are the same for all of them.
struct DialogKind
{
    const char* name;
    std::function<std::unique_ptr<QDialog>(ZetoCam::Device*)> make;
    std::function<void(QDialog&, ZetoCam::Device*)> setDevice;
};

template <typename Dialog>
DialogKind dialogKind(const char* name)
{
    return {name, [](ZetoCam::Device* device) { return std::make_unique<Dialog>(device); },
            [](QDialog& dialog, ZetoCam::Device* device) { static_cast<Dialog&>(dialog).SetDevice(device); }};
}

/// Edits every control of \a dialog that is enabled, once.
void useEveryControl(QDialog& dialog);
