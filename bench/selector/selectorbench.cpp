#include "selectorbench.h"

#include "devicetreemodel.h"

#include <QCoreApplication>

ManyCameras::ManyCameras()
    : m_simulator(new ZetoSimulator::Simulator(
          m_system, ZetoSimulator::SimulatorSetup::ofSize(InterfaceCount, CamerasPerInterface)))
{
    m_system.add(std::unique_ptr<ZetoCameraLibrary::CameraBackend>(m_simulator));
}

void ManyCameras::setScanTime(int milliseconds)
{
    for (const std::string& id : m_simulator->interfaceIds())
        m_simulator->setSearchDelay(id, milliseconds / InterfaceCount);
}

SelectorBench::SelectorBench()
    : m_selector(&m_cameras.system(), nullptr, false)
{
    fillConstants();
    m_constantTree.setModel(&m_constants);
    m_constantTree.setUniformRowHeights(true);
    m_constantTree.setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_selector.show();
    m_constantTree.resize(cameraTree().size());
    m_constantTree.show();
    settle();
}

QTreeView& SelectorBench::cameraTree() const
{
    return *m_selector.findChild<QTreeView*>(QStringLiteral("cameraTreeView"));
}

DeviceTreeModel& SelectorBench::model() const
{
    return *static_cast<DeviceTreeModel*>(cameraTree().model());
}

void SelectorBench::fillConstants()
{
    for (int row = 0; row < ManyCameras::InterfaceCount; ++row) {
        auto* const top = new QStandardItem(QStringLiteral("USB3 Vision: simulated controller"));
        for (int camera = 0; camera < ManyCameras::CamerasPerInterface; ++camera)
            top->appendRow(new QStandardItem(QStringLiteral("Zeto M-2")));
        m_constants.appendRow(top);
    }
}

void SelectorBench::showConstantsAnew()
{
    m_constants.clear();
    fillConstants();
    m_constantTree.expandAll();
    m_constantTree.setCurrentIndex(m_constants.index(0, 0));
}

void SelectorBench::settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

int walkLibrary(ZetoCam::System& system)
{
    std::vector<ZetoCam::DeviceInfo*> found;
    ZetoCam::InterfaceList* const interfaces = system.GetInterfaceList(ZetoCam::InterfaceMaskAll);
    for (ZetoCam::Interface* each = interfaces->GetFirst(); each; each = interfaces->GetNext()) {
        bool changed = false;
        each->ReEnumerateDevices(&changed, 200);
        ZetoCam::DeviceInfoList* const cameras = each->GetDeviceInfoList();
        for (ZetoCam::DeviceInfo* camera = cameras->GetFirst(); camera; camera = cameras->GetNext())
            found.push_back(camera);
        cameras->Release();
    }
    interfaces->Release();
    return static_cast<int>(found.size());
}
