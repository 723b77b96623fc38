#include <ZetoCameraGuiApi/qwinwidget.h>

#include "native.h"
#include "screenscale.h"
#include "tabstops.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QVariant>
#include <QWindow>

QWinWidget::QWinWidget(HWND hParentWnd, QObject* parent, Qt::WindowFlags f)
    : QWidget(nullptr, f)
    , hParent(hParentWnd)
{
    if (parent)
        QObject::setParent(parent);
    init();
}

QWinWidget::~QWinWidget()
{
    enableParent();
    if (hParent)
        Native::embed(reinterpret_cast<HWND>(internalWinId()), nullptr); // what becomes of it matters no more
}

HWND QWinWidget::parentWindow() const
{
    return hParent;
}

void QWinWidget::show()
{
    saveFocus();
    QWidget::show();
}

void QWinWidget::showCentered()
{
    center();
    show();
}

void QWinWidget::center()
{
    const QWidget* const child = findChild<QWidget*>();
    if (child && !child->isWindow())
        qWarning("QWinWidget::center: Call this function only for QWinWidgets with toplevel children");
    const QRect parent = Native::rectangle(hParent);
    const QPoint middle(parent.x() + parent.width() / 2, parent.y() + parent.height() / 2);
    setGeometry(QRect(logicalPoint(middle), QSize(0, 0)));
}

void QWinWidget::childEvent(QChildEvent* event)
{
    QObject* const child = event->child();
    if (child->isWidgetType() && event->added()) {
        child->installEventFilter(this);
    } else if (child->isWidgetType() && event->removed() && reenableParent) {
        enableParent();
        child->removeEventFilter(this);
    }
    QWidget::childEvent(event);
}

bool QWinWidget::eventFilter(QObject* watched, QEvent* event)
{
    auto& child = *static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Show:
        onChildShown(child);
        break;
    case QEvent::Hide:
        onChildHidden(child);
        break;
    case QEvent::Close:
        Native::activate(hParent);
        if (child.testAttribute(Qt::WA_DeleteOnClose))
            deleteLater();
        break;
    case QEvent::WindowDeactivate:
        if (child.isModal() && child.isHidden())
            Native::raise(hParent);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void QWinWidget::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason)
        return;
    QWidget* const first = TabStops::firstFrom(this);
    if (!first)
        return;
    first->setFocus(reason);
    first->setAttribute(Qt::WA_KeyboardFocusChange);
    first->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    if (reason == Qt::BacktabFocusReason)
        QWidget::focusNextPrevChild(false); // wraps to the last one, where ours would leave the window
}

bool QWinWidget::focusNextPrevChild(bool next)
{
    const QWidget* const current = focusWidget() ? focusWidget() : this;
    const bool leaves = next ? TabStops::isLast(current) : TabStops::isFirst(current);
    if (!leaves)
        return QWidget::focusNextPrevChild(next);
    Native::setFocus(hParent);
    return true;
}

bool QWinWidget::nativeEvent(const QByteArray& eventType, void* message, long* /*result*/)
{
    if (Native::isFocusMessage(eventType, message)) {
        QFocusEvent focusIn(QEvent::FocusIn, Native::focusReason());
        QCoreApplication::sendEvent(this, &focusIn);
    }
    return false;
}

void QWinWidget::init()
{
    if (!hParent)
        return;
    // Has QDialog place itself relative to where this widget says that it is, not to where its native window
    // is.
    setProperty("_q_embedded_native_parent_handle", QVariant::fromValue(reinterpret_cast<WId>(hParent)));
    Native::embed(reinterpret_cast<HWND>(winId()), hParent);
    windowHandle()->setFlags(Qt::FramelessWindowHint);
    QEvent embedded(QEvent::EmbeddingControl);
    QCoreApplication::sendEvent(this, &embedded);
}

void QWinWidget::saveFocus()
{
    if (!prevFocus)
        prevFocus = Native::focus(hParent);
    if (!prevFocus)
        prevFocus = hParent;
}

void QWinWidget::resetFocus()
{
    Native::setFocus(prevFocus ? prevFocus : hParent);
}

void QWinWidget::enableParent()
{
    if (!reenableParent)
        return;
    reenableParent = false;
    Native::setEnabled(hParent, true);
}

void QWinWidget::onChildShown(QWidget& child)
{
    if (!child.isWindow())
        return;
    saveFocus();
    hide();
    if (QWindow* const window = child.windowHandle())
        Native::setOwner(*window, hParent);
    if (child.isModal() && !reenableParent) {
        Native::setEnabled(hParent, false);
        reenableParent = true;
    }
}

void QWinWidget::onChildHidden(const QWidget& child)
{
    enableParent();
    resetFocus();
    if (child.testAttribute(Qt::WA_DeleteOnClose) && child.isWindow())
        deleteLater();
}
