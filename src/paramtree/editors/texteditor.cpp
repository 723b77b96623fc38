#include "texteditor.h"

TextEditor::TextEditor()
{
    setFrame(false);
    connect(this, &QLineEdit::textEdited, this, [this] { m_isTyped = true; });
}

void TextEditor::fill(const QModelIndex& index)
{
    setText(toText(index.data(Qt::EditRole)));
    selectAll();
    m_isTyped = false;
}

QVariant TextEditor::takeEdit()
{
    const bool hasEdit = m_isTyped && hasAcceptableInput();
    m_isTyped = false;
    return hasEdit ? toValue(text()) : QVariant();
}

QString TextEditor::complaint() const
{
    return m_isTyped && !hasAcceptableInput() ? complaintAbout(text()) : QString();
}
