#pragma once

#include "texteditor.h"

/// Edits a string. One that could not be read is started from an empty text.
class StringEditor : public TextEditor
{
    Q_OBJECT

public:
    /// \a maximumBytes counts in UTF-8; 0 is no limit.
    StringEditor(qint64 maximumBytes, bool hasValue);

    void adopt(const ParamEditor& fresh) override;

protected:
    QString toText(const QVariant& editValue) const override;
    QVariant toValue(const QString& text) const override;
    QString complaintAbout(const QString& text) const override;

private:
    qint64 m_maximumBytes;
    bool m_hasValue;
};
