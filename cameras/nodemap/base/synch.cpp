#include <Base/GCSynch.h>
#include <GenApi/Synch.h>

namespace GENICAM_NAMESPACE {

CLock::CLock()
    : m_mutex(std::make_unique<std::recursive_mutex>())
{
}

CLock::~CLock() = default;

bool CLock::TryLock()
{
    return m_mutex->try_lock();
}

void CLock::Lock()
{
    m_mutex->lock();
}

void CLock::Unlock()
{
    m_mutex->unlock();
}

} // namespace GENICAM_NAMESPACE

namespace GENAPI_NAMESPACE {

CLock::CLock()
    : m_mutex(std::make_unique<std::recursive_mutex>())
{
}

CLock::~CLock() = default;

bool CLock::TryLock()
{
    return m_mutex->try_lock();
}

void CLock::Lock()
{
    m_mutex->lock();
}

void CLock::Unlock()
{
    m_mutex->unlock();
}

} // namespace GENAPI_NAMESPACE
