#include "widgetenabling.h"

namespace ZetoGui {

void WidgetEnabling::setOffered(QWidget* widget, bool offered)
{
    State& known = state(widget);
    known.offered = offered;
    apply(known);
}

void WidgetEnabling::setAllowed(QWidget* widget, bool allowed)
{
    State& known = state(widget);
    known.allowed = allowed;
    apply(known);
}

void WidgetEnabling::release(QWidget* widget)
{
    State& known = state(widget);
    known.offered = false;
    known.allowed = true;
    apply(known);
}

WidgetEnabling::State& WidgetEnabling::state(QWidget* widget)
{
    State& known = m_states[widget];
    if (!known.widget)
        known = {widget};
    return known;
}

void WidgetEnabling::apply(const State& state)
{
    state.widget->setEnabled(state.offered && state.allowed);
}

} // namespace ZetoGui
