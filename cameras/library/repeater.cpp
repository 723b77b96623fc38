#include "repeater.h"

#include <utility>

namespace ZetoCameraLibrary {

void Repeater::start(std::chrono::milliseconds period, std::function<void(std::size_t)> step)
{
    stop();
    m_stopping = false;
    m_thread = std::thread([this, period, step = std::move(step)] { run(period, step); });
}

void Repeater::stop()
{
    {
        const std::lock_guard guard(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void Repeater::run(std::chrono::milliseconds period, const std::function<void(std::size_t)>& step)
{
    std::unique_lock lock(m_mutex);
    for (std::size_t count = 0; !m_wake.wait_for(lock, period, [this] { return m_stopping; }); ++count) {
        lock.unlock();
        step(count);
        lock.lock();
    }
}

} // namespace ZetoCameraLibrary
