#pragma once

#include "zetoguiexport.h"
#include "zetowindowhandle.h"

#include <QWidget>

/// The invisible host between a native window and the Qt windows that belong to it.
///
/// Give it as the parent to a Qt dialog whose real parent is a native window of a program that does not use
/// Qt:
///
/// \code
/// QWinWidget host(nativeWindow);
/// host.center();
/// QMessageBox::information(&host, title, text);
/// \endcode
///
/// - A child that is a window takes the keyboard focus, and gives it back when it is hidden to the native
///   window that had it before.
/// - While such a child is modal and shown, the native window takes no input.
/// - A child with Qt::WA_DeleteOnClose takes the host along when it closes; otherwise its maker deletes the
///   host.
/// - Children that are not windows live within the native window once the host is shown. Tab past the last of
///   them and Shift+Tab before the first hand the focus to the native window.
///
/// The native window stays the caller's, and may go before the host. With a null handle the host is a plain
/// hidden parent. All functions belong to the thread of the QApplication.
class ZETO_GUI_EXPORT QWinWidget : public QWidget
{
    Q_OBJECT
    Q_CLASSINFO("author", "Zeto")

public:
    /// A host within \a hParentWnd. It is deleted with \a parent, if any, which has to be a widget, as Qt
    /// takes every widget's parent for one.
    explicit QWinWidget(HWND hParentWnd, QObject* parent = nullptr, Qt::WindowFlags f = {});
    ~QWinWidget() override;

    /// The native window.
    HWND parentWindow() const;

    /// Shows the host and remembers which native window had the focus.
    void show();

    /// Does the same in the middle of the native window.
    void showCentered();

    /// Moves the host, at a size of nothing, into the middle of the native window. A dialog placed relative
    /// to it is then centred over that window. Meant for children that are windows, and warns of others.
    void center();

protected:
    void childEvent(QChildEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    Q_DISABLE_COPY(QWinWidget)

    void init();
    void saveFocus();
    void resetFocus();
    void enableParent();
    void onChildShown(QWidget& child);
    void onChildHidden(const QWidget& child);

    const HWND hParent;
    HWND prevFocus = nullptr;
    bool reenableParent = false;
};
