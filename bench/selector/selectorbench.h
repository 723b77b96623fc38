#pragma once

#include "camerasnapshot.h"
#include "librarysystem.h"
#include "simulator.h"

#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QStandardItemModel>
#include <QTreeView>

class DeviceTreeModel;

/// 16 interfaces with 32 cameras each.
class ManyCameras
{
public:
    static constexpr int InterfaceCount = 16;
    static constexpr int CamerasPerInterface = 32;

    ManyCameras();

    ZetoCam::System& system() { return m_system; }
    ZetoSimulator::SimulatorControl& control() { return *m_simulator; }

    /// Lets a search on all interfaces take so long.
    void setScanTime(int milliseconds);

private:
    ZetoCameraLibrary::LibrarySystem m_system;
    ZetoSimulator::Simulator* m_simulator; // owned by the system
};

/// The selector on screen over many cameras, and beside it a tree of the same rows as constant strings.
class SelectorBench
{
public:
    SelectorBench();

    ManyCameras& cameras() { return m_cameras; }
    DeviceTreeModel& model() const;

    /// Fills the constant tree anew and brings it to the state in which the selector's tree is after a
    /// change.
    void showConstantsAnew();

    /// Runs what is pending, until everything is painted.
    static void settle();

private:
    QTreeView& cameraTree() const;
    void fillConstants();

    ManyCameras m_cameras;
    ZetoGui::ZetoCameraSelectorDialog m_selector;
    QStandardItemModel m_constants;
    QTreeView m_constantTree;
};

/// The calls that a search cannot do without, with nothing but pointers kept. \return the number of cameras
int walkLibrary(ZetoCam::System& system);
