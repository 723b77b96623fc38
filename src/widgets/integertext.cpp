#include "integertext.h"

namespace {

QChar toPlainCharacter(QChar character, const QLocale& locale)
{
    if (character == locale.negativeSign())
        return QLatin1Char('-');
    const int digit = character.unicode() - locale.zeroDigit().unicode();
    return digit >= 0 && digit <= 9 ? QChar('0' + digit) : character;
}

} // namespace

QString IntegerText::fromInteger(qint64 value, int base, const QLocale& locale, bool groupSeparators)
{
    if (base != 10) {
        const auto bits = static_cast<quint64>(value);
        return value < 0 ? QLatin1Char('-') + QString::number(0 - bits, base) : QString::number(bits, base);
    }
    QString text = locale.toString(value);
    return groupSeparators ? text : text.remove(locale.groupSeparator());
}

QString IntegerText::toPlain(QString text, int base, const QLocale& locale, bool groupSeparators)
{
    if (base != 10)
        return text;
    if (groupSeparators)
        text.remove(locale.groupSeparator());
    for (QChar& character : text)
        character = toPlainCharacter(character, locale);
    return text;
}
