#pragma once

#include <QtGlobal>

/// Addresses have the first octet in the highest byte.
struct NetworkPlace
{
    quint32 address = 0;
    quint32 mask = 0;
};

/// Whether a camera will be reached through an adapter.
struct SubnetCheck
{
    enum Result
    {
        Good,
        MaskMismatch,
        BadAddress, ///< in the adapter's subnet, but nobody's address or the adapter's own
        SubnetMismatch,
    };

    bool isAddressValid = false;
    bool isMaskValid = false;
    Result result = MaskMismatch;
};

SubnetCheck checkSubnet(const NetworkPlace& camera, const NetworkPlace& adapter);

/// An address beside the adapter's own: the next one in the lower half of the last octet, the one before in
/// the upper half.
quint32 addressBeside(quint32 adapter);
