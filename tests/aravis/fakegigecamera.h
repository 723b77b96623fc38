#pragma once

#include <QProcess>
#include <QString>

/// The program with which Aravis simulates a GigE Vision camera, on an address of the loopback adapter.
class FakeGigECamera
{
public:
    /// \a host is the last number of 127.0.0.x; the serial number is GV and that number.
    explicit FakeGigECamera(int host, const QString& descriptionFile = QString());
    ~FakeGigECamera();
    Q_DISABLE_COPY(FakeGigECamera)

    /// \return whether it answers
    bool start();

    /// Ends the program as a pulled cable ends a camera: without a farewell.
    void kill();

private:
    QStringList m_arguments;
    quint32 m_address;
    QProcess m_program;
};
