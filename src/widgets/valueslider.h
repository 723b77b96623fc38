#pragma once

#include <QSlider>
#include <QVariant>

/// A slider whose positions stand for other values. Assistive technology is told the values and may set them;
/// the positions are nobody's business.
class ValueSlider : public QSlider
{
    Q_OBJECT

public:
    /// Numbers of one type.
    struct Reading
    {
        QVariant value;
        QVariant minimum;
        QVariant maximum;
        QVariant step;
    };

    explicit ValueSlider(QWidget* parent);

    const Reading& reading() const { return m_reading; }
    void setReading(const Reading& reading);

signals:
    /// Assistive technology asks for \a value, whatever its type and range.
    void valueRequested(const QVariant& value);

private:
    Reading m_reading;
};
