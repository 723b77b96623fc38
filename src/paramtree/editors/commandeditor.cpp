#include "commandeditor.h"

#include "genparamtreemodel.h"

#include <QKeyEvent>

CommandEditor::CommandEditor()
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { m_isClicked = !m_isBusy; });
}

void CommandEditor::fill(const QModelIndex& index)
{
    m_isBusy = index.data(GenParamTreeModel::BusyRole).toBool();
    setText(index.data(Qt::DisplayRole).toString());
}

QVariant CommandEditor::takeEdit()
{
    const bool wasClicked = m_isClicked;
    m_isClicked = false;
    return wasClicked ? QVariant(true) : QVariant();
}

void CommandEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
