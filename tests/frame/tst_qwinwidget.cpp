#include "hostwindow.h"
#include "qtcomplaints.h"
#include "testmain.h"

#include <ZetoCameraGuiApi/qwinwidget.h>

#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

namespace {

HWND handleOf(const QWidget& widget)
{
    return reinterpret_cast<HWND>(widget.effectiveWinId());
}

/// A host and a dialog under it, either of which a test may delete.
struct Hosted
{
    explicit Hosted(HWND window, bool isModal = true)
        : host(new QWinWidget(window))
        , dialog(new QDialog(host))
    {
        host->center();
        dialog->setModal(isModal);
    }

    ~Hosted()
    {
        delete dialog;
        delete host;
    }

    void show() const
    {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
    }

    QPointer<QWinWidget> host;
    QPointer<QDialog> dialog;
};

using WayOut = std::function<void(Hosted&)>;

/// Two fields that live within a native window.
class Fields
{
public:
    explicit Fields(HWND window)
        : m_host(window)
    {
        auto* const layout = new QVBoxLayout(&m_host);
        layout->addWidget(m_first);
        layout->addWidget(m_last);
        m_host.show();
        m_host.setGeometry(0, 40, 200, 100);
    }

    QWinWidget m_host;
    QLineEdit* const m_first = new QLineEdit;
    QLineEdit* const m_last = new QLineEdit;
};

} // namespace

Q_DECLARE_METATYPE(WayOut)

class QWinWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void isCentredOverTheNativeWindow_data();
    void isCentredOverTheNativeWindow();
    void centresTheDialogOverTheNativeWindow();
    void warnsOfChildrenThatAreNoWindows();
    void enablesTheParentOnEveryWayOut_data();
    void enablesTheParentOnEveryWayOut();
    void leavesTheParentOfAModelessDialogEnabled();
    void givesTheFocusBack_data();
    void givesTheFocusBack();
    void handsTheFocusToTheNativeWindow_data();
    void handsTheFocusToTheNativeWindow();
    void takesTheFocusFromTheNativeWindow_data();
    void takesTheFocusFromTheNativeWindow();
    void goesWithAChildThatIsDeletedOnClose();
    void outlivesTheNativeWindow();
    void leavesNothingBehind();
    void isAPlainParentWithoutANativeWindow();
};

void QWinWidgetTest::isCentredOverTheNativeWindow_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QPoint>("middle");
    QTest::newRow("odd size") << QRect(QPoint(100, 100), QPoint(300, 200)) << QPoint(200, 150);
    QTest::newRow("even size") << QRect(40, 50, 100, 60) << QPoint(90, 80);
    QTest::newRow("partly left of the screen") << QRect(-21, 0, 100, 101) << QPoint(29, 50);
}

void QWinWidgetTest::isCentredOverTheNativeWindow()
{
    QFETCH(QRect, window);
    const HostWindow native(window);
    QWinWidget host(native.handle());
    host.center();
    QTEST(host.pos(), "middle");
    QCOMPARE(host.size(), QSize(0, 0));
    QCOMPARE(host.parentWindow(), native.handle());
}

void QWinWidgetTest::centresTheDialogOverTheNativeWindow()
{
    const HostWindow native(QRect(400, 300, 600, 400));
    const Hosted hosted(native.handle());
    hosted.dialog->resize(200, 100);
    hosted.show();
    const QPoint off = hosted.dialog->geometry().center() - QPoint(700, 500);
    // Qt guesses the size of the frame.
    QVERIFY2(off.manhattanLength() < 60, qPrintable(QString::number(off.manhattanLength())));
}

void QWinWidgetTest::warnsOfChildrenThatAreNoWindows()
{
    const HostWindow native(QRect(100, 100, 200, 100));
    QWinWidget host(native.handle());
    new QLineEdit(&host);
    QTest::ignoreMessage(
        QtWarningMsg, "QWinWidget::center: Call this function only for QWinWidgets with toplevel children");
    host.center();
    QCOMPARE(host.pos(), QPoint(200, 150));
}

