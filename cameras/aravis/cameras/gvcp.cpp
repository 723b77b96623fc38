#include "gvcp.h"

#include <glib.h>

#include <algorithm>
#include <memory>

namespace ZetoAravis::Gvcp {
namespace {

enum Command : std::uint16_t
{
    Discovery = 0x0002,
    ForceAddress = 0x0004,
    ReadRegister = 0x0080,
};

constexpr std::size_t headerSize = 8;
constexpr std::size_t discoverySize = 0xF8;
constexpr std::size_t forceAddressSize = 56;

void append(Datagram& datagram, std::uint64_t value, int bytes)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        datagram.push_back(static_cast<std::uint8_t>(value >> shift));
}

std::uint64_t number(const Datagram& datagram, std::size_t at, std::size_t bytes)
{
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
        value = value << 8 | datagram[at + i];
    return value;
}

Datagram command(Command command, std::uint16_t id, std::size_t payloadSize)
{
    Datagram datagram = {0x42, 0x01}; // a command that asks for an answer
    append(datagram, command, 2);
    append(datagram, payloadSize, 2);
    append(datagram, id, 2);
    return datagram;
}

/// An answer has the number of its command plus one.
bool answers(const Datagram& datagram, Command command, std::uint16_t id)
{
    return datagram.size() >= headerSize && number(datagram, 2, 2) == command + 1U &&
           datagram.size() >= headerSize + number(datagram, 4, 2) && number(datagram, 6, 2) == id;
}

struct GFree
{
    void operator()(char* text) const { g_free(text); }
};

/// The text in a field of \a size bytes: up to the first 0, without control characters, made valid UTF-8.
std::string text(const Datagram& datagram, std::size_t offset, std::size_t size)
{
    const auto begin = datagram.begin() + static_cast<std::ptrdiff_t>(headerSize + offset);
    std::string bytes(begin, std::find(begin, begin + static_cast<std::ptrdiff_t>(size), 0));
    const auto isControl = [](unsigned char c) { return c < ' ' || c == 0x7F; };
    bytes.erase(std::remove_if(bytes.begin(), bytes.end(), isControl), bytes.end());
    const std::unique_ptr<char, GFree> valid(
        g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size())));
    return valid.get();
}

} // namespace

Datagram discoveryCommand(std::uint16_t id)
{
    return command(Discovery, id, 0);
}

Datagram readRegisterCommand(std::uint16_t id, std::uint32_t address)
{
    Datagram datagram = command(ReadRegister, id, 4);
    append(datagram, address, 4);
    return datagram;
}

Datagram forceAddressCommand(std::uint16_t id, std::uint64_t mac, const NetworkAddress& address)
{
    Datagram datagram = command(ForceAddress, id, forceAddressSize);
    append(datagram, mac, 8);
    for (const std::uint32_t part : {address.ip, address.mask, address.gateway}) {
        append(datagram, 0, 8);
        append(datagram, part, 8);
    }
    return datagram;
}

std::optional<DiscoveryAnswer> discoveryAnswer(const Datagram& datagram, std::uint16_t id)
{
    if (!answers(datagram, Discovery, id) || number(datagram, 0, 2) != 0 ||
        datagram.size() < headerSize + discoverySize)
        return std::nullopt;
    const auto address = [&](std::size_t offset) {
        return static_cast<std::uint32_t>(number(datagram, headerSize + offset, 4));
    };
    return DiscoveryAnswer{number(datagram, headerSize + 0x0A, 6),
                           {address(0x24), address(0x34), address(0x44)},
                           text(datagram, 0x48, 32),
                           text(datagram, 0x68, 32),
                           text(datagram, 0x88, 32),
                           text(datagram, 0xD8, 16),
                           text(datagram, 0xE8, 16)};
}

std::optional<RegisterAnswer> registerAnswer(const Datagram& datagram, std::uint16_t id)
{
    if (!answers(datagram, ReadRegister, id))
        return std::nullopt;
    const auto status = static_cast<std::uint16_t>(number(datagram, 0, 2));
    if (datagram.size() < headerSize + 4)
        return status == 0 ? std::nullopt : std::optional(RegisterAnswer{status, 0});
    return RegisterAnswer{status, static_cast<std::uint32_t>(number(datagram, headerSize, 4))};
}

} // namespace ZetoAravis::Gvcp
