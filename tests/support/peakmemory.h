#pragma once

#include <cstdint>

/// The most memory that the process has had in use so far, in bytes; 0 where the system does not tell.
int64_t peakMemory();
