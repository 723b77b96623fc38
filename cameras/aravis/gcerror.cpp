#include "gcerror.h"

#include <arv.h>

#include <Base/GCException.h>

namespace ZetoAravis {
namespace {

enum class Failure
{
    OutOfRange,
    Access,
    InvalidArgument,
    Timeout,
    Property,
    Logical,
    Runtime
};

Failure failureOfEvaluation(int code)
{
    switch (code) {
    case ARV_GC_ERROR_OUT_OF_RANGE:
        return Failure::OutOfRange;
    case ARV_GC_ERROR_READ_ONLY:
    case ARV_GC_ERROR_NO_EVENT_IMPLEMENTATION:
        return Failure::Access;
    case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND:
    case ARV_GC_ERROR_INVALID_LENGTH:
    case ARV_GC_ERROR_INVALID_SYNTAX:
        return Failure::InvalidArgument;
    default:
        return Failure::Property;
    }
}

Failure failureOfDevice(int code)
{
    switch (code) {
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
        return Failure::Timeout;
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
        return Failure::Access;
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_NOT_FOUND:
    case ARV_DEVICE_ERROR_GENICAM_NOT_FOUND:
        return Failure::InvalidArgument;
    case ARV_DEVICE_ERROR_WRONG_FEATURE:
    case ARV_DEVICE_ERROR_FEATURE_NOT_FOUND:
        return Failure::Logical;
    default:
        return Failure::Runtime;
    }
}

Failure failureOf(const GError& error)
{
    if (error.domain == ARV_GC_ERROR)
        return failureOfEvaluation(error.code);
    if (error.domain == ARV_DEVICE_ERROR)
        return failureOfDevice(error.code);
    return error.domain == ARV_CHUNK_PARSER_ERROR ? Failure::Access : Failure::Runtime;
}

} // namespace

void throwAsGenICam(const GError& error, const std::string& nodeName)
{
    const std::string text = nodeName + ": " + error.message;
    switch (failureOf(error)) {
    case Failure::OutOfRange:
        throw OUT_OF_RANGE_EXCEPTION(text);
    case Failure::Access:
        throw ACCESS_EXCEPTION(text);
    case Failure::InvalidArgument:
        throw INVALID_ARGUMENT_EXCEPTION(text);
    case Failure::Timeout:
        throw TIMEOUT_EXCEPTION(text);
    case Failure::Property:
        throw PROPERTY_EXCEPTION(text);
    case Failure::Logical:
        throw LOGICAL_ERROR_EXCEPTION(text);
    case Failure::Runtime:
        break;
    }
    throw RUNTIME_EXCEPTION(text);
}

} // namespace ZetoAravis
