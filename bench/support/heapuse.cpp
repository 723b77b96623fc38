#include "heapuse.h"

#include <utility>

namespace {

bool isWatching = false;
std::ptrdiff_t balance = 0;

} // namespace

void watchHeap()
{
    balance = 0;
    isWatching = true;
}

std::ptrdiff_t unwatchHeap()
{
    isWatching = false;
    return std::exchange(balance, 0);
}

#ifdef __GLIBC__
#include <cerrno>
#include <malloc.h>

// The C library lets a program put its own functions in the place of these, for all libraries that it uses.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

std::ptrdiff_t sizeOf(void* block)
{
    constexpr std::size_t header = sizeof(std::size_t);
    return block ? static_cast<std::ptrdiff_t>(malloc_usable_size(block) + header) : 0;
}

void* added(void* block)
{
    if (isWatching)
        balance += sizeOf(block);
    return block;
}

void remove(void* block)
{
    if (isWatching)
        balance -= sizeOf(block);
}

} // namespace

extern "C" {

void* malloc(std::size_t size)
{
    return added(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return added(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size)
{
    const std::ptrdiff_t before = isWatching ? sizeOf(block) : 0;
    void* moved = __libc_realloc(block, size);
    if (moved || size == 0)
        balance -= before;
    return added(moved);
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return added(__libc_memalign(alignment, size));
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return added(__libc_memalign(alignment, size));
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = added(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}

void free(void* block)
{
    remove(block);
    __libc_free(block);
}
}
#endif
