#pragma once

#include <QValidator>

#include <limits>

/// Checks that a text is a signed 64-bit integer within [bottom, top], written in the given base.
///
/// Bounds are inclusive; without any, every value of the type is accepted. A number that further digits can
/// still bring into the range is Intermediate, as are the empty text and, when negative values are allowed, a
/// lone minus sign. There is no fixup: the caller decides what becomes of a text that is not acceptable.
class Int64Validator : public QValidator
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")
    Q_CLASSINFO("version", "1.0.0")
    Q_CLASSINFO("date", "03/28/2018")
    Q_PROPERTY(qint64 bottom READ bottom WRITE setBottom NOTIFY bottomChanged)
    Q_PROPERTY(qint64 top READ top WRITE setTop NOTIFY topChanged)

public:
    Int64Validator();
    Int64Validator(qint64 bottom, qint64 top);

    State validate(QString& text, int& position) const override;

    qint64 bottom() const { return m_bottom; }
    qint64 top() const { return m_top; }
    int base() const { return m_base; }

    void setBottom(qint64 bottom);
    void setTop(qint64 top);
    void setRange(qint64 bottom, qint64 top);
    /// \a base is 2 to 36. No signal is emitted.
    void setBase(int base) { m_base = base; }

signals:
    void bottomChanged(qint64 bottom);
    void topChanged(qint64 top);

private:
    State stateOf(qint64 value) const;
    bool moreDigitsMayFit(qint64 value) const;

    qint64 m_bottom = std::numeric_limits<qint64>::min();
    qint64 m_top = std::numeric_limits<qint64>::max();
    int m_base = 10;
};
