#include "centredhost.h"

#include "native.h"

#include <ZetoCameraGuiApi/qwinwidget.h>

std::unique_ptr<QWinWidget> centredHost(HWND window)
{
    if (!window || !Native::isWindow(window))
        return nullptr;
    auto host = std::make_unique<QWinWidget>(window);
    host->center();
    return host;
}