void QWinWidgetTest::enablesTheParentOnEveryWayOut_data()
{
    QTest::addColumn<WayOut>("leave");
    QTest::newRow("hide") << WayOut([](Hosted& hosted) { hosted.dialog->hide(); });
    QTest::newRow("accept") << WayOut([](Hosted& hosted) { hosted.dialog->accept(); });
    QTest::newRow("close") << WayOut([](Hosted& hosted) { hosted.dialog->close(); });
    QTest::newRow("other parent") << WayOut([](Hosted& hosted) { hosted.dialog->setParent(nullptr); });
    QTest::newRow("delete the dialog") << WayOut([](Hosted& hosted) { delete hosted.dialog; });
    QTest::newRow("delete the host") << WayOut([](Hosted& hosted) { delete hosted.host; });
}

void QWinWidgetTest::enablesTheParentOnEveryWayOut()
{
    QFETCH(WayOut, leave);
    const HostWindow native(QRect(100, 100, 200, 100));
    Hosted hosted(native.handle());
    const int children = native.childCount();
    QVERIFY(native.isEnabled());

    hosted.show();
    QVERIFY(!native.isEnabled());
    const int childrenWhileDisabled = native.childCount();
    QDialog second(hosted.host);
    second.setModal(true);
    second.show();
    QCOMPARE(native.childCount(), childrenWhileDisabled); // disabled once
    second.setParent(nullptr);
    hosted.dialog->hide();
    hosted.show();
    QVERIFY(!native.isEnabled());

    leave(hosted);
    QVERIFY(native.isEnabled());
    QVERIFY(native.childCount() <= children);
}

void QWinWidgetTest::leavesTheParentOfAModelessDialogEnabled()
{
    const HostWindow native(QRect(100, 100, 200, 100));
    const Hosted hosted(native.handle(), false);
    hosted.show();
    QVERIFY(native.isEnabled());
}

void QWinWidgetTest::givesTheFocusBack_data()
{
    QTest::addColumn<QString>("focused");
    for (const char* const focused : {"control", "window", "nothing"})
        QTest::newRow(focused) << focused;
}

void QWinWidgetTest::givesTheFocusBack()
{
    QFETCH(QString, focused);
    HostWindow native(QRect(100, 100, 200, 100), HostWindow::Framed);
    const HWND before = focused == QLatin1String("control") ? native.control() : native.handle();
    QTRY_VERIFY(native.focused() == native.handle()); // by the window manager
    native.focus(focused == QLatin1String("nothing") ? nullptr : before);
    const Hosted hosted(native.handle());
    hosted.show();
    QTRY_VERIFY(!native.takesKeys(before));
    hosted.dialog->close();
    QTRY_VERIFY(native.takesKeys(before));
}

void QWinWidgetTest::handsTheFocusToTheNativeWindow_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("key");
    QTest::newRow("past the last") << "last" << int(Qt::Key_Tab);
    QTest::newRow("before the first") << "first" << int(Qt::Key_Backtab);
}

void QWinWidgetTest::handsTheFocusToTheNativeWindow()
{
    QFETCH(QString, start);
    QFETCH(int, key);
    HostWindow native(QRect(100, 100, 400, 300));
    const Fields fields(native.handle());
    QVERIFY(QTest::qWaitForWindowExposed(fields.m_host.windowHandle()));
    native.focus(handleOf(fields.m_host));
    QTRY_VERIFY(fields.m_host.isActiveWindow());

    QLineEdit* const other = start == QLatin1String("last") ? fields.m_first : fields.m_last;
    QLineEdit* const edge = start == QLatin1String("last") ? fields.m_last : fields.m_first;
    other->setFocus();
    QTest::keyClick(other, Qt::Key(key));
    QCOMPARE(QApplication::focusWidget(), edge); // one step within the host
    QTest::keyClick(edge, Qt::Key(key));
    QTRY_COMPARE(native.focused(), native.handle());
}

