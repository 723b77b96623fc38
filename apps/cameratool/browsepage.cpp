#include "browsepage.h"

#include "descriptioncamera.h"
#include "librarycamera.h"

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QLineEdit>
#include <QTreeView>

namespace {

constexpr uint64_t refreshTimeMs = 500;

std::unique_ptr<BrowsedCamera> openBrowsedCamera(const Options& options)
{
    const bool isInLibrary = !options.cameras.isEmpty() || !options.camera.isEmpty();
    return isInLibrary ? openLibraryCamera(options.camera) : openDescription(options.description);
}

/// Opens the editors of all features below \a parent whose categories are open.
void openEditors(QTreeView& tree, const QModelIndex& parent = {})
{
    constexpr int valueColumn = 1;
    const QAbstractItemModel& model = *tree.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex value = model.index(row, valueColumn, parent);
        if (value.flags() & Qt::ItemIsEditable)
            tree.openPersistentEditor(value);
        const QModelIndex name = model.index(row, 0, parent);
        if (tree.isExpanded(name))
            openEditors(tree, name);
    }
}

class BrowsePage final : public Page
{
public:
    explicit BrowsePage(const Options& options)
        : m_camera(openBrowsedCamera(options))
        , m_view(&m_camera->nodeMap())
    {
        const QString name = m_camera->vendorName() + QLatin1Char(' ') + m_camera->modelName();
        m_view.setWindowTitle(name.trimmed());
        m_view.setVisibility(static_cast<ZetoGui::Visibility>(options.visibility));
        m_view.findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->setText(options.filter);
        if (options.expandAll)
            m_view.treeView()->expandAll();
        if (options.editors)
            openEditors(*m_view.treeView());
        m_view.setPollingTime(refreshTimeMs);
        m_view.enablePolling(options.poll);
    }

    QWidget& window() override { return m_view; }

private:
    const std::unique_ptr<BrowsedCamera> m_camera; // outlives the view
    ZetoGui::ZetoGenParamTreeView m_view;
};

} // namespace

std::unique_ptr<Page> makeBrowsePage(const Options& options)
{
    return std::make_unique<BrowsePage>(options);
}
