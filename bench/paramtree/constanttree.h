#pragma once

#include <QAbstractItemModel>

#include <vector>

/// A tree of two columns of constant strings, as cheap as an item model can be: what a view costs by itself.
class ConstantTree : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Copies the display texts of both columns of all rows of \a original.
    explicit ConstantTree(const QAbstractItemModel& original);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    struct Item
    {
        QString texts[2];
        int parent;
        int row;
        std::vector<int> children;
    };

    void copyChildren(const QAbstractItemModel& original, const QModelIndex& originalParent, int parent);
    const Item& item(const QModelIndex& index) const;

    std::vector<Item> m_items; // the first is the root
};
