#include "screenscale.h"

#include <QGuiApplication>
#include <QScreen>

QPoint logicalPoint(const QPoint& native)
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        // Qt leaves the screen's corner where it is and divides all within.
        const qreal scale = screen->devicePixelRatio();
        const QPoint corner = screen->geometry().topLeft();
        if (QRect(corner, screen->geometry().size() * scale).contains(native))
            return corner + (native - corner) / scale;
    }
    return native;
}
