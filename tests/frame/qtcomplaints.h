#pragma once

#include <QtGlobal>

/// Keeps what Qt says from the test's log while it exists: of its windows that went with their native parent
/// Qt complains, as it should.
class QtComplaints
{
public:
    QtComplaints();
    ~QtComplaints();
    Q_DISABLE_COPY(QtComplaints)

    /// \return how many have come, once all have that the X server owes: it answers in order, but the answers
    /// are read by a thread of Qt's, so some come long after QGuiApplication::sync().
    static int waitForAll();

private:
    const QtMessageHandler m_before;
};
