#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include "genparamtreemodel.h"
#include "treeviewstate.h"
#include "zetogenparamtreeview_p.h"

#include <QKeyEvent>

#include <algorithm>
#include <limits>

namespace ZetoGui {

ZetoGenParamTreeView::ZetoGenParamTreeView(QWidget* parent)
    : QDialog(parent)
    , d_ptr(std::make_unique<ZetoGenParamTreeViewPrivate>(*this))
{
}

ZetoGenParamTreeView::ZetoGenParamTreeView(GenApi::INodeMap* nodeMap, QWidget* parent)
    : ZetoGenParamTreeView(parent)
{
    d_func()->showModel(nodeMap ? new GenParamTreeModel(nodeMap, this) : nullptr);
}

ZetoGenParamTreeView::ZetoGenParamTreeView(ZetoGenParam::Array* params, QWidget* parent)
    : ZetoGenParamTreeView(parent)
{
    d_func()->showModel(params ? new GenParamTreeModel(params, this) : nullptr);
}

ZetoGenParamTreeView::~ZetoGenParamTreeView() = default;

void ZetoGenParamTreeView::setParams(GenApi::INodeMap* nodeMap)
{
    d_func()->showModel(nodeMap ? new GenParamTreeModel(nodeMap, this) : nullptr);
}

void ZetoGenParamTreeView::setParams(ZetoGenParam::Array* params)
{
    d_func()->showModel(params ? new GenParamTreeModel(params, this) : nullptr);
}

void ZetoGenParamTreeView::clearParams()
{
    d_func()->showModel(nullptr);
}

Visibility ZetoGenParamTreeView::visibility() const
{
    return static_cast<Visibility>(d_func()->ui.cbVisibility->currentIndex());
}

void ZetoGenParamTreeView::setVisibility(Visibility visibility)
{
    d_func()->setLevel(visibility);
}

const char* ZetoGenParamTreeView::saveState() const
{
    d_func()->stateText = d_func()->isShowing() ? d_func()->state().toText() : QByteArray("");
    return d_func()->stateText.constData();
}

void ZetoGenParamTreeView::loadState(const char* state)
{
    const QByteArray text(state); // empty for null
    if (!text.isEmpty() && d_func()->isShowing())
        d_func()->apply(TreeViewState::fromText(text));
}

void ZetoGenParamTreeView::setPollingTime(uint64_t milliseconds)
{
    constexpr uint64_t longest = std::numeric_limits<int>::max();
    d_func()->pollingTimer->setInterval(static_cast<int>(std::min(milliseconds, longest)));
}

uint64_t ZetoGenParamTreeView::getPollingTime()
{
    return static_cast<uint64_t>(d_func()->pollingTimer->interval());
}

void ZetoGenParamTreeView::enablePolling(bool enable)
{
    if (enable)
        d_func()->pollingTimer->start();
    else
        d_func()->pollingTimer->stop();
}

bool ZetoGenParamTreeView::isPollingEnabled()
{
    return d_func()->pollingTimer->isActive();
}

QTreeView* ZetoGenParamTreeView::treeView() const
{
    return d_func()->ui.treeView;
}

void ZetoGenParamTreeView::keyPressEvent(QKeyEvent* event)
{
    // Escape closes a window; within somebody else's window it belongs to that one.
    if (event->key() == Qt::Key_Escape && !isWindow())
        event->ignore();
    else
        QDialog::keyPressEvent(event);
}

} // namespace ZetoGui
