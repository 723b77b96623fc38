#include "commandwatch.h"

#include "genapiguard.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int interval = 100; // ms

/// True also for a command that cannot tell.
bool isDone(GenApi::IValue& command)
{
    return genApiOr(true, [&command] { return dynamic_cast<GenApi::ICommand&>(command).IsDone(); });
}

} // namespace

CommandWatch::CommandWatch(Done done)
    : m_done(std::move(done))
{
}

QTimer& CommandWatch::timer()
{
    if (!m_timer) {
        m_timer = std::make_unique<QTimer>();
        m_timer->setInterval(interval);
        QObject::connect(m_timer.get(), &QTimer::timeout, m_timer.get(), [this] { ask(); });
    }
    return *m_timer;
}

void CommandWatch::started(GenApi::IValue& command)
{
    // Whoever hears of a change may clear the watch.
    if (!isBusy(command))
        m_busy.push_back(&command);
    if (isDone(command))
        remove(command);
    else if (isBusy(command))
        timer().start();
}

bool CommandWatch::isBusy(const GenApi::IValue& command) const
{
    return std::find(m_busy.begin(), m_busy.end(), &command) != m_busy.end();
}

void CommandWatch::clear()
{
    m_busy.clear();
    if (m_timer)
        m_timer->stop();
}

void CommandWatch::ask()
{
    const std::vector<GenApi::IValue*> asked = m_busy;
    for (GenApi::IValue* command : asked)
        if (isBusy(*command) && isDone(*command) && remove(*command))
            m_done(*command);
    if (m_busy.empty())
        timer().stop();
}

bool CommandWatch::remove(const GenApi::IValue& command)
{
    const auto found = std::find(m_busy.begin(), m_busy.end(), &command);
    if (found == m_busy.end())
        return false;
    m_busy.erase(found);
    return true;
}
