#include "ipv4editor.h"

#include <QRegularExpressionValidator>

IPv4Editor::IPv4Editor()
{
    static const QRegularExpression fourOctets(
        QStringLiteral("(%1\\.){3}%1").arg(QStringLiteral("(25[0-5]|2[0-4]\\d|[01]?\\d?\\d)")));
    setValidator(new QRegularExpressionValidator(fourOctets, this));
}

QString IPv4Editor::toText(const QVariant& editValue) const
{
    QString text = editValue.toString();
    int position = 0;
    return validator()->validate(text, position) == QValidator::Acceptable ? text : QString();
}

QVariant IPv4Editor::toValue(const QString& text) const
{
    return text;
}

QString IPv4Editor::complaintAbout(const QString& text) const
{
    return tr("\"%1\" is not an IPv4 address.").arg(text);
}
