#include "changerelay.h"

#include <QThread>

#include <algorithm>
#include <utility>

namespace ZetoGui {

ChangeRelay::ChangeRelay(Tell tell)
    : m_tell(std::move(tell))
{
}

void ChangeRelay::take(ZetoGenParam::Param* param)
{
    if (QThread::currentThread() == thread())
        m_tell(param);
    else if (enqueue(param))
        QMetaObject::invokeMethod(
            this, [this] { deliver(); }, Qt::QueuedConnection);
}

void ChangeRelay::drop()
{
    const std::lock_guard lock(m_mutex);
    m_waiting.clear();
}

/// \return whether nothing waited before
bool ChangeRelay::enqueue(ZetoGenParam::Param* param)
{
    const std::lock_guard lock(m_mutex);
    const bool isFirst = m_waiting.empty();
    if (std::find(m_waiting.begin(), m_waiting.end(), param) == m_waiting.end())
        m_waiting.push_back(param);
    return isFirst;
}

/// Takes one after the other, since what one causes may drop the others.
void ChangeRelay::deliver()
{
    for (;;) {
        ZetoGenParam::Param* param = nullptr;
        {
            const std::lock_guard lock(m_mutex);
            if (m_waiting.empty())
                return;
            param = m_waiting.front();
            m_waiting.erase(m_waiting.begin());
        }
        m_tell(param);
    }
}

} // namespace ZetoGui
