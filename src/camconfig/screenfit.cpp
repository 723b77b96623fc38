#include "screenfit.h"

#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace ZetoGui {
namespace {

/// What the screen leaves for the inside of a window. Its real frame is not there yet.
QSize roomFor(const QWidget& window)
{
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int frame = 2 * window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return window.screen()->availableSize() - QSize(frame, title + frame);
}

bool fits(const QSize& size, const QSize& room)
{
    return size.boundedTo(room) == size;
}

QScrollArea* makeScrolled(QDialog& dialog)
{
    auto* const form = new QWidget;
    form->setLayout(dialog.layout()); // takes the widgets along
    auto* const area = new QScrollArea(&dialog);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(form);
    auto* const around = new QVBoxLayout(&dialog);
    around->setContentsMargins(0, 0, 0, 0);
    around->setSizeConstraint(QLayout::SetFixedSize);
    around->addWidget(area);
    return area;
}

QSize scrolledSize(const QScrollArea& area, const QSize& room)
{
    const QSize form = area.widget()->sizeHint();
    const int bar = area.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize bars(form.height() > room.height() ? bar : 0, form.width() > room.width() ? bar : 0);
    return (form + bars).boundedTo(room);
}

} // namespace

void fitToScreen(QDialog& dialog)
{
    dialog.layout()->activate();
    if (dialog.testAttribute(Qt::WA_DontShowOnScreen))
        return;
    const QSize room = roomFor(dialog);
    auto* area = dialog.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
    if (!area && fits(dialog.sizeHint(), room))
        return;
    if (!area)
        area = makeScrolled(dialog);
    area->setFixedSize(scrolledSize(*area, room));
    dialog.layout()->activate();
}

} // namespace ZetoGui
