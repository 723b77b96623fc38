#pragma once

#include <QWidget>

/// The child of \a parent with an object name; it has to be there.
template <typename Child>
Child& childOf(const QWidget& parent, const char* name)
{
    return *parent.findChild<Child*>(QLatin1String(name));
}
