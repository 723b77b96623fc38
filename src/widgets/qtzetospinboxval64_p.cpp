#include "qtzetospinboxval64_p.h"

#include "integertext.h"
#include "stepgrid.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionSpinBox>

namespace {

bool isStepKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return !event.isAutoRepeat();
    default:
        return false;
    }
}

void tellAssistiveTools(QWidget* widget, qint64 value)
{
#ifndef QT_NO_ACCESSIBILITY
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
#else
    Q_UNUSED(widget)
    Q_UNUSED(value)
#endif
}

} // namespace

QtZetoSpinBoxVal64Private::QtZetoSpinBoxVal64Private(QtZetoSpinBoxVal64* spinBox)
    : owner(spinBox)
    , eventAnalyzer(this)
{
}

void QtZetoSpinBoxVal64Private::initialize()
{
    owner->installEventFilter(&eventAnalyzer);
    validator.setBase(displayIntegerBase);
    validator.setRange(minimum, maximum);
    show(value);
    QObject::connect(edit(), &QLineEdit::cursorPositionChanged, owner,
                     [this](int before, int now) { keepCursorInNumber(before, now); });
    QObject::connect(edit(), &QLineEdit::selectionChanged, owner, [this] { keepSelectionInNumber(); });
    QObject::connect(edit(), &QLineEdit::textEdited, owner, [this](const QString& text) { typed(text); });
}

QLineEdit* QtZetoSpinBoxVal64Private::edit() const
{
    return owner->lineEdit();
}

/// Where the number begins in the field. A text that is shorter than the prefix has no number: both ends lie
/// at its end then.
int QtZetoSpinBoxVal64Private::numberStart() const
{
    return qMin(prefix.length(), edit()->text().length());
}

int QtZetoSpinBoxVal64Private::numberEnd() const
{
    return qMax(numberStart(), edit()->text().length() - suffix.length());
}

/// The part of \a text between prefix and suffix, which are cut off by their lengths, in ASCII digits.
QString QtZetoSpinBoxVal64Private::plainNumber(const QString& text) const
{
    const QString number = text.mid(prefix.length(), text.length() - suffix.length() - prefix.length());
    return IntegerText::toPlain(number, displayIntegerBase, owner->locale(), owner->isGroupSeparatorShown());
}

std::optional<qint64> QtZetoSpinBoxVal64Private::parsed(const QString& text) const
{
    bool isNumber = false;
    const qint64 number = plainNumber(text).toLongLong(&isNumber, displayIntegerBase);
    return isNumber ? std::make_optional(number) : std::nullopt;
}

/// Shows \a number in the field. A selection is moved to the new number; otherwise the cursor keeps its place
/// among the characters behind it, so that typing goes on where it was.
void QtZetoSpinBoxVal64Private::show(qint64 number)
{
    const QString text = prefix + owner->textFromValue(number) + suffix;
    if (text == edit()->text())
        return;
    const bool hadSelection = edit()->hasSelectedText();
    const int charactersBehind = edit()->text().length() - edit()->cursorPosition();
    edit()->setText(text);
    if (hadSelection)
        owner->selectAll();
    else
        edit()->setCursorPosition(qBound(numberStart(), text.length() - charactersBehind, numberEnd()));
}

void QtZetoSpinBoxVal64Private::commit(qint64 number)
{
    if (!contains(number))
        return;
    if (snapToStep)
        number = StepGrid::snapped(number, minimum, maximum, singleStep);
    show(number);
    pendingValue = number;
    if (number == value)
        return;
    value = number;
    owner->update(); // the arrows may have become enabled or disabled
    tellAssistiveTools(owner, value);
    emit owner->valueChanged(value);
    emit owner->valueChanged(edit()->text());
}

void QtZetoSpinBoxVal64Private::commitText(const QString& text, bool discard)
{
    textDirty = false;
    const std::optional<qint64> number = parsed(text);
    if (number && contains(*number) && !discard)
        commit(*number);
    else
        show(value);
}

/// Ends a hold. Steps that were shown but led out of the range are taken back.
void QtZetoSpinBoxVal64Private::commitPending()
{
    if (contains(pendingValue)) {
        commit(pendingValue);
    } else {
        pendingValue = value;
        show(value);
    }
}

void QtZetoSpinBoxVal64Private::flushTypedText()
{
    if (!owner->keyboardTracking() && textDirty)
        commitText(edit()->text(), discardUnconfirmedEdit);
}

