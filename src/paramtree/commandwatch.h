#pragma once

#include <GenApi/GenApi.h>

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

/// Watches the commands that a camera still works on. Asking one whether it is done also makes its node map
/// report what it has changed.
class CommandWatch
{
public:
    using Done = std::function<void(GenApi::IValue& command)>;

    explicit CommandWatch(Done done);

    /// To be told after each execution of \a command.
    void started(GenApi::IValue& command);
    bool isBusy(const GenApi::IValue& command) const;
    void clear();

private:
    QTimer& timer();
    void ask();
    bool remove(const GenApi::IValue& command);

    Done m_done;
    std::unique_ptr<QTimer> m_timer; ///< made when a command first takes its time
    std::vector<GenApi::IValue*> m_busy;
};
