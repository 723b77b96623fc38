#include "mainwindowdriver.h"

#include "devicetreemodel.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

namespace MainWindowDriver {
namespace {

QString frameIn(const ZetoGui::ZetoCamConfig& window, char frame)
{
    QStringList texts;
    for (const char* name : {"Size", "Fps", "Exp", "Ftm"})
        texts +=
            window.findChild<QLineEdit*>(QStringLiteral("lineEdit%1Frame%2").arg(name).arg(frame))->text();
    return texts.join(QLatin1Char(' '));
}

} // namespace

QString informationIn(const ZetoGui::ZetoCamConfig& window)
{
    const bool hasTwoFrames = childOf<QLineEdit>(window, "lineEditSizeFrameB").isVisibleTo(&window);
    return hasTwoFrames ? frameIn(window, 'A') + QLatin1Char('|') + frameIn(window, 'B')
                        : frameIn(window, 'A');
}

QString statusIn(const ZetoGui::ZetoCamConfig& window)
{
    return childOf<QLabel>(window, "statusText").text();
}

void tick(ZetoGui::ZetoCamConfig& window)
{
    auto* const timer = window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

void trigger(const ZetoGui::ZetoCamConfig& window, const char* action)
{
    childOf<QAction>(window, action).trigger();
}

void whenAsked(const char* className, const std::function<void(QDialog&)>& answer)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->inherits(className))
            return;
        timer->stop();
        timer->deleteLater();
        answer(*dialog);
    });
    timer->start(0);
}

void choose(QDialog& selector, const QString& cameraId)
{
    auto& tree = childOf<QTreeView>(selector, "cameraTreeView");
    tree.setCurrentIndex(static_cast<DeviceTreeModel*>(tree.model())->indexOf(cameraId));
    childOf<QDialogButtonBox>(selector, "buttonBox").button(QDialogButtonBox::Ok)->click();
}

} // namespace MainWindowDriver
