#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

namespace ZetoGui {

/// Enables widgets that the camera offers and the dialog's rules allow, both.
class WidgetEnabling
{
public:
    /// By the camera. A widget is offered until told otherwise.
    void setOffered(QWidget* widget, bool offered);
    /// By a rule of the dialog. A widget is allowed until told otherwise.
    void setAllowed(QWidget* widget, bool allowed);
    /// Not offered, and allowed as at first.
    void release(QWidget* widget);

private:
    struct State
    {
        QPointer<QWidget> widget; ///< null: the key is the address of a widget that is gone
        bool offered = true;
        bool allowed = true;
    };

    State& state(QWidget* widget);
    static void apply(const State& state);

    QHash<QWidget*, State> m_states;
};

} // namespace ZetoGui
