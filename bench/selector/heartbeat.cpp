#include "heartbeat.h"

#include <QEventLoop>

#include <algorithm>

Heartbeat::Heartbeat()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
        m_longest = std::max(m_longest, m_sinceBeat.nsecsElapsed());
        m_sinceBeat.start();
    });
}

double Heartbeat::longestPause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    m_longest = 0;
    m_sinceBeat.start();
    m_timer.start(1);
    loop.exec();
    m_timer.stop();
    return static_cast<double>(m_longest) / 1e6;
}
