// From the first call in a fresh process to the first window painted: the camera selector and the feature
// browser, opened through the C functions, beside a dialog with a text and two buttons in a program of Qt's
// own.

#include "comparison.h"

#include <ZetoCameraApi.h>
#include <ZetoCameraGuiApi/ZetoCameraGuiApi.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

constexpr int Rounds = 25;
constexpr double Limit = 1.3;

QElapsedTimer sinceFirstCall;

/// Prints the time, in milliseconds, when the first window has been painted, and ends the process.
class FirstPaint : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && static_cast<QWidget*>(watched)->isWindow())
            QTimer::singleShot(0, this, [] {
                std::printf("%f\n", double(sinceFirstCall.nsecsElapsed()) / 1e6);
                std::fflush(stdout);
                std::_Exit(EXIT_SUCCESS);
            });
        return false;
    }
};

/// Called when any application object comes into being.
void watchForPaint()
{
    if (sinceFirstCall.isValid())
        qApp->installEventFilter(new FirstPaint(qApp));
}

void showMinimalDialog()
{
    static int argc = 0;
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication application(argc, nullptr);
    QDialog dialog;
    auto* const layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(QStringLiteral("Hello")));
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    dialog.exec();
}

void showBrowser()
{
    CreateGenParamTreeViewForNodemapA(nullptr, "Features", nullptr);
    QApplication::exec();
}

/// \return false for a name that is no window's
bool showWindow(const QByteArray& name)
{
    ZetoCam::System* const system = name == "selector" ? ZetoCam_GetSystem() : nullptr;
    sinceFirstCall.start();
    if (name == "minimal")
        showMinimalDialog();
    else if (name == "browser")
        showBrowser();
    else if (system)
        SelectCameraA(system, "Choose a camera", nullptr, false);
    return system || name == "minimal" || name == "browser";
}

double timeInFreshProcess(const QString& window)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {window});
    process.waitForFinished();
    return process.readAllStandardOutput().toDouble();
}

void measure()
{
    double minimal = std::numeric_limits<double>::max();
    double selector = minimal;
    double browser = minimal;
    for (int i = 0; i < Rounds; ++i) {
        minimal = std::min(minimal, timeInFreshProcess(QStringLiteral("minimal")));
        selector = std::min(selector, timeInFreshProcess(QStringLiteral("selector")));
        browser = std::min(browser, timeInFreshProcess(QStringLiteral("browser")));
    }
    count("first call to the selector painted, beside a minimal dialog", selector, Limit * minimal, "ms");
    count("first call to the browser painted, beside a minimal dialog", browser, Limit * minimal, "ms");
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForPaint)

int main(int argc, char** argv)
{
    if (argc > 1 && argv[1][0] != '-')
        return showWindow(argv[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
    const QCoreApplication application(argc, argv);
    // Without a display nothing costs what it costs a person.
    if (qgetenv("QT_QPA_PLATFORM") != "xcb")
        return QProcess::execute(QStringLiteral(ZETO_WITH_DISPLAY), QCoreApplication::arguments());
    measure();
    return runComparisons(argc, argv);
}
