#pragma once

#include <QObject>

#include <functional>
#include <mutex>
#include <vector>

namespace ZetoGenParam {
class Param;
}

namespace ZetoGui {

/// Hands changes that the camera library tells, on whatever thread, to the thread that made this object: at
/// once when it tells them there, otherwise by an event. Changes of one parameter that wait together are told
/// once.
class ChangeRelay : public QObject
{
public:
    using Tell = std::function<void(ZetoGenParam::Param*)>;

    explicit ChangeRelay(Tell tell);

    /// Any thread, also one that holds the lock of the parameter array.
    void take(ZetoGenParam::Param* param);

    /// Drops what waits. To be called when the sink is unregistered and before the parameters go.
    void drop();

private:
    bool enqueue(ZetoGenParam::Param* param);
    void deliver();

    const Tell m_tell;
    std::mutex m_mutex; ///< never held while the camera library or a widget is called
    std::vector<ZetoGenParam::Param*> m_waiting;
};

} // namespace ZetoGui
