#include "addresstext.h"

#include <QStringList>
#include <QVector>

QString ipv4Text(quint32 address)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(address >> 24)
        .arg(address >> 16 & 0xFF)
        .arg(address >> 8 & 0xFF)
        .arg(address & 0xFF);
}

quint32 ipv4FromText(const QString& text)
{
    quint32 address = 0;
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char('.'));
    for (const QStringRef& part : parts)
        address = address << 8 | part.toUInt();
    return address;
}

QString macText(quint64 address)
{
    const auto group = [address](int byte) {
        return QStringLiteral("%1").arg(address >> (8 * byte) & 0xFF, 2, 16, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3:%4:%5:%6")
        .arg(group(5), group(4), group(3), group(2), group(1), group(0));
}
