#pragma once

/// The camera access library: the system, its interfaces (network cards, USB controllers, frame grabbers),
/// the descriptions of the cameras found on them, and open cameras.
///
/// Conventions of all classes in this header:
/// - Ownership: System, Interface and DeviceInfo objects and their texts are owned by the library and stay
///   valid until System::Close(), also when the hardware behind them is gone; a camera that comes back is
///   described by the same object again. Lists and devices are released by the caller with their Release().
///   Nothing is deleted by the caller; the destructors are there for implementers.
/// - Errors: operations that return int32_t give a ZetoCam::ErrorCode, 0 for success. An `int32_t* error`
///   may be null; it is set in every case. Nothing throws.
/// - Threads: every operation may be called from any thread at any time. A list belongs to one thread at a
///   time. System::Close() is called when no other thread uses the library.
/// - Texts are zero-terminated and never null. A text that changes leaves the one handed out before in place.
/// - The order of the virtual operations is the binary interface.

#include "ZetoCamError.h"

#include <cstdint>

#if defined(_WIN32)
// Windows has a macro of the name of an operation below. It is taken away for good, wherever windows.h is
// included; programs that want the function of Windows call GetUserNameW.
#include <windows.h>
#undef GetUserName
#endif

#if !defined(_WIN32)
#define ZETOCAM_API __attribute__((visibility("default")))
#elif defined(ZETOCAM_EXPORTS)
#define ZETOCAM_API __declspec(dllexport)
#else
#define ZETOCAM_API __declspec(dllimport)
#endif

namespace ZetoGenParam {
class Array;
}

namespace ZetoCam {

class DeviceInfo;
class Interface;
class System;

/// What Interface::GetType() returns. Any other value is a maker's own kind of interface.
enum InterfaceType : int32_t
{
    InterfaceCustom = 0,
    InterfaceUSB3Vision = 1,
    InterfaceGigEVision = 2,
    InterfaceCameraLink = 3,
    InterfaceCoaXPress = 4,
    InterfaceHDSDI = 5,
};

/// Bits of System::GetInterfaceList(): bit n stands for interface type n, for example
/// `1 << InterfaceGigEVision`.
enum InterfaceTypeMask : uint32_t
{
    InterfaceMaskAll = 255
};

/// What DeviceInfo::GetAccessStatus() returns. Any other value means that the status is not known.
enum AccessStatus : int32_t
{
    AccessStatusReadWrite = 1,
    AccessStatusReadOnly = 2, ///< controlled by another program that lets others read
    AccessStatusNoAccess = 3, ///< held by another program
    AccessStatusSubnetMismatch =
        1001, ///< answers a search, but its IP address is not of the adapter's subnet
};

/// How ZetoCam_CreateDevice() opens a camera.
enum AccessMode : int32_t
{
    AccessReadOnly = 1,
    AccessControl = 2, ///< read and write
};

/// Ids of Device::RegisterEvent().
enum DeviceEvent : int32_t
{
    EventDeviceLost = 1003, ///< the camera does not answer any more; accesses fail with ErrorNoDevice
    EventDeviceBack = 1004, ///< a lost camera answers again; what is shown of it should be read anew
};

/// A list made for one caller, who walks it and releases it. The elements outlive it.
template <typename T>
class List
{
public:
    virtual ~List() = default;

    /// Frees the list; the pointer is not valid afterwards.
    virtual void Release() = 0;
    virtual uint64_t GetCount() = 0;
    /// First element, null when the list is empty. Starts a new walk.
    virtual T* GetFirst() = 0;
    /// The element after the one returned last; null at the end and before GetFirst().
    virtual T* GetNext() = 0;
};

using InterfaceList = List<Interface>;
using DeviceInfoList = List<DeviceInfo>;

/// The camera access library itself; there is one in a process, see ZetoCam_GetSystem().
class System
{
public:
    virtual ~System() = default;

    /// Closes the library: every object it handed out becomes invalid, open devices included. A later
    /// ZetoCam_GetSystem() opens it again.
    virtual int32_t Close() = 0;

    /// The interfaces that are there now and whose types are in \a typeMask, in a constant order. Null when
    /// the interfaces cannot be listed; an empty list when there are none. The caller releases the list.
    virtual InterfaceList* GetInterfaceList(uint32_t typeMask) = 0;
};

/// A transport interface to which cameras are connected.
class Interface
{
public:
    virtual ~Interface() = default;

    /// The cameras found by the last ReEnumerateDevices(), in a constant order. Never null; the caller
    /// releases the list.
    virtual DeviceInfoList* GetDeviceInfoList() = 0;

