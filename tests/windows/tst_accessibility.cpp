#include "allwindows.h"

#include "devicepointer.h"
#include "simulatorfixture.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

namespace {

bool isPartOf(const QWidget& widget, const char* kind)
{
    for (const QWidget* above = widget.parentWidget(); above && !widget.isWindow();
         above = above->parentWidget()) {
        if (above->inherits(kind))
            return true;
    }
    return false;
}

/// What a person works with.
bool isControl(const QWidget& widget)
{
    if (qobject_cast<const QScrollBar*>(&widget) || isPartOf(widget, "QAbstractSpinBox") ||
        isPartOf(widget, "QComboBox") || isPartOf(widget, "QAbstractItemView") || isPartOf(widget, "QTabBar"))
        return false;
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QTabBar*>(&widget);
}

QString accessibleName(QWidget& widget)
{
    const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

QString describe(const QWidget& widget)
{
    return QStringLiteral("%1 %2 in %3")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
             widget.parentWidget()->objectName());
}

/// The widgets that Tab reaches, from where the focus is until it comes back there.
QSet<const QWidget*> reachedByTab(QWidget& window)
{
    QSet<const QWidget*> reached;
    for (const QWidget* at = window.focusWidget(); at && !reached.contains(at); at = window.focusWidget()) {
        reached.insert(at);
        QTest::keyClick(const_cast<QWidget*>(at), Qt::Key_Tab);
    }
    return reached;
}

/// Whether the keyboard gets to \a control: itself, through what it belongs to, or by the arrow keys of its
/// group.
bool isReached(const QWidget& control, const QSet<const QWidget*>& reached)
{
    if (qobject_cast<const QRadioButton*>(&control)) {
        const auto siblings = control.parentWidget()->findChildren<QRadioButton*>();
        return std::any_of(siblings.begin(), siblings.end(),
                           [&](const QRadioButton* button) { return reached.contains(button); });
    }
    for (const QWidget* at = &control; at; at = at->parentWidget()) {
        if (reached.contains(at) || (at->focusProxy() && reached.contains(at->focusProxy())))
            return true;
    }
    return false;
}

} // namespace

/// Every control of every window has a name and is reached by keyboard.
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void namesEveryControl_data() { addAllWindows(); }
    void namesEveryControl();
    void reachesEveryControlByKeyboard_data() { addAllWindows(); }
    void reachesEveryControlByKeyboard();

private:
    SimulatorFixture m_simulator;
    const DevicePointer m_device{m_simulator.open("sim.gev0.dual")};
};

void TestAccessibility::namesEveryControl()
{
    QFETCH(const WindowKind, window);
    const std::unique_ptr<QWidget> shown = window.make(m_simulator.system(), *m_device);
    shown->show();

    QStringList nameless;
    const QList<QWidget*> parts = partsOf(*shown);
    for (QWidget* const part : parts) {
        if (isControl(*part) && accessibleName(*part).trimmed().isEmpty())
            nameless.append(describe(*part));
    }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
}

void TestAccessibility::reachesEveryControlByKeyboard()
{
    QFETCH(const WindowKind, window);
    const std::unique_ptr<QWidget> shown = window.make(m_simulator.system(), *m_device);
    shown->show();
    QVERIFY(QTest::qWaitForWindowActive(shown.get()));
    if (!shown->focusWidget())
        QTest::keyClick(shown.get(), Qt::Key_Tab);
    const QSet<const QWidget*> reached = reachedByTab(*shown);

    QStringList missed;
    const QList<QWidget*> parts = partsOf(*shown);
    for (const QWidget* const part : parts) {
        if (isControl(*part) && part->isEnabled() && !isReached(*part, reached))
            missed.append(describe(*part));
    }
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(QLatin1Char('\n'))));
}

ZETO_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
