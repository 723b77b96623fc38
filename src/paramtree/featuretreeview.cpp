#include "featuretreeview.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

FeatureTreeView::FeatureTreeView(QWidget* parent)
    : QTreeView(parent)
{
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setVerticalScrollMode(ScrollPerPixel);
    m_edit = addRowAction(tr("Edit Value"), {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter},
                          &FeatureTreeView::editValue);
    addRowAction(tr("Copy"), {QKeySequence::Copy}, &FeatureTreeView::copyLine);
    addRowAction(tr("Copy Value"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, &FeatureTreeView::copyValue);
    addRowAction(tr("Copy Name"), {Qt::CTRL | Qt::ALT | Qt::Key_C}, &FeatureTreeView::copyName);
}

void FeatureTreeView::expandRows(const QModelIndexList& rows)
{
    if (rows.isEmpty())
        return;
    scheduleDelayedItemsLayout();
    for (const QModelIndex& row : rows)
        expand(row);
    executeDelayedItemsLayout();
}

void FeatureTreeView::editValue()
{
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    const QModelIndex value = currentIndex().siblingAtColumn(1);
    if (value.flags() & Qt::ItemIsEditable)
        edit(value);
    else if (row.isValid() && model()->hasChildren(row))
        setExpanded(row, !isExpanded(row));
}

void FeatureTreeView::copyName() const
{
    QGuiApplication::clipboard()->setText(currentText(0));
}

void FeatureTreeView::copyValue() const
{
    QGuiApplication::clipboard()->setText(currentText(1));
}

void FeatureTreeView::copyLine() const
{
    QGuiApplication::clipboard()->setText(currentText(0) + QLatin1Char('\t') + currentText(1));
}

void FeatureTreeView::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const
{
    const QVariant background = index.data(Qt::BackgroundRole);
    if (background.isValid() && !selectionModel()->isSelected(index))
        painter->fillRect(rect, background.value<QBrush>());
    QTreeView::drawBranches(painter, rect, index);
}

void FeatureTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!currentIndex().isValid())
        return;
    m_edit->setEnabled(currentIndex().siblingAtColumn(1).flags() & Qt::ItemIsEditable);
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    connect(menu, &QMenu::aboutToHide, m_edit, [edit = m_edit] { edit->setEnabled(true); });
    menu->popup(menuPosition(*event));
}

bool FeatureTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (state() != EditingState)
        m_editedCell = index;
    return QTreeView::edit(index, trigger, event);
}

void FeatureTreeView::updateEditorGeometries()
{
    QTreeView::updateEditorGeometries();
    if (state() == EditingState && !isPersistentEditorOpen(m_editedCell))
        setState(NoState);
}

template <typename Slot>
QAction* FeatureTreeView::addRowAction(const QString& text, const QList<QKeySequence>& shortcuts, Slot slot)
{
    auto* const action = new QAction(text, this);
    action->setShortcuts(shortcuts);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
    return action;
}

QPoint FeatureTreeView::menuPosition(const QContextMenuEvent& event) const
{
    if (event.reason() == QContextMenuEvent::Mouse)
        return event.globalPos();
    return viewport()->mapToGlobal(visualRect(currentIndex()).center());
}

QString FeatureTreeView::currentText(int column) const
{
    return currentIndex().siblingAtColumn(column).data().toString();
}
