#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

/// The tree of names (column 0) and values (column 1): editing and copying from keyboard and context menu.
class FeatureTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureTreeView(QWidget* parent = nullptr);

    /// Expands all of \a rows with one layout instead of one for each.
    void expandRows(const QModelIndexList& rows);

public slots:
    /// Edits the value of the current row; opens or closes a category.
    void editValue();

    void copyName() const;
    void copyValue() const;
    /// Name and value with a tab between them, as tables take it.
    void copyLine() const;

protected:
    /// Carries the background of a row over to its branches.
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    using QTreeView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    /// Also ends the editing of a row that a filter has taken away: the base class, left in the editing state
    /// without an editor, would open no other.
    void updateEditorGeometries() override;

private:
    template <typename Slot>
    QAction* addRowAction(const QString& text, const QList<QKeySequence>& shortcuts, Slot slot);
    QPoint menuPosition(const QContextMenuEvent& event) const;
    QString currentText(int column) const;

    QAction* m_edit = nullptr;
    QPersistentModelIndex m_editedCell; // the last one
};
