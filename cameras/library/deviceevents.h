#pragma once

#include <ZetoCameraApi.h>

#include <listenerlist.h>

#include <mutex>

namespace ZetoCameraLibrary {

/// The event callbacks registered on one device. Thread: any.
class DeviceEvents
{
public:
    int32_t add(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context);

    /// Waits for a callback that runs on another thread.
    void remove(int32_t eventId, ZetoCam::DeviceEventCallback callback, void* context);

    /// Calls the callbacks of \a eventId. The caller holds no lock that a callback might wait for, in
    /// particular not that of a node map.
    void notify(ZetoCam::DeviceEvent eventId);

private:
    struct Registration
    {
        int32_t eventId;
        ZetoCam::DeviceEventCallback callback;
        void* context;

        bool operator==(const Registration& other) const
        {
            return eventId == other.eventId && callback == other.callback && context == other.context;
        }
    };

    /// Held while callbacks run, so that remove() can wait for them; recursive, so that they can call
    /// remove().
    std::recursive_mutex m_mutex;
    ZetoGenParam::ListenerList<Registration> m_registrations;
};

} // namespace ZetoCameraLibrary
