#pragma once

#include <Base/GCTypes.h>

#include <memory>
#include <mutex>

namespace GENICAM_NAMESPACE {

/// A lock that the thread that holds it can take again. Not the lock of a node map: that is GenApi::CLock.
class GCBASE_API CLock
{
public:
    CLock();
    ~CLock();
    CLock(const CLock&) = delete;
    CLock& operator=(const CLock&) = delete;

    /// \return whether the lock was taken; does not wait.
    bool TryLock();
    void Lock();
    void Unlock();

private:
    std::unique_ptr<std::recursive_mutex> m_mutex;
};

/// Holds a lock until the end of the scope.
class AutoLock
{
public:
    explicit AutoLock(CLock& lock)
        : m_lock(lock)
    {
        m_lock.Lock();
    }
    ~AutoLock() { m_lock.Unlock(); }
    AutoLock(const AutoLock&) = delete;
    AutoLock& operator=(const AutoLock&) = delete;

private:
    CLock& m_lock;
};

} // namespace GENICAM_NAMESPACE
