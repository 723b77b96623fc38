#pragma once

#include <GenApi/GenApiDll.h>
#include <GenApi/GenApiNamespace.h>

#include <memory>
#include <mutex>

namespace GENAPI_NAMESPACE {

/// The lock of a node map. The thread that holds it can take it again and gives it back as often.
class GENAPI_DECL CLock
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

/// Gives every object of a class derived from it a lock of its own.
template <class Object>
class LockableObject
{
public:
    /// Holds the object's lock until the end of the scope.
    class Lock
    {
    public:
        explicit Lock(const LockableObject& object)
            : m_pLock(&object.m_Lock)
        {
            m_pLock->Lock();
        }
        Lock(const Lock& other)
            : m_pLock(other.m_pLock)
        {
            m_pLock->Lock();
        }
        Lock& operator=(const Lock&) = delete;
        ~Lock() { m_pLock->Unlock(); }

    private:
        CLock* m_pLock;
    };

    Lock GetLock() const { return Lock(*this); }

    mutable CLock m_Lock;
};

} // namespace GENAPI_NAMESPACE
