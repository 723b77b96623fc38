#pragma once

#include "devicememory.h"
#include "gobjectpointer.h"

#include <arv.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>

namespace ZetoAravis {

/// The memory of a camera, reached over a connection that may break and be made anew. Thread: any.
///
/// The library waits seconds for a camera that does not answer. So a camera that was not heard of for a
/// moment is asked first; when it is silent the connection is broken off, and the access fails soon.
///
/// Nobody connects to the signal by which the library tells that control is lost: while it is emitted, a
/// thread of the device itself holds on to the device, and would have to wait for its own end if it let go
/// last.
class CameraLink final : public DeviceMemory
{
public:
    /// \a isAnswering asks the camera itself, besides the connection, and is called from any thread.
    explicit CameraLink(std::function<bool()> isAnswering);
    ~CameraLink() override;

    /// Waits for an access that is under way.
    void connect(GObjectPointer<ArvDevice> device);

    /// Lets every further access fail at once, without waiting for the one under way.
    void breakOff() { m_connected = false; }

    /// Gives up the connection that was broken off; the library may take seconds to notice that nobody
    /// answers its farewell.
    void drop();

    bool isConnected() const { return m_connected; }

    /// Whether \a check finds the connection good; assumed without waiting while an access is under way.
    template <typename Check>
    bool isGood(Check check)
    {
        const std::unique_lock guard(m_mutex, std::try_to_lock);
        return !guard.owns_lock() || !m_device || check(*m_device);
    }

    bool readMemory(guint64 address, guint32 size, void* buffer, GError** error) override;
    bool writeMemory(guint64 address, guint32 size, void* buffer, GError** error) override;
    bool readRegister(guint64 address, guint32* value, GError** error) override;
    bool writeRegister(guint64 address, guint32 value, GError** error) override;

private:
    template <typename Access>
    bool perform(GError** error, Access access);
    bool isReachable();

    const std::function<bool()> m_isAnswering;
    std::atomic<bool> m_connected{false};
    std::mutex m_mutex; ///< held during an access
    GObjectPointer<ArvDevice> m_device;
    std::chrono::steady_clock::time_point m_lastAnswer; ///< of the camera
};

} // namespace ZetoAravis
