#pragma once

#include "enumerationsource.h"
#include "memory.h"

namespace ZetoNodeMap {

/// An enumeration in memory. An entry that clears itself is replaced by another one at the first read after
/// the write: the camera has finished by then.
class EnumerationMemory : public Memory<EnumerationSource>
{
public:
    /// \a value, once written, becomes \a next by itself.
    void setCleared(int64_t value, int64_t next) { m_cleared[value] = next; }

    int64_t read() override
    {
        const int64_t value = Memory::read();
        const auto cleared = m_cleared.find(value);
        if (cleared != m_cleared.end())
            store(cleared->second);
        return cleared == m_cleared.end() ? value : cleared->second;
    }

private:
    std::map<int64_t, int64_t> m_cleared;
};

} // namespace ZetoNodeMap
