#include "hostwindow.h"

#include <windows.h>

namespace {

BOOL CALLBACK countOne(HWND /*window*/, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

} // namespace

class HostWindow::Native
{
public:
    Native(const QRect& at, Kind kind)
        : window(CreateWindowExW(0, L"STATIC", L"host",
                                 (kind == Bare ? WS_POPUP : WS_OVERLAPPEDWINDOW) | WS_VISIBLE, at.x(), at.y(),
                                 at.width(), at.height(), nullptr, nullptr, nullptr, nullptr))
        , control(CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 50, 20, window, nullptr,
                                  nullptr, nullptr))
    {
    }

    const HWND window;
    const HWND control;
};

HostWindow::HostWindow(const QRect& rectangle, Kind kind)
    : m_native(new Native(rectangle, kind))
{
}

HostWindow::~HostWindow()
{
    DestroyWindow(m_native->window);
}

HWND HostWindow::handle() const
{
    return m_native->window;
}

HWND HostWindow::control() const
{
    return m_native->control;
}

void HostWindow::destroy()
{
    DestroyWindow(m_native->window);
}

void HostWindow::focus(HWND window)
{
    SetFocus(window);
}

HWND HostWindow::focused() const
{
    return GetFocus();
}

bool HostWindow::takesKeys(HWND window) const
{
    return focused() == window;
}

bool HostWindow::isEnabled() const
{
    return IsWindowEnabled(m_native->window);
}

int HostWindow::childCount() const
{
    int count = 0;
    EnumChildWindows(m_native->window, countOne, reinterpret_cast<LPARAM>(&count));
    return count;
}

int HostWindow::windowCount() const
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), countOne, reinterpret_cast<LPARAM>(&count));
    return count + childCount();
}
