#include "native.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QProcessEnvironment>
#include <QRect>

#include <windows.h>

namespace Native {

namespace {

bool isDown(int key)
{
    return GetKeyState(key) < 0;
}

} // namespace

bool isWindow(HWND window)
{
    return QGuiApplication::platformName() == QLatin1String("windows") && IsWindow(window);
}

void embed(HWND window, HWND parent)
{
    // Only a window with the style of a child can be given a parent.
    SetWindowLongA(window, GWL_STYLE, WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN);
    SetParent(window, parent);
}

void setOwner(QWindow& /*window*/, HWND /*owner*/)
{
    // Windows itself makes the top-level window of the host, which is the parent in Qt, the owner.
}

QRect rectangle(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
}

void setEnabled(HWND window, bool enabled)
{
    EnableWindow(window, enabled);
}

void activate(HWND window)
{
    SetActiveWindow(window);
}

void raise(HWND window)
{
    BringWindowToTop(window);
}

HWND focus(HWND /*window*/)
{
    return GetFocus();
}

void setFocus(HWND window)
{
    SetFocus(window);
}

bool isFocusMessage(const QByteArray& eventType, void* message)
{
    return eventType == "windows_generic_MSG" && static_cast<const MSG*>(message)->message == WM_SETFOCUS;
}

Qt::FocusReason focusReason()
{
    if (isDown(VK_LBUTTON) || isDown(VK_RBUTTON))
        return Qt::MouseFocusReason;
    return isDown(VK_SHIFT) ? Qt::BacktabFocusReason : Qt::TabFocusReason;
}

QString environment(const char* name)
{
    // Not the C run time's copy, which does not see what the host has set since.
    return QProcessEnvironment::systemEnvironment().value(QLatin1String(name));
}

} // namespace Native
