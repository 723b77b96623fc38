#include "dialogfixture.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QTabWidget>

DialogFixture::DialogFixture(const char* cameraId)
    : m_id(cameraId)
    , m_device(m_simulator.open(cameraId))
    , m_faulty(*m_device)
{
}

ZetoNodeMap::NodeMap& DialogFixture::features()
{
    return dynamic_cast<ZetoNodeMap::NodeMap&>(*m_device->GetParameters(nullptr)->GetNodeMap(0));
}

void DialogFixture::refuseNextWrite(int32_t code)
{
    m_simulator.control().refuseNextWrite(m_id, code);
}

void DialogFixture::plug(bool plugged)
{
    m_simulator.control().setCameraPlugged(m_id, plugged);
}

namespace {

std::vector<int64_t> valuesOf(GenApi::INode& node)
{
    std::vector<int64_t> values;
    if (auto* const number = dynamic_cast<GenApi::IInteger*>(&node))
        values = {number->GetMin(), number->GetMax(), number->GetMin() + number->GetInc()};
    else if (dynamic_cast<GenApi::IBoolean*>(&node))
        values = {1, 0, 1};
    else if (auto* const enumeration = dynamic_cast<GenApi::IEnumeration*>(&node)) {
        GenApi::NodeList_t entries;
        enumeration->GetEntries(entries);
        for (GenApi::INode* const entry : entries)
            values.push_back(dynamic_cast<GenApi::IEnumEntry&>(*entry).GetValue());
    }
    return values;
}

/// Values that the camera computes from others cannot be assigned.
void move(ZetoNodeMap::NodeMap& features, GenApi::INode& node)
{
    const std::string name = node.GetName().c_str();
    try {
        for (const int64_t value : valuesOf(node))
            features.assign(name, value);
        if (node.GetAccessMode() != GenApi::RW)
            return; // by a rule of the camera, which is not to be overwritten
        for (const GenApi::EAccessMode mode : {GenApi::NA, GenApi::RO, GenApi::WO, GenApi::RW})
            features.setAccessMode(name, mode);
    } catch (const GenICam::GenericException&) {
    }
}

} // namespace

void DialogFixture::moveEverything()
{
    GenApi::NodeList_t nodes;
    features().GetNodes(nodes);
    for (GenApi::INode* const node : nodes)
        move(features(), *node);
}

void useEveryControl(QDialog& dialog)
{
    const auto forEach = [&dialog](auto type, auto use) {
        const auto controls = dialog.findChildren<decltype(type)>();
        for (auto* const control : controls) {
            if (control->isEnabled())
                use(control);
        }
    };
    using Button = QAbstractButton*;
    using Combo = QComboBox*;
    using SpinBox = QAbstractSpinBox*;
    using Tabs = QTabWidget*;
    const auto choose = [](auto control) {
        if (control->count() > 0)
            control->setCurrentIndex((control->currentIndex() + 1) % control->count());
    };
    forEach(Combo(), choose);
    forEach(Tabs(), choose);
    forEach(SpinBox(), [](SpinBox spinBox) { spinBox->stepUp(); });
    forEach(Button(), [](Button button) {
        if (!button->inherits("QToolButton")) // opens a popup
            button->click();
    });
}
