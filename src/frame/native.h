#pragma once

#include <ZetoCameraGuiApi/zetowindowhandle.h>

#include <Qt>

class QByteArray;
class QPoint;
class QRect;
class QString;
class QWindow;

/// All that the library asks of the platform's own windows. There is one source file for each platform.
///
/// A window that is gone, or of a platform without native windows, is no error: nothing happens then.
/// Everything but environment() needs a QGuiApplication and belongs to its thread.
namespace Native {

bool isWindow(HWND window);

/// Makes \a window, of Qt, a child of the foreign window \a parent, or of none.
void embed(HWND window, HWND parent);

/// Keeps \a window, of Qt and not shown yet, above the foreign window \a owner.
void setOwner(QWindow& window, HWND owner);

/// Position on the screen in device pixels.
QRect rectangle(HWND window);

/// A disabled window gets neither mouse nor keys. It is enabled at once, however often it was disabled.
void setEnabled(HWND window, bool enabled);

/// Makes the window's top-level window the active one.
void activate(HWND window);

void raise(HWND window);

/// The window with the keyboard focus, null when it is of neither the program of \a window nor this one.
HWND focus(HWND window);

void setFocus(HWND window);

/// True for the message, as QWidget::nativeEvent() gets it, that its window now has the keyboard focus.
bool isFocusMessage(const QByteArray& eventType, void* message);

/// Where focus that comes right now comes from: mouse, Tab or Shift+Tab, told by what is held down.
Qt::FocusReason focusReason();

/// A variable of the process's environment, empty when it is not set.
QString environment(const char* name);

} // namespace Native
