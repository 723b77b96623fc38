#include "popupplacement.h"

namespace {

/// One axis: the first place that lies within the screen, else the preferred one moved into it.
int placed(int preferred, int other, int length, int screenStart, int screenLength)
{
    const int last = screenStart + screenLength - length;
    for (const int start : {preferred, other}) {
        if (start >= screenStart && start <= last)
            return start;
    }
    return qMax(screenStart, qMin(preferred, last));
}

} // namespace

QRect popupGeometry(const QRect& button, const QSize& size, Qt::Orientation orientation,
                    Qt::LayoutDirection direction, const QRect& screen)
{
    const QSize fitting = size.boundedTo(screen.size());
    const int before = button.x() - fitting.width();
    const int behind = button.x() + button.width();
    const int above = button.y() - fitting.height();
    const int below = button.y() + button.height();
    const bool toTheLeft = direction == Qt::RightToLeft;

    QPoint corner = button.topLeft();
    QPoint other = corner;
    if (orientation == Qt::Horizontal) {
        corner.setX(toTheLeft ? before : behind);
        other.setX(toTheLeft ? behind : before);
    } else {
        corner.setY(above);
        other.setY(below);
    }
    const int x = placed(corner.x(), other.x(), fitting.width(), screen.x(), screen.width());
    const int y = placed(corner.y(), other.y(), fitting.height(), screen.y(), screen.height());
    return {QPoint(x, y), fitting};
}
