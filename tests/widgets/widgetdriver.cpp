#include "widgetdriver.h"

#include <QApplication>
#include <QKeySequence>
#include <QSlider>
#include <QStyleOptionSlider>
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

void turnWheel(QWidget* target, int notches)
{
    const QPointF position = target->rect().center();
    QWheelEvent event(position, target->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, notches * 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

/// QTest::mouseMove() holds no button.
void dragTo(QSlider* slider, const QPoint& position)
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
    auto* const slider = qobject_cast<QSlider*>(target);
    const QString argument = word.section(QLatin1Char(':'), 1);
    if (word.startsWith(QLatin1String("type:")))
        QTest::keyClicks(target, argument);
    else if (word == QLatin1String("wheel+") || word == QLatin1String("wheel-"))
        turnWheel(target, word.endsWith(QLatin1Char('+')) ? 1 : -1);
    else if (word == QLatin1String("click"))
        QTest::mouseClick(target, Qt::LeftButton);
    else if (word == QLatin1String("press"))
        QTest::mousePress(target, Qt::LeftButton, {}, handleAt(slider, slider->sliderPosition()));
    else if (word.startsWith(QLatin1String("drag:")))
        dragTo(slider, handleAt(slider, argument.toInt()));
    else if (word == QLatin1String("release"))
        QTest::mouseRelease(target, Qt::LeftButton, {}, handleAt(slider, slider->sliderPosition()));
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
