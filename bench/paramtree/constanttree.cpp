#include "constanttree.h"

ConstantTree::ConstantTree(const QAbstractItemModel& original)
{
    m_items.push_back({{}, -1, 0, {}});
    copyChildren(original, {}, 0);
}

void ConstantTree::copyChildren(const QAbstractItemModel& original, const QModelIndex& originalParent,
                                int parent)
{
    for (int row = 0; row < original.rowCount(originalParent); ++row) {
        const QModelIndex name = original.index(row, 0, originalParent);
        const int copy = static_cast<int>(m_items.size());
        m_items.push_back(
            {{name.data().toString(), name.siblingAtColumn(1).data().toString()}, parent, row, {}});
        m_items[static_cast<std::size_t>(parent)].children.push_back(copy);
        copyChildren(original, name, copy);
    }
}

const ConstantTree::Item& ConstantTree::item(const QModelIndex& index) const
{
    return m_items[index.isValid() ? index.internalId() : 0];
}

QModelIndex ConstantTree::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       static_cast<quintptr>(item(parent).children[static_cast<std::size_t>(row)]));
}

QModelIndex ConstantTree::parent(const QModelIndex& child) const
{
    const int parent = child.isValid() ? item(child).parent : 0;
    if (parent == 0)
        return {};
    return createIndex(m_items[static_cast<std::size_t>(parent)].row, 0, static_cast<quintptr>(parent));
}

int ConstantTree::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(item(parent).children.size());
}

int ConstantTree::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant ConstantTree::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? item(index).texts[index.column()] : QVariant();
}
