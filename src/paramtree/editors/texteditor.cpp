#include "texteditor.h"

TextEditor::TextEditor()
{
    setFrame(false);
}

void TextEditor::fill(const QModelIndex& index)
{
    setText(toText(index.data(Qt::EditRole)));
    selectAll();
}

QVariant TextEditor::takeEdit()
{
    const bool hasEdit = isModified() && hasAcceptableInput();
    setModified(false);
    return hasEdit ? toValue(text()) : QVariant();
}

QString TextEditor::complaint() const
{
    return isModified() && !hasAcceptableInput() ? complaintAbout(text()) : QString();
}
