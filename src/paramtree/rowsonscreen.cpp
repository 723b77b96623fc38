#include "rowsonscreen.h"

#include <QAbstractProxyModel>
#include <QEvent>
#include <QScrollBar>
#include <QTreeView>

RowsOnScreen::RowsOnScreen(QTreeView& view)
    : m_view(view)
{
    m_view.viewport()->installEventFilter(this);
    connect(m_view.verticalScrollBar(), &QScrollBar::valueChanged, this, &RowsOnScreen::forget);
    connect(m_view.verticalScrollBar(), &QScrollBar::rangeChanged, this, &RowsOnScreen::forget);
}

const QModelIndexList& RowsOnScreen::rows()
{
    if (m_rows.isEmpty())
        m_rows = find();
    return m_rows;
}

bool RowsOnScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint || event->type() == QEvent::Resize)
        forget();
    return QObject::eventFilter(watched, event);
}

QModelIndexList RowsOnScreen::find() const
{
    QModelIndexList rows;
    const auto* proxy = qobject_cast<const QAbstractProxyModel*>(m_view.model());
    if (!proxy)
        return rows;
    const int bottom = m_view.viewport()->height();
    for (QModelIndex row = m_view.indexAt(QPoint(0, 0));
         row.isValid() && m_view.visualRect(row).top() < bottom; row = m_view.indexBelow(row))
        rows.append(proxy->mapToSource(row.siblingAtColumn(1)));
    return rows;
}
