#pragma once

#include <algorithm>
#include <vector>

namespace ZetoGenParam {

/// Listeners that may be added and removed, and notified again, from within a listener's own call. Not
/// thread-safe. A \a Listener is a small value that can be compared, for example a pointer.
template <typename Listener>
class ListenerList
{
public:
    /// A listener that is there already stays there once.
    void add(const Listener& listener)
    {
        if (!contains(listener))
            m_listeners.push_back(listener);
    }

    void remove(const Listener& listener)
    {
        m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), listener), m_listeners.end());
    }

    /// Calls \a call with each listener that was there when it began and still is when its turn comes.
    template <typename Call>
    void notify(Call call) const
    {
        const std::vector<Listener> atFirst = m_listeners;
        for (const Listener& listener : atFirst) {
            if (contains(listener))
                call(listener);
        }
    }

private:
    bool contains(const Listener& listener) const
    {
        return std::find(m_listeners.begin(), m_listeners.end(), listener) != m_listeners.end();
    }

    std::vector<Listener> m_listeners;
};

} // namespace ZetoGenParam
