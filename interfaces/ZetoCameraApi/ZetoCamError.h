#pragma once

#include <cstdint>

namespace ZetoCam {

/// Result of every operation that returns or reports an int32_t code. 0 is success, all errors are negative.
enum ErrorCode : int32_t
{
    Success = 0,
    ErrorUnknown = -40001,
    ErrorFileNotFound = -40002,
    ErrorFileRead = -40003,
    ErrorWrongConfiguration = -40004,
    ErrorInvalidIndex = -40005,
    ErrorNoDevice = -40006, ///< the camera is gone, not reachable or held by another program
    ErrorInvalidArgument = -40007,
    ErrorInvalidState = -40051, ///< not possible now, for example after the camera was lost
    ErrorFlashErase = -40101,
    ErrorGenICamGeneric = -40200,
    ErrorGenICamTree = -40201,
    ErrorGenICamAccess = -40202, ///< not readable, not writable or not available now
    ErrorGenICamType = -40203,   ///< the feature has another type than the one asked for
    ErrorGenICamRange = -40204,  ///< outside the limits or not on the increment
    ErrorGenICamUnknownParam = -40205,
    ErrorGenICamInvalidArgument = -40206, ///< for example an entry that the enumeration does not have
};

} // namespace ZetoCam
