#include "genparamdelegate.h"

#include "editors/cellnote.h"
#include "editors/controldata.h"
#include "editors/parameditor.h"
#include "genparamtreemodel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QTimer>

#include <algorithm>
#include <array>
#include <memory>

namespace {

/// Dynamic property of an editor that has shown a value.
constexpr char isFilled[] = "zetoIsFilled";

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

/// Writes \a value; a refusal is told beside \a place, the cell's in \a viewport.
void write(QAbstractItemModel& model, const QPersistentModelIndex& cell, const QVariant& value,
           QWidget* viewport, const QRect& place)
{
    const QPointer<QWidget> aliveViewport(viewport); // a write can set off anything in the host
    CellNote::hideOn(viewport);
    if (!model.setData(cell, value, Qt::EditRole) && cell.isValid() && aliveViewport)
        CellNote::showBeside(viewport, place, refusalText(cell));
}

/// Brings an editor up to date that has been filled before: the limits and choices it was made with may have
/// changed.
void renew(ParamEditor& editor, const QModelIndex& index)
{
    const std::unique_ptr<QWidget> fresh(
        index.data(GenParamTreeModel::ControlRole).value<ControlData>().take(nullptr));
    if (const auto* freshEditor = dynamic_cast<const ParamEditor*>(fresh.get()))
        editor.adopt(*freshEditor);
}

bool isCommandToRun(const QModelIndex& index)
{
    return index.data(GenParamTreeModel::BusyRole).isValid() && (index.flags() & Qt::ItemIsEditable);
}

void tellComplaint(const QWidget& editor)
{
    const auto* paramEditor = dynamic_cast<const ParamEditor*>(&editor);
    const QString complaint = paramEditor ? paramEditor->complaint() : QString();
    if (!complaint.isNull())
        CellNote::showBeside(editor.parentWidget(), editor.geometry(), complaint);
}

bool confirms(const QEvent& event)
{
    static const std::array<int, 4> keys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab};
    return event.type() == QEvent::KeyPress &&
           std::count(keys.begin(), keys.end(), static_cast<const QKeyEvent&>(event).key()) > 0;
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
    editor->setToolTip(index.data(Qt::ToolTipRole).toString());
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
        auto* self = const_cast<GenParamDelegate*>(this);
        QTimer::singleShot(0, editor, [self, editor] { emit self->closeEditor(editor, RevertModelCache); });
    } else if (!paramEditor->isBeingEdited()) {
        const QSignalBlocker quiet(editor); // what comes from the camera must not be written back
        if (editor->property(isFilled).toBool())
            renew(*paramEditor, index);
        paramEditor->fill(index);
        editor->setProperty(isFilled, true);
    }
}

void GenParamDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    const QVariant value = takeEdit(*editor);
    if (!value.isValid())
        return;
    // What the write sets off may take the cell or the editor away.
    const QPersistentModelIndex cell(index);
    const QPointer<QWidget> aliveEditor(editor);
    write(*model, cell, value, editor->parentWidget(), editor->geometry());
    if (cell.isValid() && aliveEditor)
        setEditorData(editor, cell);
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

void GenParamDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    option->index = index;
    option->features |= QStyleOptionViewItem::HasDisplay;
    option->text = displayText(index.data(Qt::DisplayRole), option->locale);
    option->backgroundBrush = index.data(Qt::BackgroundRole).value<QBrush>();
    option->styleObject = nullptr; // no animation of the whole view for one cell
}

void GenParamDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    if (!isCommandToRun(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    QStyleOptionButton button;
    button.rect = cell.rect;
    button.palette = cell.palette;
    button.direction = cell.direction;
    button.fontMetrics = cell.fontMetrics;
    button.text = cell.text;
    button.state = cell.state & (QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Active);
    button.state.setFlag(index.data(GenParamTreeModel::BusyRole).toBool() ? QStyle::State_Sunken
                                                                          : QStyle::State_Raised);
    const QStyle& style = cell.widget ? *cell.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    style.drawControl(QStyle::CE_PushButton, &button, painter, cell.widget);
}

bool GenParamDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isClick = event->type() == QEvent::MouseButtonRelease;
    const bool isDoubleClick = event->type() == QEvent::MouseButtonDblClick; // its release is a click too
    if ((!isClick && !isDoubleClick) || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton ||
        !isCommandToRun(index))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (view && isClick && !index.data(GenParamTreeModel::BusyRole).toBool())
        write(*model, index, true, view->viewport(), option.rect);
    return true;
}

/// Tells what is wrong with a text at the moment when it is confirmed, since it is not going to be committed.
bool GenParamDelegate::eventFilter(QObject* editor, QEvent* event)
{
    if (const auto* widget = qobject_cast<QWidget*>(editor); widget && confirms(*event))
        tellComplaint(*widget);
    return QStyledItemDelegate::eventFilter(editor, event);
}

void GenParamDelegate::commitSender()
{
    emit commitData(qobject_cast<QWidget*>(sender()));
}
