#include "choiceeditor.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QStandardItemModel>
#include <QTimer>
#include <QWheelEvent>

ChoiceEditor::ChoiceEditor(const QVector<VariantData>& choices)
{
    setFrame(false);
    for (const VariantData& choice : choices)
        add(choice);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { m_hasEdit = true; });
}

void ChoiceEditor::adopt(const ParamEditor& fresh)
{
    const auto* other = dynamic_cast<const ChoiceEditor*>(&fresh);
    if (!other)
        return;
    clear();
    for (int i = 0; i < other->count(); ++i)
        add(other->itemData(i).value<VariantData>());
}

void ChoiceEditor::fill(const QModelIndex& index)
{
    // A value that is none of the choices is still what the camera holds.
    setPlaceholderText(index.data(Qt::DisplayRole).toString());
    setCurrentIndex(indexOf(index.data(Qt::EditRole)));
    m_hasEdit = false;
}

bool ChoiceEditor::isBeingEdited() const
{
    return m_hasEdit || view()->isVisible();
}

QVariant ChoiceEditor::takeEdit()
{
    const bool hadEdit = m_hasEdit;
    m_hasEdit = false;
    return hadEdit ? currentData().value<VariantData>().value : QVariant();
}

/// A double click that opens the editor also opens its list.
void ChoiceEditor::showEvent(QShowEvent* event)
{
    QComboBox::showEvent(event);
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        QTimer::singleShot(0, this, &QComboBox::showPopup);
}

/// A wheel that passes over the editor scrolls the tree; it must not write to the camera.
void ChoiceEditor::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void ChoiceEditor::add(const VariantData& choice)
{
    addItem(choice.text, QVariant::fromValue(choice));
    setItemData(count() - 1, choice.editValue, Qt::ToolTipRole);
    auto* items = qobject_cast<QStandardItemModel*>(model());
    items->item(count() - 1)->setEnabled(choice.isAvailable);
}

int ChoiceEditor::indexOf(const QVariant& editValue) const
{
    for (int i = 0; i < count(); ++i) {
        // Of the same type, too: any text that stands for want of a value would equal true.
        const QVariant choice = itemData(i).value<VariantData>().editValue;
        if (choice.userType() == editValue.userType() && choice == editValue)
            return i;
    }
    return -1;
}
