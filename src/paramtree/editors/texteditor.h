#pragma once

#include "parameditor.h"

#include <QLineEdit>

/// Edits a value as text. A text that its validator does not accept is not committed.
class TextEditor : public QLineEdit, public ParamEditor
{
public:
    TextEditor();

    void fill(const QModelIndex& index) final;
    bool isBeingEdited() const final { return m_isTyped; }
    QVariant takeEdit() final;
    QString complaint() const final;

protected:
    /// The text for what the model's edit role gives, empty when that is no value.
    virtual QString toText(const QVariant& editValue) const = 0;
    /// \a text, which is acceptable, as the model's setData() takes it.
    virtual QVariant toValue(const QString& text) const = 0;
    virtual QString complaintAbout(const QString& text) const = 0;

private:
    bool m_isTyped = false; ///< not isModified(), which the attempt to fix a wrong text up resets
};
