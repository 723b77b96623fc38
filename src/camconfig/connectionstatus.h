#pragma once

#include <QCoreApplication>
#include <QPixmap>
#include <QString>

class QLabel;
class QStatusBar;

namespace ZetoGui {

/// What the status bar tells of the camera: its model or what is wrong, and a picture.
class ConnectionStatus
{
    Q_DECLARE_TR_FUNCTIONS(ZetoCamConfigMainWindow)

public:
    enum State
    {
        Disconnected,
        Connected,
        Slow,         ///< answers too slowly to be read at each tick
        NotAnswering, ///< does not answer, but was not reported as lost
        Lost
    };

    explicit ConnectionStatus(QStatusBar& bar);

    /// \a model is that of the camera; without meaning when there is none.
    void show(State state, const QString& model);

    static QString text(State state, const QString& model);

private:
    const QPixmap m_connected;
    const QPixmap m_disconnected;
    QLabel* const m_text;    // child of the status bar
    QLabel* const m_picture; // child of the status bar
};

} // namespace ZetoGui
