#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// A thread of its own that does a piece of work again and again, with a pause after each time.
class PollThread
{
public:
    explicit PollThread(std::chrono::milliseconds pause)
        : m_pause(pause)
    {
    }
    ~PollThread() { stop(); }
    Q_DISABLE_COPY(PollThread)

    /// Does \a work at once and after every pause. A thread that runs already goes on with its own work.
    void start(std::function<void()> work);

    /// Waits for work under way, not for a pause. Not to be called by the work itself.
    void stop();

    bool isRunning() const { return m_thread.joinable(); }

private:
    void run(const std::function<void()>& work);

    const std::chrono::milliseconds m_pause;
    std::thread m_thread;
    std::mutex m_mutex; // not held while work is done
    std::condition_variable m_stopRequested;
    bool m_isStopping = false;
};
