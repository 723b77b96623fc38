#pragma once

#include <QRect>

namespace ZetoGui {

/// Where a dialog of \a size opens that belongs to \a window: to its right, or to its left when there is more
/// room, and below its menus when there is no room beside it; wholly within \a screen, or its upper left part
/// when it is larger than that. \a shift moves it down and away from the window, so that dialogs that are
/// open already stay in reach. All rectangles include the frames.
QPoint placeBeside(const QRect& window, const QSize& size, const QRect& screen, int shift = 0);

} // namespace ZetoGui
