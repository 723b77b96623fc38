#include "int64validator.h"

Int64Validator::Int64Validator() = default;

Int64Validator::Int64Validator(qint64 bottom, qint64 top)
    : m_bottom(bottom)
    , m_top(top)
{
}

QValidator::State Int64Validator::validate(QString& text, int& /*position*/) const
{
    if (text.isEmpty())
        return Intermediate;
    if (text == QLatin1String("-"))
        return m_bottom < 0 ? Intermediate : Invalid;

    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber, m_base);
    return isNumber ? stateOf(value) : Invalid;
}

void Int64Validator::setBottom(qint64 bottom)
{
    setRange(bottom, m_top);
}

void Int64Validator::setTop(qint64 top)
{
    setRange(m_bottom, top);
}

void Int64Validator::setRange(qint64 bottom, qint64 top)
{
    if (bottom != m_bottom) {
        m_bottom = bottom;
        emit bottomChanged(bottom);
    }
    if (top != m_top) {
        m_top = top;
        emit topChanged(top);
    }
}

QValidator::State Int64Validator::stateOf(qint64 value) const
{
    if (value >= m_bottom && value <= m_top)
        return Acceptable;
    return moreDigitsMayFit(value) ? Intermediate : Invalid;
}

/// Whether \a value, which is out of range, lies between 0 and the range. A negative range also waits for
/// positive numbers of its own size, since the sign can be typed last.
bool Int64Validator::moreDigitsMayFit(qint64 value) const
{
    if (m_bottom < 0 && m_top < 0)
        return value > m_top && m_bottom <= -value; // value > m_top, so it has a negative
    return value >= 0 && value < m_bottom;
}
