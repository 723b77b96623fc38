#include "browsepage.h"

#include "descriptioncamera.h"

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QLineEdit>
#include <QTreeView>

namespace {

constexpr uint64_t refreshTimeMs = 500;

class BrowsePage final : public Page
{
public:
    explicit BrowsePage(const Options& options)
        : m_camera(openDescription(options.description))
        , m_view(&m_camera->nodeMap())
    {
        m_view.setWindowTitle(m_camera->name());
        m_view.setVisibility(static_cast<ZetoGui::Visibility>(options.visibility));
        m_view.findChild<QLineEdit*>(QStringLiteral("filterLineEdit"))->setText(options.filter);
        if (options.expandAll)
            m_view.treeView()->expandAll();
        m_view.setPollingTime(refreshTimeMs);
        m_view.enablePolling(options.poll);
    }

    QWidget& window() override { return m_view; }

private:
    const std::unique_ptr<DescriptionCamera> m_camera; // outlives the view
    ZetoGui::ZetoGenParamTreeView m_view;
};

} // namespace

std::unique_ptr<Page> makeBrowsePage(const Options& options)
{
    return std::make_unique<BrowsePage>(options);
}
