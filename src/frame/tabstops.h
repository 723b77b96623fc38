#pragma once

class QWidget;

/// The controls that Tab visits within a window, in the order of its focus chain.
namespace TabStops {

/// The first one from \a start on, itself included; null when there is none.
QWidget* firstFrom(QWidget* start);

/// True when Tab on \a control leads out of the window.
bool isLast(const QWidget* control);

/// True when Shift+Tab on \a control leads out of the window.
bool isFirst(const QWidget* control);

} // namespace TabStops
