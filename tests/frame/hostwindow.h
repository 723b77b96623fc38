#pragma once

#include <ZetoCameraGuiApi/zetowindowhandle.h>

#include <QRect>

#include <memory>

/// A window of a program that knows nothing of Qt, with one control in it. On X11 it has a connection of its
/// own.
class HostWindow
{
public:
    enum Kind
    {
        Bare,  ///< exactly where it was put
        Framed ///< in the care of the window manager
    };

    /// \param rectangle in device pixels on the screen
    explicit HostWindow(const QRect& rectangle, Kind kind = Bare);
    ~HostWindow();
    Q_DISABLE_COPY(HostWindow)

    HWND handle() const;
    HWND control() const;

    /// Destroys the window before its time.
    void destroy();

    void focus(HWND window);

    /// The window with the keyboard focus, also one of Qt's.
    HWND focused() const;

    /// True when keys go to \a window: it has the focus or, on X11, the window around it has, as window
    /// managers hand the focus to that one and the program passes it on.
    bool takesKeys(HWND window) const;

    bool isEnabled() const;

    /// All windows within this one, the control and those of the library.
    int childCount() const;

    /// All windows of the display, or of this process where the platform tells them apart.
    int windowCount() const;

private:
    class Native;
    const std::unique_ptr<Native> m_native;
};
