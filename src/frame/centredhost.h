#pragma once

#include <ZetoCameraGuiApi/zetowindowhandle.h>

#include <memory>

class QWinWidget;

/// A host in the middle of \a window, null when that is no window.
std::unique_ptr<QWinWidget> centredHost(HWND window);
