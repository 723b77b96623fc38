#pragma once

#include <QAbstractItemModel>

/// The rows below \a parent as one short text, children in brackets: "A(x y) B".
inline QString treeText(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = treeText(model, index);
        rows += below.isEmpty() ? index.data().toString()
                                : QStringLiteral("%1(%2)").arg(index.data().toString(), below);
    }
    return rows.join(QLatin1Char(' '));
}

/// The value cells of all rows named \a name, in the order of the tree.
inline QModelIndexList valueCells(const QAbstractItemModel& model, const QString& name,
                                  const QModelIndex& parent = QModelIndex())
{
    QModelIndexList cells;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == name)
            cells += index.siblingAtColumn(1);
        cells += valueCells(model, name, index);
    }
    return cells;
}

/// The value cell of the first row named \a name; invalid when there is none.
inline QModelIndex valueCell(const QAbstractItemModel& model, const QString& name)
{
    return valueCells(model, name).value(0);
}
