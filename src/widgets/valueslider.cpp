#include "valueslider.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleValueSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleValueSlider(ValueSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
        , m_slider(slider)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_slider->reading().value.toString()
                                          : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_slider->reading().value; }
    QVariant minimumValue() const override { return m_slider->reading().minimum; }
    QVariant maximumValue() const override { return m_slider->reading().maximum; }
    QVariant minimumStepSize() const override { return m_slider->reading().step; }
    void setCurrentValue(const QVariant& value) override { emit m_slider->valueRequested(value); }

private:
    ValueSlider* m_slider; // outlives its interface: Qt destroys the interface with the object
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* const slider = qobject_cast<ValueSlider*>(object);
    return slider ? new AccessibleValueSlider(slider) : nullptr;
}

} // namespace

ValueSlider::ValueSlider(QWidget* parent)
    : QSlider(parent)
{
    static const bool installed = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(installed)
}

void ValueSlider::setReading(const Reading& reading)
{
    const bool changed = reading.value != m_reading.value;
    m_reading = reading;
    if (changed) {
        QAccessibleValueChangeEvent event(this, reading.value);
        QAccessible::updateAccessibility(&event);
    }
}
