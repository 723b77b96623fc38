#include "networkadapter.h"

#include <ifaddrs.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <netinet/in.h>

#include <algorithm>
#include <map>
#include <memory>

namespace ZetoAravis {
namespace {

struct AddressListFree
{
    void operator()(ifaddrs* list) const { freeifaddrs(list); }
};

std::uint32_t ipOf(const sockaddr* address)
{
    return address ? ntohl(reinterpret_cast<const sockaddr_in*>(address)->sin_addr.s_addr) : 0;
}

std::uint64_t macOf(const sockaddr_ll& address)
{
    std::uint64_t mac = 0;
    for (int i = 0; i < 6; ++i)
        mac = mac << 8 | address.sll_addr[i];
    return mac;
}

bool isSearched(const ifaddrs& entry)
{
    return entry.ifa_addr && (entry.ifa_flags & IFF_UP) && !(entry.ifa_flags & IFF_POINTOPOINT);
}

void take(const ifaddrs& entry, NetworkAdapter& adapter)
{
    adapter.name = entry.ifa_name;
    adapter.isLoopback = entry.ifa_flags & IFF_LOOPBACK;
    if (entry.ifa_addr->sa_family == AF_INET)
        adapter.addresses.push_back({ipOf(entry.ifa_addr), ipOf(entry.ifa_netmask), 0});
    else if (entry.ifa_addr->sa_family == AF_PACKET)
        adapter.mac = macOf(*reinterpret_cast<const sockaddr_ll*>(entry.ifa_addr));
}

} // namespace

std::optional<NetworkAddress> NetworkAdapter::addressTowards(const NetworkAddress& camera) const
{
    const auto found = std::find_if(addresses.begin(), addresses.end(), [&](const NetworkAddress& own) {
        return ZetoCameraLibrary::isReachable(camera, own);
    });
    return found == addresses.end() ? std::nullopt : std::optional(*found);
}

std::vector<NetworkAdapter> networkAdapters()
{
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return {};
    const std::unique_ptr<ifaddrs, AddressListFree> owner(list);
    std::map<std::string, NetworkAdapter> byName;
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (isSearched(*entry))
            take(*entry, byName[entry->ifa_name]);
    }
    std::vector<NetworkAdapter> adapters;
    for (auto& [name, adapter] : byName) {
        if (!adapter.addresses.empty())
            adapters.push_back(std::move(adapter));
    }
    return adapters;
}

std::optional<NetworkAdapter> networkAdapter(const std::string& name)
{
    for (const NetworkAdapter& adapter : networkAdapters()) {
        if (adapter.name == name)
            return adapter;
    }
    return std::nullopt;
}

} // namespace ZetoAravis
