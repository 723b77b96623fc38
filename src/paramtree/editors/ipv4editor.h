#pragma once

#include "texteditor.h"

/// Edits an IPv4 address in dotted decimal, which is also its form on both sides of the model.
class IPv4Editor : public TextEditor
{
    Q_OBJECT

public:
    IPv4Editor();

protected:
    QString toText(const QVariant& editValue) const override;
    QVariant toValue(const QString& text) const override;
    QString complaintAbout(const QString& text) const override;
};
