#include "mainwindowdriver.h"

#include "devicetreemodel.h"

#include <ZetoCameraApi.h>

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

QModelIndex rowOf(const QString& cameraId, const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        auto* const camera = index.data(DeviceTreeModel::ObjectRole).value<ZetoCam::DeviceInfo*>();
        if (camera && cameraId == QLatin1String(camera->GetID()))
            return index;
        const QModelIndex below = rowOf(cameraId, model, index);
        if (below.isValid())
            return below;
    }
    return {};
}

} // namespace

QString informationIn(const ZetoGui::ZetoCamConfig& window)
{
    const bool hasTwoFrames = child<QLineEdit>(window, "lineEditSizeFrameB").isVisibleTo(&window);
    return hasTwoFrames ? frameIn(window, 'A') + QLatin1Char('|') + frameIn(window, 'B')
                        : frameIn(window, 'A');
}

QString statusIn(const ZetoGui::ZetoCamConfig& window)
{
    return child<QLabel>(window, "statusText").text();
}

void tick(ZetoGui::ZetoCamConfig& window)
{
    auto* const timer = window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

void trigger(const ZetoGui::ZetoCamConfig& window, const char* action)
{
    child<QAction>(window, action).trigger();
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
    auto& tree = child<QTreeView>(selector, "cameraTreeView");
    tree.setCurrentIndex(rowOf(cameraId, *tree.model()));
    child<QDialogButtonBox>(selector, "buttonBox").button(QDialogButtonBox::Ok)->click();
}

} // namespace MainWindowDriver
