#include "cellnote.h"

#include <QAccessible>
#include <QStyle>
#include <QTimer>
#include <QToolTip>

namespace {

constexpr int timeToRead = 10000; // ms
const char* const noteName = "cellNote";

} // namespace

CellNote::CellNote(QWidget* viewport, const QString& text)
    : QLabel(text, viewport)
{
    setObjectName(QLatin1String(noteName));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setPalette(QToolTip::palette());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameShape(QFrame::Box);
    setMargin(style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this) + 2);
    QTimer::singleShot(timeToRead, this, &QObject::deleteLater);
}

void CellNote::showBeside(QWidget* viewport, const QRect& cell, const QString& text)
{
    hideOn(viewport);
    auto* note = new CellNote(viewport, text);
    note->placeBeside(cell);
    note->show();
#ifndef QT_NO_ACCESSIBILITY
    QAccessibleEvent event(note, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
#endif
}

void CellNote::hideOn(const QWidget* viewport)
{
    const auto notes = viewport->findChildren<QLabel*>(QLatin1String(noteName), Qt::FindDirectChildrenOnly);
    for (QLabel* note : notes) {
        note->hide();
        note->deleteLater();
    }
}

void CellNote::mousePressEvent(QMouseEvent* /*event*/)
{
    hide();
    deleteLater();
}

/// Above the cell, since the next editor is likely to be below, and inside the viewport.
void CellNote::placeBeside(const QRect& cell)
{
    const QRect room = parentWidget()->rect();
    const int width = qMin(fontMetrics().horizontalAdvance(text()) + 4 * margin(), room.width());
    resize(width, heightForWidth(width));
    const int left = qBound(0, cell.left(), room.width() - width);
    const bool fitsAbove = cell.top() >= height();
    move(left, fitsAbove ? cell.top() - height() : cell.bottom() + 1);
}
