#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace ZetoCameraLibrary {

/// Calls a function again and again on a thread of its own.
class Repeater
{
public:
    Repeater() = default;
    ~Repeater() { stop(); }
    Repeater(const Repeater&) = delete;
    Repeater& operator=(const Repeater&) = delete;

    /// Calls \a step with 0, 1, 2 ... after each \a period.
    void start(std::chrono::milliseconds period, std::function<void(std::size_t)> step);

    /// Waits for a step that runs.
    void stop();

private:
    void run(std::chrono::milliseconds period, const std::function<void(std::size_t)>& step);

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stopping = false; ///< guarded by m_mutex
    std::thread m_thread;
};

} // namespace ZetoCameraLibrary
