#pragma once

#include "paramfaults.h"

#include <ZetoCameraApi.h>

#include <functional>
#include <memory>

/// A camera library in front of another one: every call into it can be held up or made to fail, those to the
/// parameters of interfaces by faults().
class WatchedLibrary
{
public:
    /// Called with the name of each other operation, on its caller's thread. \return whether the call is to
    /// fail, with a null pointer or text, a 0 or an error code.
    using Watch = std::function<bool(const char* call)>;

    WatchedLibrary(ZetoCam::System& real, Watch watch);
    ~WatchedLibrary();

    ZetoCam::System& system();
    ParamFaults& faults() { return m_faults; }

private:
    ParamFaults m_faults;
    const std::unique_ptr<ZetoCam::System> m_system;
};
