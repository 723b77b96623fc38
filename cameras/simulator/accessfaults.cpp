#include "accessfaults.h"

#include <accesskind.h>
#include <genparamerror.h>

#include <chrono>
#include <thread>

namespace ZetoSimulator {

void AccessFaults::onCall(std::string_view call)
{
    using ZetoCameraLibrary::AccessKind;
    const AccessKind kind = ZetoCameraLibrary::accessKind(call);
    if (kind == AccessKind::None)
        return;
    if (const int delay = m_delay)
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    if (!m_connected)
        throw ZetoGenParam::CodeException(ZetoCam::ErrorNoDevice);
    const int32_t refusal = kind == AccessKind::Write ? m_refusal.exchange(0) : 0;
    if (refusal)
        throw ZetoGenParam::CodeException(refusal);
}

} // namespace ZetoSimulator