std::optional<qint64> QtZetoSpinBoxVal64Private::stepTarget(qint64 from, int steps) const
{
    if (owner->wrapping())
        return StepGrid::steppedAround(from, singleStep, steps, minimum, maximum);
    return StepGrid::stepped(from, singleStep, steps);
}

/// Stores a range whose ends are in order; what the validator is told about it is the setters' matter.
void QtZetoSpinBoxVal64Private::setBounds(qint64 newMinimum, qint64 newMaximum)
{
    minimum = newMinimum;
    maximum = newMaximum;
    forgetSizeHints();
    owner->updateGeometry();
    owner->update();
}

void QtZetoSpinBoxVal64Private::forgetSizeHints()
{
    cachedSizeHint = QSize();
    cachedMinimumSizeHint = QSize();
}

/// The size for a line edit of \a height and the longer of both bounds followed by \a fixedText.
QSize QtZetoSpinBoxVal64Private::sizeFor(int height, const QString& fixedText) const
{
    constexpr int longestNumber = 20; // characters: INT64_MIN in base 10
    constexpr int cursorWidth = 2;
    const QFontMetrics metrics(owner->fontMetrics());
    int width = 0;
    for (const qint64 bound : {minimum, maximum}) {
        const QString number = owner->textFromValue(bound).left(longestNumber);
        width = qMax(width, metrics.horizontalAdvance(number + fixedText));
    }
    if (!owner->specialValueText().isEmpty())
        width = qMax(width, metrics.horizontalAdvance(owner->specialValueText()));

    QStyleOptionSpinBox option;
    owner->initStyleOption(&option);
    const QSize contents(width + cursorWidth, height);
    return owner->style()
        ->sizeFromContents(QStyle::CT_SpinBox, &option, contents, owner)
        .expandedTo(QApplication::globalStrut());
}

bool QtZetoSpinBoxVal64Private::EventAnalyzer::eventFilter(QObject* /*watched*/, QEvent* event)
{
    m_d->analyze(event);
    return false;
}

void QtZetoSpinBoxVal64Private::analyze(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // how the second of two quick presses arrives
        press();
        break;
    case QEvent::MouseButtonRelease:
        release();
        break;
    case QEvent::KeyPress:
        pressKey(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        if (isStepKey(*static_cast<QKeyEvent*>(event)))
            release();
        break;
    case QEvent::FocusIn:
        if (selectOnFocus)
            owner->selectAll();
        break;
    case QEvent::FocusAboutToChange:
    case QEvent::Wheel:
        flushTypedText();
        break;
    case QEvent::FocusOut: // the release of what is held down goes elsewhere from here on
    case QEvent::EnabledChange:
    case QEvent::Hide:
        if (held)
            release();
        break;
    case QEvent::LocaleChange:
        if (!textDirty)
            show(pendingValue);
        forgetSizeHints();
        owner->updateGeometry();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        forgetSizeHints();
        break;
    default:
        break;
    }
}

void QtZetoSpinBoxVal64Private::press()
{
    flushTypedText();
    held = true;
}

void QtZetoSpinBoxVal64Private::release()
{
    held = false;
    if (!trackWhileHeld)
        commitPending();
}

void QtZetoSpinBoxVal64Private::pressKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        commitText(edit()->text(), false);
    else if (isStepKey(event))
        press();
}

void QtZetoSpinBoxVal64Private::typed(const QString& text)
{
    textDirty = true;
    if (text.length() < prefix.length() + suffix.length())
        owner->clear(); // the clear button, say, has taken prefix and suffix along
    if (owner->keyboardTracking())
        commitText(edit()->text(), false);
}

void QtZetoSpinBoxVal64Private::keepCursorInNumber(int before, int now)
{
    // Positions outside the number on both sides would send each other back for ever.
    if (now < numberStart())
        edit()->setCursorPosition(qMax(before, numberStart()));
    else if (now > numberEnd())
        edit()->setCursorPosition(numberEnd());
}

/// Selecting all of the field, by key, menu, mouse or focus, selects the number alone.
void QtZetoSpinBoxVal64Private::keepSelectionInNumber()
{
    if (!edit()->hasSelectedText())
        return;
    const int start = edit()->selectionStart();
    const int end = edit()->selectionEnd();
    const int from = qBound(numberStart(), start, numberEnd());
    const int to = qBound(numberStart(), end, numberEnd());
    if (from == start && to == end)
        return;
    if (edit()->cursorPosition() == start)
        edit()->setSelection(to, from - to);
    else
        edit()->setSelection(from, to - from);
}
