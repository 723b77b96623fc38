#pragma once

#include "stepgrid.h"

#include <QKeyEvent>
#include <QLocale>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

/// What the integer and the double spin box add to Qt's: values on a step grid and typed text that waits for
/// Enter. \a Base is QSpinBox or QDoubleSpinBox.
template <typename Base>
class SnappingSpinBox : public Base
{
public:
    using Value = decltype(std::declval<const Base&>().value());

    explicit SnappingSpinBox(QWidget* parent)
        : Base(parent)
    {
    }

    bool snapToStep() const { return m_snapToStep; }
    /// Whether stepping and Enter round to minimum + n * singleStep, the ends of the range excepted. A value
    /// that is set stays as it is.
    void setSnapToStep(bool snap) { m_snapToStep = snap; }

    bool acceptWhileTyping() const { return m_acceptWhileTyping; }
    /// If not, typed text becomes the value by Enter alone and is lost when the focus leaves.
    void setAcceptWhileTyping(bool accept) { m_acceptWhileTyping = accept; }

    void stepBy(int steps) override
    {
        Base::setValue(snapped(stepped(valueToStepFrom(), steps)));
        Base::selectAll();
    }

protected:
    /// As Base::setValue(), but text that is being typed survives a value that is not news, and what is no
    /// finite number is ignored: Base would take it for its maximum.
    void setChangedValue(Value value)
    {
        if (isFinite(value) && value != Base::value())
            Base::setValue(value);
    }

    QValidator::State validate(QString& text, int& position) const override
    {
        const QValidator::State state = Base::validate(text, position);
        return m_acceptWhileTyping || state == QValidator::Invalid ? state : QValidator::Intermediate;
    }

    void fixup(QString& text) const override
    {
        // Text that the base class repairs and that still is not acceptable becomes 0.
        if (m_acceptWhileTyping)
            Base::fixup(text);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (m_acceptWhileTyping || !isEnter) {
            Base::keyPressEvent(event);
            return;
        }
        takeTypedText();
        event->accept();
    }

private:
    static bool isFinite(Value value)
    {
        if constexpr (std::is_floating_point_v<Value>)
            return std::isfinite(value);
        else
            return true;
    }

    /// Limited to the range or wrapped around it.
    Value stepped(Value start, int steps) const
    {
        const Value step = Base::singleStep();
        if (Base::wrapping())
            return StepGrid::steppedAround<Value>(start, step, steps, Base::minimum(), Base::maximum());
        const Value beyond = (steps > 0) == (step > 0) ? Base::maximum() : Base::minimum();
        const Value target = StepGrid::stepped<Value>(start, step, steps).value_or(beyond);
        return std::clamp(target, Base::minimum(), Base::maximum());
    }

    Value snapped(Value value) const
    {
        return m_snapToStep
                   ? StepGrid::snapped<Value>(value, Base::minimum(), Base::maximum(), Base::singleStep())
                   : value;
    }

    /// Typed text counts although nobody has been told of it yet.
    Value valueToStepFrom() const
    {
        QString text = Base::text();
        int position = 0;
        return this->validate(text, position) == QValidator::Acceptable ? Base::valueFromText(text)
                                                                        : Base::value();
    }

    /// Text that is no number gives way to the value.
    void takeTypedText()
    {
        const QString text = Base::cleanText();
        bool isNumber = false;
        Value typed = 0;
        if constexpr (std::is_integral_v<Value>)
            typed = Base::locale().toInt(text, &isNumber);
        else
            typed = Base::locale().toDouble(text, &isNumber);
        Base::setValue(isNumber && isFinite(typed) ? snapped(typed) : Base::value());
        Base::selectAll();
        emit Base::editingFinished();
    }

    bool m_snapToStep = false;
    bool m_acceptWhileTyping = true;
};
