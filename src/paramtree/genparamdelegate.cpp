#include "genparamdelegate.h"

#include "editors/cellnote.h"
#include "editors/controldata.h"
#include "editors/parameditor.h"
#include "genparamtreemodel.h"

#include <QComboBox>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>

namespace {

/// What is to be written; invalid for nothing.
QVariant takeEdit(QWidget& editor)
{
    if (auto* paramEditor = dynamic_cast<ParamEditor*>(&editor))
        return paramEditor->takeEdit();
    return editor.metaObject()->userProperty().read(&editor);
}

QString refusalText(const QModelIndex& index)
{
    const QString reason = index.data(GenParamTreeModel::ErrorRole).toString();
    return reason.isEmpty() ? GenParamDelegate::tr("The camera did not take the value.") : reason;
}

} // namespace

QWidget* GenParamDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    const auto control = index.data(GenParamTreeModel::ControlRole).value<ControlData>();
    QWidget* editor = control.take(parent);
    if (!editor)
        return QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* choice = qobject_cast<QComboBox*>(editor); choice && control.kind() == ControlData::Choice)
        connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &GenParamDelegate::commitSender);
    if (auto* button = qobject_cast<QPushButton*>(editor); button && control.kind() == ControlData::Button)
        connect(button, &QPushButton::clicked, this, &GenParamDelegate::commitSender);
    editor->setAutoFillBackground(true); // the value is painted behind it
    editor->setAccessibleName(index.siblingAtColumn(GenParamTreeModel::NameColumn).data().toString());
    return editor;
}

void GenParamDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* paramEditor = dynamic_cast<ParamEditor*>(editor);
    if (!paramEditor) {
        QStyledItemDelegate::setEditorData(editor, index);
    } else if (!(index.flags() & Qt::ItemIsEditable)) {
        CellNote::showBeside(editor->parentWidget(), editor->geometry(),
                             tr("The feature cannot be changed at the moment."));
        // Not now: the view is in the middle of telling its editors.
        QMetaObject::invokeMethod(const_cast<GenParamDelegate*>(this), "discard", Qt::QueuedConnection,
                                  Q_ARG(QWidget*, editor));
    } else if (!paramEditor->isBeingEdited()) {
        const QSignalBlocker quiet(editor); // what comes from the camera must not be written back
        paramEditor->fill(index);
    }
}

void GenParamDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    const QVariant value = takeEdit(*editor);
    if (!value.isValid())
        return;
    CellNote::hideOn(editor->parentWidget());
    // What the write sets off may take the cell or the editor away.
    const QPersistentModelIndex cell(index);
    const QPointer<QWidget> aliveEditor(editor);
    const bool isTaken = model->setData(index, value, Qt::EditRole);
    if (!cell.isValid() || !aliveEditor)
        return;
    setEditorData(editor, cell);
    if (!isTaken)
        CellNote::showBeside(editor->parentWidget(), editor->geometry(), refusalText(cell));
}

/// Covers the cell, and more where a narrow column would leave no room to type.
void GenParamDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& /*index*/) const
{
    const int room = editor->parentWidget()->width() - option.rect.left();
    QRect place = option.rect;
    place.setWidth(qMax(place.width(), qMin(editor->minimumSizeHint().width(), room)));
    editor->setGeometry(place);
}

void GenParamDelegate::commitSender()
{
    emit commitData(qobject_cast<QWidget*>(sender()));
}

void GenParamDelegate::discard(QWidget* editor)
{
    emit closeEditor(editor, RevertModelCache);
}
