#pragma once

#include <QRect>

/// Where a popup of \a size opens beside \a button, both in global coordinates: to its right for
/// Qt::Horizontal (left where text runs from right to left), above it for Qt::Vertical. On the other side
/// when there is no room, and in any case within \a screen.
QRect popupGeometry(const QRect& button, const QSize& size, Qt::Orientation orientation,
                    Qt::LayoutDirection direction, const QRect& screen);
