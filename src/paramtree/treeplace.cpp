#include "treeplace.h"

#include <QAbstractProxyModel>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTreeView>

namespace {

QModelIndex toSource(const QTreeView& view, const QModelIndex& index)
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(view.model());
    return proxy ? proxy->mapToSource(index) : QModelIndex();
}

QModelIndex fromSource(const QTreeView& view, const QModelIndex& source)
{
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(view.model());
    return proxy ? proxy->mapFromSource(source) : QModelIndex();
}

} // namespace

TreePlace::TreePlace(QTreeView& view)
    : m_view(view)
{
}

void TreePlace::remember()
{
    if (m_view.currentIndex().isValid())
        m_current = toSource(m_view, m_view.currentIndex());
    if (hasMoved())
        chooseAnchor();
}

void TreePlace::restore()
{
    restoreCurrent();
    restoreScroll();
    m_restored = sight();
}

void TreePlace::forget()
{
    m_current = QModelIndex();
    m_anchor = QModelIndex();
}

TreePlace::Sight TreePlace::sight() const
{
    return {m_view.verticalScrollBar()->value(), m_view.visualRect(fromSource(m_view, m_anchor)).top()};
}

bool TreePlace::hasMoved() const
{
    const Sight now = sight();
    return !m_anchor.isValid() || now.scroll != m_restored.scroll || now.anchorTop != m_restored.anchorTop;
}

void TreePlace::chooseAnchor()
{
    QModelIndex anchor = m_view.currentIndex();
    if (!m_view.viewport()->rect().intersects(m_view.visualRect(anchor)))
        anchor = m_view.indexAt(QPoint(0, 0));
    m_anchor = toSource(m_view, anchor);
    m_anchorTop = m_view.visualRect(anchor).top();
}

void TreePlace::restoreCurrent()
{
    const QModelIndex current = fromSource(m_view, m_current);
    if (!current.isValid() || current == m_view.currentIndex())
        return;
    // Scrolling to a row expands the categories above it.
    const auto autoScroll =
        qScopeGuard([this, before = m_view.hasAutoScroll()] { m_view.setAutoScroll(before); });
    m_view.setAutoScroll(false);
    m_view.setCurrentIndex(current);
}

void TreePlace::restoreScroll()
{
    const QRect anchor = m_view.visualRect(fromSource(m_view, m_anchor));
    QScrollBar* const bar = m_view.verticalScrollBar();
    if (anchor.isValid())
        bar->setValue(bar->value() + anchor.top() - m_anchorTop);
}
