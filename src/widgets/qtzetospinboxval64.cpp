#include "qtzetospinboxval64.h"

#include "integertext.h"
#include "qtzetospinboxval64_p.h"

#include <QLineEdit>

QtZetoSpinBoxVal64::QtZetoSpinBoxVal64(QWidget* parent)
    : QAbstractSpinBox(parent)
    , m_d(std::make_unique<QtZetoSpinBoxVal64Private>(this))
{
    m_d->initialize();
}

QtZetoSpinBoxVal64::~QtZetoSpinBoxVal64() = default;

QString QtZetoSpinBoxVal64::prefix() const
{
    return m_d->prefix;
}

void QtZetoSpinBoxVal64::setPrefix(const QString& prefix)
{
    m_d->prefix = prefix;
}

QString QtZetoSpinBoxVal64::suffix() const
{
    return m_d->suffix;
}

void QtZetoSpinBoxVal64::setSuffix(const QString& suffix)
{
    m_d->suffix = suffix;
}

int QtZetoSpinBoxVal64::displayIntegerBase() const
{
    return m_d->displayIntegerBase;
}

void QtZetoSpinBoxVal64::setDisplayIntegerBase(int base)
{
    const bool isBase = base >= 2 && base <= 36;
    if (!isBase)
        qWarning("QtZetoSpinBoxVal64::setDisplayIntegerBase: invalid base (%d)", base);
    m_d->displayIntegerBase = isBase ? base : 10;
    m_d->validator.setBase(m_d->displayIntegerBase);
}

QString QtZetoSpinBoxVal64::cleanText() const
{
    return QString::number(m_d->value);
}

qint64 QtZetoSpinBoxVal64::value() const
{
    return m_d->value;
}

qint64 QtZetoSpinBoxVal64::minimum() const
{
    return m_d->minimum;
}

qint64 QtZetoSpinBoxVal64::maximum() const
{
    return m_d->maximum;
}

qint64 QtZetoSpinBoxVal64::singleStep() const
{
    return m_d->singleStep;
}

void QtZetoSpinBoxVal64::setMinimum(qint64 minimum)
{
    m_d->setBounds(minimum, qMax(m_d->maximum, minimum));
    m_d->validator.setRange(minimum, m_d->maximum);
}

void QtZetoSpinBoxVal64::setMaximum(qint64 maximum)
{
    m_d->setBounds(qMin(m_d->minimum, maximum), maximum);
    m_d->validator.setRange(m_d->minimum, maximum);
}

void QtZetoSpinBoxVal64::setRange(qint64 minimum, qint64 maximum)
{
    m_d->setBounds(minimum, qMax(minimum, maximum));
    m_d->validator.setRange(minimum, maximum); // a reversed range accepts no text at all
}

void QtZetoSpinBoxVal64::setSingleStep(qint64 step)
{
    m_d->singleStep = step;
}

bool QtZetoSpinBoxVal64::selectOnFocus() const
{
    return m_d->selectOnFocus;
}

void QtZetoSpinBoxVal64::setSelectOnFocus(bool on)
{
    m_d->selectOnFocus = on;
}

bool QtZetoSpinBoxVal64::snapToStep() const
{
    return m_d->snapToStep;
}

void QtZetoSpinBoxVal64::setSnapToStep(bool on)
{
    m_d->snapToStep = on;
}

bool QtZetoSpinBoxVal64::discardUnconfirmedEdit() const
{
    return m_d->discardUnconfirmedEdit;
}

void QtZetoSpinBoxVal64::setDiscardUnconfirmedEdit(bool on)
{
    m_d->discardUnconfirmedEdit = on;
}

bool QtZetoSpinBoxVal64::trackWhileHeld() const
{
    return m_d->trackWhileHeld;
}

void QtZetoSpinBoxVal64::setTrackWhileHeld(bool /*on*/)
{
    m_d->trackWhileHeld = false;
}

QSize QtZetoSpinBoxVal64::sizeHint() const
{
    if (m_d->cachedSizeHint.isEmpty()) {
        ensurePolished();
        const QString fixedText = m_d->prefix + m_d->suffix + QLatin1Char(' ');
        m_d->cachedSizeHint = m_d->sizeFor(lineEdit()->sizeHint().height(), fixedText);
    }
    return m_d->cachedSizeHint;
}

QSize QtZetoSpinBoxVal64::minimumSizeHint() const
{
    if (m_d->cachedMinimumSizeHint.isEmpty()) {
        ensurePolished();
        const QString fixedText = m_d->prefix + QLatin1Char(' ');
        m_d->cachedMinimumSizeHint = m_d->sizeFor(lineEdit()->minimumSizeHint().height(), fixedText);
    }
    return m_d->cachedMinimumSizeHint;
}

QValidator::State QtZetoSpinBoxVal64::validate(QString& text, int& position) const
{
    QString number = m_d->plainNumber(text);
    return m_d->validator.validate(number, position);
}

void QtZetoSpinBoxVal64::fixup(QString& /*text*/) const
{
    // A text that is no value gives way to the current value when it is committed; nothing is guessed.
}

void QtZetoSpinBoxVal64::stepBy(int steps)
{
    const bool commits = m_d->trackWhileHeld || !m_d->held;
    const auto target = m_d->stepTarget(commits ? m_d->value : m_d->pendingValue, steps);
    if (target && commits) {
        m_d->commit(*target);
    } else if (target) {
        m_d->show(*target);
        m_d->pendingValue = *target;
    }
    if (m_d->selectOnFocus)
        selectAll();
    update();
}

void QtZetoSpinBoxVal64::interpretText()
{
    m_d->flushTypedText();
}

QString QtZetoSpinBoxVal64::textFromValue(qint64 value) const
{
    return IntegerText::fromInteger(value, m_d->displayIntegerBase, locale(), isGroupSeparatorShown());
}

qint64 QtZetoSpinBoxVal64::valueFromText(const QString& text) const
{
    QString checked = text;
    int position = 0;
    if (validate(checked, position) != QValidator::Acceptable)
        return m_d->minimum;
    return m_d->parsed(checked).value_or(m_d->minimum);
}

void QtZetoSpinBoxVal64::setValue(qint64 value)
{
    m_d->commit(value);
}

void QtZetoSpinBoxVal64::selectAll()
{
    lineEdit()->setSelection(m_d->numberStart(), m_d->numberEnd() - m_d->numberStart());
}

void QtZetoSpinBoxVal64::clear()
{
    lineEdit()->setText(m_d->prefix + m_d->suffix);
    lineEdit()->setCursorPosition(m_d->prefix.length());
}

QAbstractSpinBox::StepEnabled QtZetoSpinBoxVal64::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    if (wrapping())
        return StepUpEnabled | StepDownEnabled;
    StepEnabled enabled = StepNone;
    if (m_d->pendingValue > m_d->minimum)
        enabled |= StepDownEnabled;
    if (m_d->pendingValue < m_d->maximum)
        enabled |= StepUpEnabled;
    return enabled;
}
