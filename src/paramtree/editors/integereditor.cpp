#include "integereditor.h"

#include "stepgrid.h"

IntegerEditor::IntegerEditor(const IntegerLimits& limits, int base, const QString& unit)
    : m_limits(limits)
{
    setDiscardUnconfirmedEdit(false);
    setDisplayIntegerBase(base);
    setSuffix(unit);
    setSingleStep(qMax(limits.increment, qint64{1}));
    connect(lineEdit(), &QLineEdit::textEdited, this, &IntegerEditor::beginSnapping);
}

void IntegerEditor::adopt(const ParamEditor& fresh)
{
    const auto* other = dynamic_cast<const IntegerEditor*>(&fresh);
    if (!other)
        return;
    m_limits = other->m_limits;
    setSingleStep(other->singleStep());
}

void IntegerEditor::stepBy(int steps)
{
    beginSnapping();
    QtZetoSpinBoxVal64::stepBy(steps);
}

void IntegerEditor::beginSnapping()
{
    setSnapToStep(m_limits.increment > 1 && minimum() == m_limits.minimum);
}

void IntegerEditor::showValue(const QVariant& value)
{
    const bool isNumber = value.userType() == QMetaType::LongLong;
    const qint64 number =
        isNumber ? value.toLongLong() : qBound(m_limits.minimum, qint64{0}, m_limits.maximum);
    // What the camera holds is shown as it is, also out of its own limits or off its grid.
    setRange(qMin(m_limits.minimum, number), qMax(m_limits.maximum, number));
    setSnapToStep(false);
    setValue(number);
    // Off the grid it also stays as it is when Return confirms it.
    if (StepGrid::snapped(number, minimum(), maximum(), singleStep()) == number)
        beginSnapping();
    if (!isNumber)
        clear();
}

QString IntegerEditor::complaintAbout(const QString& text) const
{
    return tr("%1 is not a number from %2 to %3.")
        .arg(text, textFromValue(m_limits.minimum), textFromValue(m_limits.maximum));
}
