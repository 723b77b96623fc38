#pragma once

#include "gvcp.h"

#include <QByteArray>

#include <atomic>
#include <thread>

/// As much of a GigE Vision camera as answers searches, tells who controls it and obeys a forced address. It
/// answers on every address of this machine, whatever its own is said to be.
class ToyCamera
{
public:
    explicit ToyCamera(ZetoAravis::Gvcp::DiscoveryAnswer camera);
    ~ToyCamera();
    Q_DISABLE_COPY(ToyCamera)

    void setControlPrivilege(quint32 value) { m_privilege = value; }

    /// \return whether it listens
    bool listen();

private:
    void run();
    QByteArray answerTo(const QByteArray& command);
    QByteArray discoveryAnswer() const;
    void obey(const QByteArray& forceAddress);

    ZetoAravis::Gvcp::DiscoveryAnswer m_camera; ///< used by the thread alone once it runs
    std::atomic<quint32> m_privilege{0};
    std::atomic<bool> m_listening{false};
    std::atomic<bool> m_stopping{false};
    std::thread m_thread;
};
