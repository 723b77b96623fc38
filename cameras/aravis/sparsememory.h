#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace ZetoAravis {

/// The memory of a camera that exists only in this process: 2^63 - 1 bytes (addresses count as signed in the
/// Aravis library), zero until written, kept in pages that come into being with the first write. Not
/// thread-safe.
class SparseMemory
{
public:
    /// Both return false, and touch nothing, for a range beyond the last address.
    bool read(std::uint64_t address, std::uint8_t* bytes, std::size_t count) const;
    bool write(std::uint64_t address, const std::uint8_t* bytes, std::size_t count);

private:
    static constexpr std::size_t pageSize = 4096;
    using Page = std::array<std::uint8_t, pageSize>;

    std::unordered_map<std::uint64_t, Page> m_pages;
};

} // namespace ZetoAravis
