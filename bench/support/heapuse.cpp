#include "heapuse.h"

#ifdef __GLIBC__
#include <malloc.h>

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}
#else
std::size_t heapInUse()
{
    return 0;
}
#endif
