#include "maceditor.h"

#include "addresstext.h"

#include <QRegularExpressionValidator>

MacEditor::MacEditor()
{
    static const QRegularExpression sixBytes(QStringLiteral("([0-9A-Fa-f]{2}[:-]?){5}[0-9A-Fa-f]{2}"));
    setValidator(new QRegularExpressionValidator(sixBytes, this));
}

QString MacEditor::toText(const QVariant& editValue) const
{
    return editValue.userType() == QMetaType::LongLong ? macText(editValue.toULongLong()) : QString();
}

QVariant MacEditor::toValue(const QString& text) const
{
    QString digits = text;
    digits.remove(QLatin1Char(':')).remove(QLatin1Char('-'));
    return digits.toLongLong(nullptr, 16);
}

QString MacEditor::complaintAbout(const QString& text) const
{
    return tr("\"%1\" is not a MAC address.").arg(text);
}
