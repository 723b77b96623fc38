#pragma once

#include <cstddef>

/// Bytes that \a work leaves on the heap: what it has allocated and not freed, the C library's rounding and
/// bookkeeping of each block included. What it frees of older blocks counts against it.
/// Counted block by block, because the C library's own totals include what its caches hold for later, which
/// is as much as a small tree. For a single thread. 0 where the C library cannot be watched.
template <typename Work>
std::ptrdiff_t heapLeftBy(const Work& work);

/// Begins and ends the watch for heapLeftBy().
void watchHeap();
std::ptrdiff_t unwatchHeap();

template <typename Work>
std::ptrdiff_t heapLeftBy(const Work& work)
{
    watchHeap();
    work();
    return unwatchHeap();
}
