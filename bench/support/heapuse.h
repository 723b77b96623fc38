#pragma once

#include <cstddef>

/// Bytes that the program holds on the heap right now, as the C library counts them, bookkeeping included.
/// Compare two calls on a single thread. 0 where the C library does not tell.
std::size_t heapInUse();
