#pragma once

#include "parameditor.h"

#include <QLineEdit>
#include <QLocale>

/// A spin box in the place of a value: without frame, accelerated, committing when it is left or confirmed.
/// It writes numbers as the cells show them, whatever the locale.
template <typename SpinBox>
class NumberEditor : public SpinBox, public ParamEditor
{
public:
    NumberEditor()
    {
        using Number = decltype(this->value());
        this->setFrame(false);
        this->setAccelerated(true);
        this->setKeyboardTracking(false);
        this->setLocale(QLocale::c());
        QObject::connect(this->lineEdit(), &QLineEdit::textEdited, this, [this] {
            m_isTyping = true;
            m_hasEdit = this->hasAcceptableInput();
        });
        QObject::connect(this, qOverload<Number>(&SpinBox::valueChanged), this, [this] { m_hasEdit = true; });
    }

    void fill(const QModelIndex& index) final
    {
        m_isTyping = m_hasEdit = false;
        showValue(index.data(Qt::EditRole));
    }

    bool isBeingEdited() const final { return m_isTyping || m_hasEdit; }

    QVariant takeEdit() final
    {
        this->interpretText();
        const bool hadEdit = m_hasEdit;
        m_isTyping = m_hasEdit = false;
        return hadEdit ? QVariant(this->value()) : QVariant();
    }

    QString complaint() const final
    {
        const QString text = numberPart(this->lineEdit()->text()).trimmed();
        const bool isWrong = m_isTyping && !text.isEmpty() && !this->hasAcceptableInput();
        return isWrong ? complaintAbout(text) : QString();
    }

protected:
    /// Shows \a value, or an empty field when it is no number: what cannot be read can still be written.
    virtual void showValue(const QVariant& value) = 0;

    virtual QString complaintAbout(const QString& text) const = 0;

    /// \a text without the suffix, which it lacks while it is typed over.
    QString numberPart(const QString& text) const
    {
        return text.endsWith(this->suffix()) ? text.chopped(this->suffix().length()) : text;
    }

private:
    bool m_isTyping = false; ///< the text may have no acceptable state yet
    bool m_hasEdit = false;
};
