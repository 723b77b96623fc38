#include "selectpage.h"

#include "devicetreemodel.h"

#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QTreeView>

#include <stdexcept>

namespace {

constexpr char demoVariable[] = "ZETO_SIMULATOR_DEMO";
constexpr char demoPeriodMs[] = "4000";

/// The library's system. Simulated cameras come and go while somebody watches.
ZetoCam::System& openSystem(const Options& options)
{
    if (options.renderDirectory.isEmpty() && !qEnvironmentVariableIsSet(demoVariable))
        qputenv(demoVariable, demoPeriodMs);
    ZetoCam::System* const system = ZetoCam_GetSystem();
    if (!system)
        throw std::runtime_error("The camera library cannot be opened.");
    return *system;
}

void print(ZetoCam::DeviceInfo* chosen)
{
    if (chosen)
        printf("%s: %s\n", chosen->GetID(), chosen->GetDisplayName());
    else
        printf("No camera was chosen.\n");
}

/// The camera with that id, the first one for an empty id.
QModelIndex rowOf(const QString& cameraId, const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        auto* const camera = index.data(DeviceTreeModel::ObjectRole).value<ZetoCam::DeviceInfo*>();
        if (camera && (cameraId.isEmpty() || cameraId == QLatin1String(camera->GetID())))
            return index;
        const QModelIndex below = rowOf(cameraId, model, index);
        if (below.isValid())
            return below;
    }
    return {};
}

class SelectPage final : public Page
{
public:
    explicit SelectPage(const Options& options)
        : m_selector(&openSystem(options), nullptr, options.poll)
    {
        auto& tree = *m_selector.findChild<QTreeView*>(QStringLiteral("cameraTreeView"));
        tree.setCurrentIndex(rowOf(options.camera, *tree.model()));
        QObject::connect(&m_selector, &QDialog::finished, &m_selector, [this](int result) {
            print(result == QDialog::Accepted ? m_selector.selectedCamera() : nullptr);
        });
    }

    QWidget& window() override { return m_selector; }

private:
    ZetoGui::ZetoCameraSelectorDialog m_selector;
};

} // namespace

std::unique_ptr<Page> makeSelectPage(const Options& options)
{
    return std::make_unique<SelectPage>(options);
}
