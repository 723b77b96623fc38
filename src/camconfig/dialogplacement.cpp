#include "dialogplacement.h"

#include <algorithm>

namespace ZetoGui {
namespace {

// Pixels
constexpr int Gap = 8;    // between the window and the dialog
constexpr int Strip = 72; // title and menus of the window, which a dialog over it leaves free

/// The place nearest to \a wanted for \a length, within \a first to \a last; \a first when it does not fit.
int within(int wanted, int length, int first, int last)
{
    return std::max(first, std::min(wanted, last - length + 1));
}

} // namespace

QPoint placeBeside(const QRect& window, const QSize& size, const QRect& screen, int shift)
{
    const int roomRight = screen.right() - window.right();
    const int roomLeft = window.left() - screen.left();
    const bool goesRight = roomRight >= size.width() + Gap || roomRight >= roomLeft;
    const bool covers = size.width() + Gap > std::max(roomRight, roomLeft);
    const int y = window.top() + shift + (covers ? Strip : 0);
    const int x = goesRight ? window.right() + 1 + Gap + shift : window.left() - Gap - size.width() - shift;
    return {within(x, size.width(), screen.left(), screen.right()),
            within(y, size.height(), screen.top(), screen.bottom())};
}

} // namespace ZetoGui
