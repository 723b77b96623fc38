#pragma once

/// \file
/// The enumerations of the interface. Their names are unscoped and many: qualify them with \c GenApi:: and
/// include X11 headers, which define \c None, after this one or undefine it.

#include <Base/GCBase.h>
#include <GenApi/GenApiDll.h>
#include <GenICamFwd.h>

namespace GENAPI_NAMESPACE {

/// Sign of a register's number.
typedef enum _ESign
{
    Signed = 0,
    Unsigned = 1,
    _UndefinedSign = 2
} ESign;

/// Byte order of a register.
typedef enum _EEndianess
{
    BigEndian = 0,
    LittleEndian = 1,
    _UndefinedEndian = 2
} EEndianess;

/// What can be done with a node at the moment.
typedef enum _EAccessMode
{
    NI = 0, ///< Not implemented: this camera model has no such thing.
    NA = 1, ///< Not available just now.
    WO = 2, ///< Write only.
    RO = 3, ///< Read only.
    RW = 4, ///< Read and write.
    _UndefinedAccesMode = 5,
    _CycleDetectAccesMode = 6
} EAccessMode;

/// For whom a node is meant.
typedef enum _EVisibility
{
    Beginner = 0,
    Expert = 1,
    Guru = 2,
    Invisible = 3, ///< Not to be shown to people at all.
    _UndefinedVisibility = 99
} EVisibility;

/// What a write and a read do with the cached value.
typedef enum _ECachingMode
{
    NoCache = 0,      ///< Every read goes to the device.
    WriteThrough = 1, ///< A written value is kept as the value.
    WriteAround = 2,  ///< A write drops the cached value.
    _UndefinedCachingMode = 3
} ECachingMode;

/// How a number is best shown.
typedef enum _ERepresentation
{
    Linear = 0,
    Logarithmic = 1,
    Boolean = 2,
    PureNumber = 3,
    HexNumber = 4,
    IPV4Address = 5,
    MACAddress = 6,
    _UndefinedRepresentation = 7
} ERepresentation;

/// A spelling of the name that programs use.
#define _UndefindedRepresentation _UndefinedRepresentation

/// The main interface of a node.
typedef enum _EInterfaceType
{
    intfIValue = 0,
    intfIBase = 1,
    intfIInteger = 2,
    intfIBoolean = 3,
    intfICommand = 4,
    intfIFloat = 5,
    intfIString = 6,
    intfIRegister = 7,
    intfICategory = 8,
    intfIEnumeration = 9,
    intfIEnumEntry = 10,
    intfIPort = 11
} EInterfaceType;

/// The role in which one node refers to another.
typedef enum _ELinkType
{
    ctParentNodes = 0,
    ctReadingChildren = 1,
    ctWritingChildren = 2,
    ctInvalidatingChildren = 3,
    ctDependingNodes = 4,
    ctTerminalNodes = 5
} ELinkType;

/// Which values between the limits are allowed.
typedef enum _EIncMode
{
    noIncrement = 0,    ///< Any.
    fixedIncrement = 1, ///< A whole number of steps above the lower limit.
    listIncrement = 2   ///< Those of a list.
} EIncMode;

/// Notation of a float's text.
typedef enum _EDisplayNotation
{
    fnAutomatic = 0,
    fnFixed = 1,
    fnScientific = 2,
    _UndefinedEDisplayNotation = 3
} EDisplayNotation;

/// Whether a converter's output grows with its input.
typedef enum _ESlope
{
    Increasing = 0,
    Decreasing = 1,
    Varying = 2,
    Automatic = 3,
    _UndefinedESlope = 4
} ESlope;

/// Which parts of a description are checked when it is loaded; can be combined.
typedef enum _EXMLValidation
{
    xvDefault = 0,
    xvLoad = 1,
    xvCycles = 2,
    xvSFNC = 4,
    xvAll = xvLoad | xvCycles | xvSFNC
} EXMLValidation;

typedef enum _EYesNo
{
    No = 0,
    Yes = 1,
    _UndefinedYesNo = 2
} EYesNo;

/// Whether a name is one of the standard's or the maker's own.
typedef enum _ENameSpace
{
    Custom = 0,
    Standard = 1,
    _UndefinedNameSpace = 2
} ENameSpace;

/// The standard that names come from.
typedef enum _EStandardNameSpace
{
    None = 0,
    GEV = 1,
    IIDC = 2,
    CL = 3,
    USB = 4,
    _UndefinedStandardNameSpace = 5
} EStandardNameSpace;

/// Direction of a converter's formula.
typedef enum _EInputDirection
{
    idFrom = 0,
    idTo = 1,
    idNone = 2
} EInputDirection;

/// Version of the description's schema.
typedef enum _EGenApiSchemaVersion
{
    v1_0 = 1,
    v1_1 = 2,
    _Undefined = -1
} EGenApiSchemaVersion;

typedef GENICAM_NAMESPACE::gcstring_vector StringList_t;

} // namespace GENAPI_NAMESPACE
