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

QModelIndex firstCamera(const DeviceTreeModel& model)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex camera = model.index(0, 0, model.index(row, 0));
        if (camera.isValid())
            return camera;
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
        const auto& model = *static_cast<DeviceTreeModel*>(tree.model());
        tree.setCurrentIndex(options.camera.isEmpty() ? firstCamera(model) : model.indexOf(options.camera));
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
