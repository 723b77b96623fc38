#include "widgetdriver.h"

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QSlider>
#include <QStyleOption>
#include <QWheelEvent>
#include <QtTest>

#include <utility>

namespace {

QPoint handleAt(QSlider* slider, int position)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.subControls = QStyle::SC_SliderHandle;
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = position;
    option.upsideDown =
        (slider->orientation() == Qt::Vertical) != (slider->layoutDirection() == Qt::RightToLeft);
    const QStyle* const style = slider->style();
    return style->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
}

QPoint upArrowOf(QWidget* spinBox)
{
    QStyleOptionSpinBox option;
    option.initFrom(spinBox);
    option.subControls = QStyle::SC_All;
    const QStyle* const style = spinBox->style();
    return style->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, spinBox).center();
}

/// Where a person presses to change the value.
QPoint gripOf(QWidget* target)
{
    auto* const slider = qobject_cast<QSlider*>(target);
    return slider ? handleAt(slider, slider->sliderPosition()) : upArrowOf(target);
}

void turnWheel(QWidget* target, int notches)
{
    const QPointF position = target->rect().center();
    QWheelEvent event(position, target->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, notches * 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

/// QTest::mouseMove() holds no button.
void dragTo(QWidget* slider, const QPoint& position)
{
    QMouseEvent event(QEvent::MouseMove, position, slider->mapToGlobal(position), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(slider, &event);
}

void pressKey(QWidget* target, int keyAndModifiers)
{
    QTest::keyClick(target, Qt::Key(keyAndModifiers & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(keyAndModifiers & int(Qt::KeyboardModifierMask)));
}

/// Presses ('+'), releases ('-') or repeats ('*') a key.
void holdKey(QWidget* target, QChar how, const QString& key)
{
    const auto type = how == QLatin1Char('-') ? QEvent::KeyRelease : QEvent::KeyPress;
    QKeyEvent event(type, QKeySequence::fromString(key)[0], {}, QString(), how == QLatin1Char('*'));
    QApplication::sendEvent(target, &event);
}

void paste(QWidget* target, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(target, QKeySequence::Paste);
}

void lookAtAnotherWindow()
{
    QWidget other;
    QVERIFY(showActive(&other));
}

QWidget* part(QWidget* widget, const QString& name)
{
    auto* const child = widget->findChild<QWidget*>(name);
    auto* const slider = child ? child->findChild<QSlider*>() : nullptr;
    QWidget* const target = slider ? slider : child;
    if (target)
        target->setFocus(Qt::TabFocusReason);
    else
        qWarning("no child of the name %s", qPrintable(name));
    return target;
}

void doOne(QWidget* target, const QString& word)
{
    const QString action = word.section(QLatin1Char(':'), 0, 0);
    const QString argument = word.section(QLatin1Char(':'), 1);
    if (action == QLatin1String("type"))
        QTest::keyClicks(target, argument);
    else if (action == QLatin1String("paste"))
        paste(target, argument);
    else if (action == QLatin1String("value"))
        target->setProperty("value", argument);
    else if (action == QLatin1String("wheel+") || action == QLatin1String("wheel-"))
        turnWheel(target, action.endsWith(QLatin1Char('+')) ? 1 : -1);
    else if (action == QLatin1String("click"))
        QTest::mouseClick(target, Qt::LeftButton);
    else if (action == QLatin1String("press"))
        QTest::mousePress(target, Qt::LeftButton, {}, gripOf(target));
    else if (action == QLatin1String("drag"))
        dragTo(target, handleAt(qobject_cast<QSlider*>(target), argument.toInt()));
    else if (action == QLatin1String("release"))
        QTest::mouseRelease(target, Qt::LeftButton, {}, gripOf(target));
    else if (action == QLatin1String("otherWindow"))
        lookAtAnotherWindow();
    else if (QStringLiteral("+-*").contains(word.front()))
        holdKey(target, word.front(), word.mid(1));
    else
        pressKey(target, QKeySequence::fromString(word)[0]);
}

} // namespace

QString SignalLog::take()
{
    return std::exchange(m_lines, {}).join(QLatin1String(", "));
}

void drive(QWidget* widget, const QString& script)
{
    QWidget* target = widget;
    for (const QString& word : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('@')))
            target = part(widget, word.mid(1));
        else
            doOne(target, word);
    }
}

void addScripts(std::initializer_list<Script> rows)
{
    for (const char* const column : {"setup", "script", "expected"})
        QTest::addColumn<QString>(column);
    for (const Script& row : rows)
        QTest::newRow(row.name) << row.setup << row.script << row.expected;
}

bool showActive(QWidget* widget)
{
    widget->show();
    widget->activateWindow();
    return QTest::qWaitForWindowActive(widget);
}
