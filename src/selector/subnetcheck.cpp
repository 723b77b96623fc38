#include "subnetcheck.h"

namespace {

constexpr quint32 firstAddress = 0x01000000; // 0.x.x.x is nobody's address

} // namespace

SubnetCheck checkSubnet(const NetworkPlace& camera, const NetworkPlace& adapter)
{
    const bool isSameSubnet = (camera.address & camera.mask) == (adapter.address & adapter.mask);
    SubnetCheck check;
    check.isAddressValid =
        camera.address >= firstAddress && isSameSubnet && camera.address != adapter.address;
    check.isMaskValid = camera.mask == adapter.mask;
    if (!check.isMaskValid)
        check.result = SubnetCheck::MaskMismatch;
    else if (check.isAddressValid)
        check.result = SubnetCheck::Good;
    else
        check.result = isSameSubnet ? SubnetCheck::BadAddress : SubnetCheck::SubnetMismatch;
    return check;
}

quint32 addressBeside(quint32 adapter)
{
    return (adapter & 0xFF) < 129 ? adapter + 1 : adapter - 1;
}
