#include "peakmemory.h"

#if defined(_WIN32)
#include <windows.h>
// after windows.h
#include <psapi.h>
#else
#include <sys/resource.h>
#endif

int64_t peakMemory()
{
#if defined(_WIN32)
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters))
        return 0;
    return static_cast<int64_t>(counters.PeakWorkingSetSize);
#else
    constexpr int64_t kibibyte = 1024;
    rusage usage{};
    return getrusage(RUSAGE_SELF, &usage) == 0 ? usage.ru_maxrss * kibibyte : 0;
#endif
}
