#pragma once

#include <QStyledItemDelegate>

/// Shows and edits the value column of the parameter tree in place.
///
/// The model prepares the editor of a feature and hands it over under Qt::UserRole + 1 as ControlData; a cell
/// without one gets the editor of the base class. A command is shown as a button and runs with a click on it
/// or, by keyboard, in its editor. A choice and a button commit at once, the others when they are confirmed
/// or left. Only what a person has entered is written, and only through the model's setData(). A write that
/// the camera refuses is told beside the field, which goes back to what the camera holds.
class GenParamDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// Leaves an editor alone in which something has been typed, and closes one whose feature can no longer
    /// be written.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool eventFilter(QObject* editor, QEvent* event) override;

protected:
    /// Asks only for what a value cell has, text and background: most of what a browser does is painting.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private slots:
    void commitSender();
};
