#pragma once

#include "source.h"

namespace ZetoNodeMap {

/// Source of a command: what it does and when it is finished.
class CommandSource : public Source
{
public:
    virtual void execute() = 0;

    /// Whether the last execution is finished; true before the first.
    virtual bool isDone() { return true; }
};

} // namespace ZetoNodeMap
