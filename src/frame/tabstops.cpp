#include "tabstops.h"

#include <QWidget>

namespace TabStops {

namespace {

bool isTabStop(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
           widget->isVisibleTo(widget->window());
}

} // namespace

QWidget* firstFrom(QWidget* start)
{
    QWidget* candidate = start;
    do {
        if (isTabStop(candidate))
            return candidate;
        candidate = candidate->nextInFocusChain();
    } while (candidate != start);
    return nullptr;
}

bool isLast(const QWidget* control)
{
    const QWidget* next = control->nextInFocusChain();
    while (!next->isWindow() && !isTabStop(next))
        next = next->nextInFocusChain();
    return next->isWindow();
}

bool isFirst(const QWidget* control)
{
    if (control->isWindow())
        return true;
    const QWidget* previous = control->previousInFocusChain();
    while (!previous->isWindow() && !isTabStop(previous))
        previous = previous->previousInFocusChain();
    return previous->isWindow();
}

} // namespace TabStops
