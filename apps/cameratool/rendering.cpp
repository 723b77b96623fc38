#include "rendering.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int settleTimeMs = 400;
constexpr int frame = 50; // of a window, more or less

void settle()
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(settleTimeMs))
        QCoreApplication::processEvents(QEventLoop::AllEvents, settleTimeMs);
}

} // namespace

QPalette darkPalette()
{
    const QColor surface(45, 45, 48);
    const QColor field(30, 30, 32);
    const QColor text(230, 230, 230);
    const QColor faded(130, 130, 134);

    QPalette palette(surface);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, surface);
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::Highlight, QColor(42, 110, 187));
    palette.setColor(QPalette::Link, QColor(90, 160, 235));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText, QPalette::HighlightedText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faded);
    }
    palette.setColor(QPalette::PlaceholderText, faded);
    return palette;
}

bool renderWindow(QWidget& window, const QString& folder, const QString& name)
{
    const QSize screen = window.screen()->availableSize() - QSize(frame, frame);
    if (window.sizeHint().boundedTo(screen) != window.sizeHint())
        window.setAttribute(Qt::WA_DontShowOnScreen); // a picture shows all of it, too
    window.show();
    settle();
    const QString file = QDir(folder).filePath(name + QLatin1String(".png"));
    const bool saved = QDir().mkpath(folder) && window.grab().save(file);
    if (saved)
        printf("%s\n", qPrintable(file));
    else
        fprintf(stderr, "Cannot write %s\n", qPrintable(file));
    return saved;
}
