#include "sparsememory.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace ZetoAravis {
namespace {

bool isWithinMemory(std::uint64_t address, std::size_t count)
{
    constexpr auto last = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return address <= last && count <= last - address;
}

/// Calls \a visit(page number, offset in the page, offset in the range, count) for each piece of the range.
template <typename Visitor>
void forEachPiece(std::uint64_t address, std::size_t count, std::size_t pageSize, Visitor visit)
{
    for (std::size_t done = 0; done < count;) {
        const std::uint64_t at = address + done;
        const auto offset = static_cast<std::size_t>(at % pageSize);
        const std::size_t piece = std::min(count - done, pageSize - offset);
        visit(at / pageSize, offset, done, piece);
        done += piece;
    }
}

} // namespace

bool SparseMemory::read(std::uint64_t address, std::uint8_t* bytes, std::size_t count) const
{
    if (!isWithinMemory(address, count))
        return false;
    forEachPiece(address, count, pageSize,
                 [&](std::uint64_t number, std::size_t offset, std::size_t done, std::size_t piece) {
                     const auto page = m_pages.find(number);
                     if (page == m_pages.end())
                         std::memset(bytes + done, 0, piece);
                     else
                         std::memcpy(bytes + done, page->second.data() + offset, piece);
                 });
    return true;
}

bool SparseMemory::write(std::uint64_t address, const std::uint8_t* bytes, std::size_t count)
{
    if (!isWithinMemory(address, count))
        return false;
    forEachPiece(address, count, pageSize,
                 [&](std::uint64_t number, std::size_t offset, std::size_t done, std::size_t piece) {
                     std::memcpy(m_pages[number].data() + offset, bytes + done, piece);
                 });
    return true;
}

} // namespace ZetoAravis
