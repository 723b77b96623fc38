#include "infoview.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStandardItemModel>

#include <algorithm>

namespace {

enum Column
{
    NameColumn,
    ValueColumn,
    ColumnCount
};

QList<QStandardItem*> itemsOf(const InfoLine& line)
{
    auto* const value = new QStandardItem(line.value);
    // As rich text, so that it is wrapped and shown as it is.
    value->setToolTip(QStringLiteral("<span>%1</span>").arg(line.value.toHtmlEscaped()));
    if (line.isWarning)
        value->setForeground(QBrush(Qt::red));
    return {new QStandardItem(line.name), value};
}

} // namespace

InfoView::InfoView(QWidget* parent)
    : QTreeView(parent)
{
    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction(tr("&Copy"), QKeySequence::Copy, &InfoView::copyValue);
    addAction(tr("Copy &All"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, &InfoView::copyAll);
}

void InfoView::setLines(const QVector<InfoLine>& lines)
{
    QAbstractItemModel* const former = model();
    const int nameWidth = former ? columnWidth(NameColumn) : header()->defaultSectionSize();
    const bool isChosen = former && nameWidth != m_fittedWidth;
    auto* const next = new QStandardItemModel(0, ColumnCount, this);
    next->setHorizontalHeaderLabels({tr("Name"), tr("Value")});
    for (const InfoLine& line : lines)
        next->appendRow(itemsOf(line));
    setModel(next);
    if (!isChosen)
        m_fittedWidth = std::max(nameWidth, sizeHintForColumn(NameColumn));
    setColumnWidth(NameColumn, isChosen ? nameWidth : m_fittedWidth);
    if (former)
        former->deleteLater();
}

void InfoView::copyValue() const
{
    if (currentIndex().isValid())
        QGuiApplication::clipboard()->setText(textAt(currentIndex().row(), ValueColumn));
}

void InfoView::copyAll() const
{
    QStringList lines;
    for (int row = 0; model() && row < model()->rowCount(); ++row)
        lines.append(textAt(row, NameColumn) + QLatin1Char('\t') + textAt(row, ValueColumn));
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

template <typename Slot>
void InfoView::addAction(const QString& text, const QKeySequence& shortcut, Slot slot)
{
    auto* const action = new QAction(text, this);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    QTreeView::addAction(action);
}

QString InfoView::textAt(int row, int column) const
{
    return model()->index(row, column).data().toString();
}
