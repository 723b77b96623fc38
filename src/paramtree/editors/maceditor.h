#pragma once

#include "texteditor.h"

/// Edits a MAC address as six hexadecimal bytes joined by ":". They may also be typed or pasted with "-" or
/// nothing between them. The model gives and takes an integer.
class MacEditor : public TextEditor
{
    Q_OBJECT

public:
    MacEditor();

protected:
    QString toText(const QVariant& editValue) const override;
    QVariant toValue(const QString& text) const override;
    QString complaintAbout(const QString& text) const override;
};
