#include "pollthread.h"

void PollThread::start(std::function<void()> work)
{
    if (isRunning())
        return;
    m_isStopping = false;
    m_thread = std::thread([this, work = std::move(work)] { run(work); });
}

void PollThread::stop()
{
    if (!isRunning())
        return;
    {
        const std::lock_guard guard(m_mutex);
        m_isStopping = true;
    }
    m_stopRequested.notify_all();
    m_thread.join();
}

void PollThread::run(const std::function<void()>& work)
{
    const auto isStopping = [this] { return m_isStopping; };
    bool goesOn = true;
    while (goesOn) {
        work();
        std::unique_lock lock(m_mutex);
        goesOn = !m_stopRequested.wait_for(lock, m_pause, isStopping);
    }
}
