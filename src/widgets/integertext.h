#pragma once

#include <QLocale>
#include <QString>

/// The text forms of a 64-bit integer. Base 10 is written as the locale writes it; every other base from 2 to
/// 36 in lower-case ASCII digits without a prefix, the minus sign in front.
namespace IntegerText {

QString fromInteger(qint64 value, int base, const QLocale& locale, bool groupSeparators);

/// \a text with the locale's digits and minus sign made ASCII and, where they are shown, its group separators
/// left out, so that what fromInteger() wrote can be read with QString::toLongLong(). Other bases come back
/// as they are.
QString toPlain(QString text, int base, const QLocale& locale, bool groupSeparators);

} // namespace IntegerText
