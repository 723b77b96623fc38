#pragma once

#include <QModelIndex>
#include <QObject>

class QTreeView;

/// The rows of a tree that can be seen, found once for each time that the tree is painted anew.
class RowsOnScreen : public QObject
{
    Q_OBJECT

public:
    /// Watches \a view, which must outlive it.
    explicit RowsOnScreen(QTreeView& view);

    /// The rows from the top down, as indexes of column 1 of the model behind the view's proxy. They stay
    /// usable as long as that model does, whatever happens to the filter.
    const QModelIndexList& rows();

    /// To be called after the view was given another model.
    void forget() { m_rows.clear(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QModelIndexList find() const;

    QTreeView& m_view;
    QModelIndexList m_rows; // empty: to be found
};
