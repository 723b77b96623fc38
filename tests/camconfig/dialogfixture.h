#pragma once

#include "childof.h"
#include "devicepointer.h"
#include "faultydevice.h"
#include "nodemap.h"
#include "simulatorfixture.h"

#include <QDialog>

#include <memory>

/// A simulated camera that is open, its features as the camera sees them, and its calls in the hand of a
/// test.
class DialogFixture
{
public:
    explicit DialogFixture(const char* cameraId = "sim.gev0.dual");

    /// What dialogs are given.
    FaultyDevice& device() { return m_faulty; }
    ParamFaults& faults() { return m_faulty.faults(); }
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
    const DevicePointer m_device;
    FaultyDevice m_faulty;
};

/// Edits every control of \a dialog that is enabled, once.
void useEveryControl(QDialog& dialog);
