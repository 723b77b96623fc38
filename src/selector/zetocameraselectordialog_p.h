#pragma once

#include "pollthread.h"
#include "ui_zetocameraselectordialog.h"

#include <QObject>

#include <atomic>

class DeviceTreeModel;
class QMenu;

namespace ZetoCam {
class DeviceInfo;
class System;
} // namespace ZetoCam

namespace ZetoGui {

class ZetoCameraSelectorDialog;

/// The widgets of the selector, its model, and the search that keeps the model current.
class ZetoCameraSelectorDialogPrivate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ZetoCameraSelectorDialogPrivate)

public:
    ZetoCameraSelectorDialogPrivate(ZetoCameraSelectorDialog& dialog, ZetoCam::System* system, bool poll);
    ~ZetoCameraSelectorDialogPrivate() override;

    /// Null when the current row is no camera.
    ZetoCam::DeviceInfo* currentCamera() const;

    bool isPolling() const { return m_poll.isRunning(); }

signals:
    /// A search found other cameras. Emitted on the thread of the search.
    void systemChanged();

private slots:
    void onSystemChanged();

private:
    void setUpButtons(bool poll);
    void connectTree();

    void startOrStopPolling();
    void search();
    void rescan();

    void rememberPlace();
    void returnToSelected();

    void showCurrent();
    void showInfo();
    void showMenu(const QPoint& position);
    void setIp();

    QPushButton& okButton() const;

    ZetoCameraSelectorDialog& q;
    Ui::ZetoCameraSelectorDialog m_ui;
    DeviceTreeModel* const m_model;    // child of the dialog
    QMenu* const m_menu;               // child of the dialog
    QPushButton* const m_rescanButton; // child of the dialog
    QString m_selectedId;
    QStringList m_collapsedIds; // the interfaces that were closed when the model was reset
    int m_scrollPosition = 0;   // at that time
    std::atomic<bool> m_changed{false};
    PollThread m_poll;
};

} // namespace ZetoGui
