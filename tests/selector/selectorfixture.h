#pragma once

#include "childof.h"
#include "devicetreemodel.h"
#include "infoview.h"
#include "simulatorfixture.h"

#include <ZetoCameraGuiApi/zetocameraselectordialog.h>

#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVector>

#include <functional>

/// The ids of all rows that were fetched, cameras in brackets behind their interface: "gev(a b) usb".
QString idsOf(const DeviceTreeModel& model, const QModelIndex& parent = QModelIndex());

/// The selector's dialog and what a person finds in it.
class Selector
{
public:
    Selector(ZetoCam::System* system, bool poll);

    /// Shows it and waits until it takes keys.
    void show();

    QTreeView& tree() const { return childOf<QTreeView>(dialog, "cameraTreeView"); }
    DeviceTreeModel& model() const { return *static_cast<DeviceTreeModel*>(tree().model()); }
    QPushButton& button(const char* text) const;
    QPushButton& ok() const { return button("OK"); }
    QPushButton& rescan() const { return button("&Rescan"); }
    QPushButton& setIp() const { return childOf<QPushButton>(dialog, "setIpBtn"); }
    QAbstractButton& polling() const { return childOf<QAbstractButton>(dialog, "chPoll"); }
    InfoView& cameraInfo() const { return childOf<InfoView>(dialog, "deviceInfoTreeView"); }
    InfoView& interfaceInfo() const { return childOf<InfoView>(dialog, "interfaceInfoTreeView"); }

    void select(const char* id) { tree().setCurrentIndex(model().indexOf(QLatin1String(id))); }
    QString current() const { return model().idOf(tree().currentIndex()); }
    QString ids() const { return idsOf(model()); }

    ZetoGui::ZetoCameraSelectorDialog dialog;
};

/// A selector with the standard cameras.
class StandardSelector : public SimulatorFixture, public Selector
{
public:
    explicit StandardSelector(bool poll = false)
        : Selector(&system(), poll)
    {
    }
};

/// Name and value of all lines, "Vendor=Zeto|Model=...".
QString linesOf(const InfoView& view);

/// Does one action after the other, each at the next modal dialog that opens.
class ModalScript
{
public:
    using Action = std::function<void(QDialog&)>;

    explicit ModalScript(const QVector<Action>& actions);

    bool isDone() const { return m_next == m_actions.size(); }

private:
    void look();

    const QVector<Action> m_actions;
    int m_next = 0;
    QPointer<QWidget> m_last;
    QTimer m_timer;
};
