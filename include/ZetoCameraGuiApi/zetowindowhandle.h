#ifndef ZETOWINDOWHANDLE_H
#define ZETOWINDOWHANDLE_H

/**
 * \file
 * HWND, the native window handle, in C and C++ and without the platform's own headers.
 *
 * On Windows it is the type of windows.h. On X11 it is as wide as a pointer and carries the window id:
 * (HWND)(uintptr_t)id. A platform without native windows, such as Wayland, has no valid handles.
 */
#if !defined(_WIN32) || defined(NO_STRICT)
typedef void* HWND;
#else
struct HWND__;
typedef struct HWND__* HWND;
#endif

#endif