    /// The interface's own parameters. `DeviceSelector` chooses, by position in GetDeviceInfoList(), the
    /// camera that the parameters named after a device tell about. Null with an error code when it has none;
    /// the array lives as long as the interface object.
    virtual ZetoGenParam::Array* GetParameters(int32_t* error) = 0;

    virtual System* GetSystem() = 0;

    /// Searches for cameras for up to \a timeout milliseconds and updates the list. \a changed, which may be
    /// null, is set to whether a camera came or went.
    virtual int32_t ReEnumerateDevices(bool* changed, uint64_t timeout) = 0;

    /// Text to show, UTF-8.
    virtual const char* GetDescription() = 0;

    /// An InterfaceType.
    virtual int32_t GetType() = 0;

    /// Identifying text, ASCII: unique in the system and the same in each session.
    virtual const char* GetID() = 0;

    /// Version of the driver or firmware behind the interface, UTF-8.
    virtual const char* GetVersion() = 0;
};

/// What is known of a camera without opening it. Texts are UTF-8 but for the id.
class DeviceInfo
{
public:
    virtual ~DeviceInfo() = default;

    /// The interface on which the camera was found.
    virtual Interface* GetInterface() = 0;

    /// Identifying text, ASCII: unique in the system and the same in each session.
    virtual const char* GetID() = 0;
    virtual const char* GetVendor() = 0;
    virtual const char* GetModel() = 0;

    /// Text to show in a list of cameras.
    virtual const char* GetDisplayName() = 0;

    /// The name that the camera's user gave it, or an empty text.
    virtual const char* GetUserName() = 0;
    virtual const char* GetSerialNumber() = 0;
    virtual const char* GetVersion() = 0;

    /// An AccessStatus, as the last search found it.
    virtual int32_t GetAccessStatus() = 0;

    /// The six bytes of the address, the first one in the highest place; 0 for a camera without a network.
    virtual uint64_t GetMACAddress() = 0;

    /// IPv4 addresses have the first octet in the highest byte; 0 for a camera without a network.
    virtual uint32_t GetIPAddress() = 0;
    virtual uint32_t GetSubnetMask() = 0;
    virtual uint32_t GetGateway() = 0;

    /// Gives the camera another address until its power goes, by a broadcast that also reaches a camera in a
    /// foreign subnet. Addresses as above. The next search finds the camera at the new address, or not at all
    /// when the values put it out of reach. ErrorInvalidState for a camera that is not on a network,
    /// ErrorNoDevice when it does not answer, ErrorGenICamAccess when a program holds it.
    virtual int32_t ForceIP(uint32_t address, uint32_t mask, uint32_t gateway) = 0;
};

/// Called by the library with the DeviceEvent, on any thread, with no lock of the parameter array held. It
/// must not release the device nor wait for another thread. Exceptions must not leave it.
using DeviceEventCallback = void (*)(int32_t eventId, void* context);

/// An open camera.
class Device
{
public:
    virtual ~Device() = default;

    /// Closes the camera; the device and its parameters are not valid afterwards. Unregister sinks and
    /// callbacks before.
    virtual void Release() = 0;

    /// The camera's parameters, the same array each time; it lives as long as the device. Null with an error
    /// code when the camera cannot be read.
    virtual ZetoGenParam::Array* GetParameters(int32_t* error) = 0;

    /// Calls \a callback with \a context at each event \a eventId from now on. The same pair registered again
    /// stays registered once. ErrorInvalidArgument for a null callback or an unknown id.
    virtual int32_t RegisterEvent(int32_t eventId, DeviceEventCallback callback, void* context) = 0;

    /// Once this has returned, the pair is not called for that event any more: a call that runs on another
    /// thread is waited for. Within the callback itself it returns at once. A pair that is not registered is
    /// no error.
    virtual int32_t UnregisterEvent(int32_t eventId, DeviceEventCallback callback, void* context) = 0;
};

} // namespace ZetoCam

extern "C" {

/// The system, opened by the first call. Null when the library cannot be opened. Owned by the library.
ZETOCAM_API ZetoCam::System* ZetoCam_GetSystem();

/// Opens a camera. \a accessMode is a ZetoCam::AccessMode. Null on failure, with the reason in \a error:
/// ErrorInvalidArgument (no description or an unknown mode), ErrorNoDevice (gone, held by another program, or
/// in a foreign subnet). The caller releases the device.
ZETOCAM_API ZetoCam::Device* ZetoCam_CreateDevice(ZetoCam::DeviceInfo* info, int32_t accessMode,
                                                  int32_t* error);
}
