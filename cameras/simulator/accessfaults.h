#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

namespace ZetoSimulator {

/// What goes wrong with the accesses to a camera. Thread: any.
class AccessFaults
{
public:
    void setConnected(bool connected) { m_connected = connected; }
    void refuseNextWrite(int32_t code) { m_refusal = code; }
    void setDelay(int milliseconds) { m_delay = milliseconds; }

    /// Called before the GenApi function \a call of a feature runs: waits, and throws the error that the
    /// camera answers with. Only reads and writes of values go to the camera.
    void onCall(std::string_view call);

private:
    std::atomic<bool> m_connected{true};
    std::atomic<int32_t> m_refusal{0};
    std::atomic<int> m_delay{0}; // ms
};

} // namespace ZetoSimulator
