#pragma once

#include <QElapsedTimer>
#include <QTimer>

/// Measures how long the event loop of its thread leaves events waiting.
class Heartbeat
{
public:
    Heartbeat();

    /// Runs the event loop for \a milliseconds. \return the longest time between two beats in milliseconds; a
    /// loop that answers at once beats each millisecond
    double longestPause(int milliseconds);

private:
    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    qint64 m_longest = 0; // ns
};
