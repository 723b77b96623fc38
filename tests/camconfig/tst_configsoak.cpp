#include "mainwindowdriver.h"
#include "peakmemory.h"
#include "testmain.h"

#include <ZetoCameraApi.h>
#include <simulatorcontrol.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <random>

using namespace MainWindowDriver;

namespace {

const char* const cameras[] = {"sim.gev0.dual", "sim.cl0.dual", "sim.u3v0.plain", "sim.gev0.awkward"};
const char* const interfaces[] = {"sim.gev0", "sim.cl0", "sim.u3v0"};
const int32_t codes[] = {ZetoCam::ErrorGenICamRange, ZetoCam::ErrorGenICamAccess, ZetoCam::ErrorNoDevice};
const int delays[] = {0, 0, 0, 1, 3}; // ms
const Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                        Qt::Key_End,   Qt::Key_1,    Qt::Key_7,      Qt::Key_Return,   Qt::Key_Return,
                        Qt::Key_Space, Qt::Key_Tab,  Qt::Key_Left,   Qt::Key_Backspace};

void letGoOfPopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

/// Somebody who does anything that the configuration tool allows, in any order, while its cameras come, go,
/// refuse and stall. The same seed does the same.
class RandomUser : public QObject
{
public:
    explicit RandomUser(unsigned seed)
        : m_random(seed)
        , m_simulator(*ZetoSimulator_GetControl())
    {
        connect(&m_answering, &QTimer::timeout, this, [this] { answer(); });
        m_answering.start(0);
        restart();
    }
    ~RandomUser() override
    {
        m_tool.reset();
        ZetoCam_GetSystem()->Close();
    }

    void act()
    {
        switch (upTo(16)) {
        case 0:
            useMenu();
            break;
        case 1:
            changeCamera();
            break;
        case 2:
            closeSomething();
            break;
        case 3:
        case 4:
            useWindow();
            break;
        case 5:
            tick(*m_tool);
            break;
        case 6:
            if (isOneIn(10))
                restart();
            break;
        default:
            useControl();
        }
        letGoOfPopups();
        QCoreApplication::processEvents();
    }

private:
    /// 0 to limit - 1
    int upTo(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool isOneIn(int n) { return upTo(n) == 0; }

    template <typename List>
    auto oneOf(const List& list)
    {
        return *std::next(std::begin(list), upTo(static_cast<int>(std::size(list))));
    }

    void useWindow()
    {
        const auto buttons =
            m_tool->findChild<QWidget*>(QStringLiteral("featureButtons"))->findChildren<QPushButton*>();
        QPushButton* const button = oneOf(buttons);
        if (button->isVisible())
            button->click();
    }

    void useMenu()
    {
        static const char* const actions[] = {
            "actionConnect", "actionConnect", "actionDisconnect", "actionAbout",    "actionFrame_A_B",
            "actionTrigger", "actionPulse",   "actionStrobe",     "actionData_Out", "actionColor"};
        trigger(*m_tool, oneOf(actions));
    }

    void useControl()
    {
        QWidget* const window = oneOf(openWindows());
        QWidgetList controls;
        for (QWidget* const control : window->findChildren<QWidget*>()) {
            if (control->window() == window && control->isVisible() && control->isEnabled() &&
                control->focusPolicy() != Qt::NoFocus)
                controls += control;
        }
        if (controls.isEmpty())
            return;
        QWidget* const control = oneOf(controls);
        const QPointer<QWidget> alive(control);
        control->setFocus();
        if (alive && isOneIn(2))
            QTest::mouseClick(control, Qt::LeftButton);
        for (int i = upTo(3); i >= 0 && alive && alive->isEnabled(); --i)
            QTest::keyClick(alive, oneOf(keys));
    }

    void closeSomething()
    {
        QWidget* const window = oneOf(openWindows());
        if (window == m_tool.get())
            isOneIn(2) ? m_tool->showMinimized() : m_tool->showNormal();
        else if (isOneIn(2))
            QTest::keyClick(window, Qt::Key_Escape);
        else
            window->close();
    }

    void changeCamera()
    {
        const std::string camera = oneOf(cameras);
        switch (upTo(6)) {
        case 0:
            m_simulator.setCameraPlugged(camera, !isOneIn(3));
            break;
        case 1:
            m_simulator.setAnswering(camera, !isOneIn(3));
            break;
        case 2:
            m_simulator.setInterfacePlugged(oneOf(interfaces), !isOneIn(3));
            break;
        case 3:
            m_simulator.setAccessDelay(camera, oneOf(delays));
            break;
        default:
            m_simulator.refuseNextWrite(camera, oneOf(codes));
        }
    }

    void restart()
    {
        m_tool.reset();
        m_tool = std::make_unique<ZetoGui::ZetoCamConfig>();
        m_tool->show();
    }

    void answer()
    {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        if (isOneIn(8))
            changeCamera(); // while the box is there
        if (dialog->inherits("ZetoGui::ZetoCameraSelectorDialog"))
            answerSelector(*dialog);
        else
            dialog->accept();
    }

    void answerSelector(QDialog& selector)
    {
        if (!isOneIn(5))
            choose(selector, QString::fromLatin1(oneOf(cameras)));
        if (selector.isVisible()) // it cannot be opened
            selector.reject();
    }

    QWidgetList openWindows() const
    {
        QWidgetList windows = {m_tool.get()};
        for (QDialog* const dialog : m_tool->findChildren<QDialog*>()) {
            if (dialog->isVisible())
                windows += dialog;
        }
        return windows;
    }

    std::mt19937 m_random;
    ZetoSimulator::SimulatorControl& m_simulator;
    std::unique_ptr<ZetoGui::ZetoCamConfig> m_tool;
    QTimer m_answering; ///< answers what is modal
};

int setting(const char* variable, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : otherwise;
}

} // namespace

/// Nothing that a person or a camera does in any order takes the configuration tool down. By hand and for
/// long:
///
///     ZETO_SOAK_ACTIONS=100000 ZETO_SOAK_SEED=7 build/dev/bin/tst_configsoak
class TestConfigSoak : public QObject
{
    Q_OBJECT

private slots:
    void survives_random_users();
};

void TestConfigSoak::survives_random_users()
{
    const int actions = setting("ZETO_SOAK_ACTIONS", 1500);
    const int seed = setting("ZETO_SOAK_SEED", 1);
    const int64_t before = peakMemory();
    QElapsedTimer time;
    time.start();
    {
        RandomUser user(static_cast<unsigned>(seed));
        for (int i = 0; i < actions; ++i)
            user.act();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    constexpr double megabyte = 1e6;
    qInfo("%d actions with seed %d in %.1f s, peak memory %.1f MB, %.1f MB before", actions, seed,
          static_cast<double>(time.elapsed()) / 1000, static_cast<double>(peakMemory()) / megabyte,
          static_cast<double>(before) / megabyte);
}

ZETO_TEST_MAIN(TestConfigSoak)
#include "tst_configsoak.moc"
