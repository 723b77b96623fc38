#include "floateditor.h"

#include "floattext.h"

FloatEditor::FloatEditor(const FloatLimits& limits, int displayPrecision, const QString& unit)
    : m_limits(limits)
    , m_displayPrecision(displayPrecision)
{
    // The base class rounds to its decimals: as many as it takes, so that no value is changed.
    setDecimals(std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10);
    setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    setSuffix(unit);
}

void FloatEditor::adopt(const ParamEditor& fresh)
{
    if (const auto* other = dynamic_cast<const FloatEditor*>(&fresh))
        m_limits = other->m_limits;
}

void FloatEditor::stepBy(int steps)
{
    interpretText();
    const double step =
        m_limits.increment > 0 ? m_limits.increment : FloatText::naturalStep(value(), m_displayPrecision);
    const double target = FloatText::stepped(value(), step, steps);
    setValue(qMax(m_limits.minimum, qMin(target, m_limits.maximum)));
    selectAll();
}

QString FloatEditor::textFromValue(double value) const
{
    return FloatText::fromValue(value, m_displayPrecision);
}

double FloatEditor::valueFromText(const QString& text) const
{
    const QString number = numberPart(text);
    // A text that was only looked at stands for the value with all its digits.
    if (number == textFromValue(value()))
        return value();
    return FloatText::toValue(number).value_or(value());
}

QValidator::State FloatEditor::validate(QString& text, int& /*position*/) const
{
    return FloatText::state(numberPart(text));
}

void FloatEditor::showValue(const QVariant& value)
{
    const bool isNumber = value.userType() == QMetaType::Double;
    setValue(isNumber ? value.toDouble() : 0.0);
    if (!isNumber)
        clear();
}

QString FloatEditor::complaintAbout(const QString& text) const
{
    return tr("%1 is not a number.").arg(text);
}

QAbstractSpinBox::StepEnabled FloatEditor::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (value() < m_limits.maximum)
        enabled |= StepUpEnabled;
    if (value() > m_limits.minimum)
        enabled |= StepDownEnabled;
    return enabled;
}
