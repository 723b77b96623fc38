#pragma once

#include <QString>

class QWidget;

/// Types any characters, also such that no key of Qt Test stands for.
void typeText(QWidget* widget, const QString& text);

/// Does \a actions one after the other at the widget that has the focus then: 'text is typed, anything else
/// is the name of a key or key sequence, as in "Down F2 '12 Return Ctrl+C".
void pressKeys(const QString& actions);