void QWinWidgetTest::takesTheFocusFromTheNativeWindow_data()
{
    QTest::addColumn<int>("reason");
    QTest::addColumn<QString>("focused");
    QTest::newRow("Tab") << int(Qt::TabFocusReason) << "first";
    QTest::newRow("Shift+Tab") << int(Qt::BacktabFocusReason) << "last";
    QTest::newRow("mouse") << int(Qt::MouseFocusReason) << "last before";
}

void QWinWidgetTest::takesTheFocusFromTheNativeWindow()
{
    QFETCH(int, reason);
    QFETCH(QString, focused);
    HostWindow native(QRect(100, 100, 400, 300));
    Fields fields(native.handle());
    auto* const disabled = new QLineEdit;
    fields.m_host.layout()->addWidget(disabled);
    disabled->setEnabled(false);
    QVERIFY(QTest::qWaitForWindowExposed(fields.m_host.windowHandle()));
    native.focus(handleOf(fields.m_host));
    QTRY_VERIFY(fields.m_host.isActiveWindow());
    (focused == QLatin1String("last") ? fields.m_first : fields.m_last)->setFocus();
    QFocusEvent event(QEvent::FocusIn, Qt::FocusReason(reason));
    QCoreApplication::sendEvent(&fields.m_host, &event);
    QCOMPARE(fields.m_host.focusWidget(), focused == QLatin1String("first") ? fields.m_first : fields.m_last);
}

void QWinWidgetTest::goesWithAChildThatIsDeletedOnClose()
{
    const HostWindow native(QRect(100, 100, 200, 100));
    const int windows = native.windowCount();
    const Hosted hosted(native.handle());
    hosted.dialog->setAttribute(Qt::WA_DeleteOnClose);
    hosted.show();
    hosted.dialog->close();
    QTRY_VERIFY(!hosted.host);
    QVERIFY(!hosted.dialog);
    QVERIFY(native.isEnabled());
    QTRY_VERIFY(native.windowCount() <= windows);
}

void QWinWidgetTest::outlivesTheNativeWindow()
{
    HostWindow native(QRect(100, 100, 200, 100));
    const Hosted hosted(native.handle());
    hosted.show();
    if (QGuiApplication::platformName() ==
        QLatin1String("windows")) { // the dialog's window and the host's go along
        const QRegularExpression told(QStringLiteral("External WM_DESTROY received for .*"));
        QTest::ignoreMessage(QtWarningMsg, told);
        QTest::ignoreMessage(QtWarningMsg, told);
    }
    native.destroy();
    hosted.dialog->close();
    hosted.host->center();
    QCOMPARE(hosted.host->pos(), QPoint(0, 0));
    const QtComplaints complaints;
    delete hosted.host;
    QVERIFY(QtComplaints::waitForAll() > 0 || QGuiApplication::platformName() != QLatin1String("xcb"));
}

void QWinWidgetTest::leavesNothingBehind()
{
    const HostWindow native(QRect(100, 100, 200, 100));
    { // what Qt makes once
        const Hosted first(native.handle());
        first.show();
    }
    QGuiApplication::sync();
    const int windows = native.windowCount();
    const auto qtWindows = QGuiApplication::allWindows().size();
    for (int i = 0; i < 20; ++i) {
        const Hosted hosted(native.handle());
        hosted.show();
        hosted.dialog->hide();
        hosted.show();
    }
    QTRY_VERIFY(native.windowCount() <= windows);
    QCOMPARE(QGuiApplication::allWindows().size(), qtWindows);
}

void QWinWidgetTest::isAPlainParentWithoutANativeWindow()
{
    QWidget owner;
    auto* const host = new QWinWidget(nullptr, &owner);
    QCOMPARE(host->parent(), static_cast<QObject*>(&owner));
    QDialog dialog(host);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(!host->isVisible());
    dialog.close();
    QVERIFY(!host->property("_q_embedded_native_parent_handle").isValid());
    dialog.setParent(nullptr);
}

ZETO_TEST_MAIN(QWinWidgetTest)
#include "tst_qwinwidget.moc"
