#include "treeviewresizer.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>

TreeViewResizer::TreeViewResizer(QTreeView& view)
    : m_view(view)
{
    // Rows on screen only: measuring all of a large tree takes longer than everything else.
    m_view.header()->setResizeContentsPrecision(0);
    m_view.viewport()->installEventFilter(this);
    connect(m_view.header(), &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (section == 0 && !m_fitting)
            m_chosenWidth = width;
    });
}

void TreeViewResizer::fit()
{
    const QScopedValueRollback<bool> fitting(m_fitting, true);
    if (m_view.header()->count() > 0)
        m_view.setColumnWidth(0, m_chosenWidth > 0 ? m_chosenWidth : fittingWidth());
}

bool TreeViewResizer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && m_chosenWidth == 0)
        fit();
    return QObject::eventFilter(watched, event);
}

int TreeViewResizer::fittingWidth() const
{
    const int available = m_view.viewport()->width();
    const QAbstractItemView& measuring = m_view; // where the hint is public
    return qBound(available / 2, measuring.sizeHintForColumn(0), available * 2 / 3);
}
