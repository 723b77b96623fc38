#include "errors.h"

#include <GenApi/EnumClasses.h>

namespace ZetoNodeMap {

static std::string modeText(GenApi::EAccessMode mode)
{
    return GenApi::EAccessModeClass::ToString(mode).c_str();
}

void throwNotReadable(const std::string& node, GenApi::EAccessMode mode)
{
    throwAccessError(node, "not readable in access mode " + modeText(mode));
}

void throwNotWritable(const std::string& node, GenApi::EAccessMode mode)
{
    throwAccessError(node, "not writable in access mode " + modeText(mode));
}

void throwNotImplemented(const std::string& node)
{
    throwAccessError(node, "not implemented");
}

void throwAccessError(const std::string& node, const std::string& reason)
{
    throw ACCESS_EXCEPTION("%s: %s", node.c_str(), reason.c_str());
}

void throwOutOfRange(const std::string& node, const std::string& reason)
{
    throw OUT_OF_RANGE_EXCEPTION("%s: %s", node.c_str(), reason.c_str());
}

void throwInvalidArgument(const std::string& node, const std::string& reason)
{
    throw INVALID_ARGUMENT_EXCEPTION("%s: %s", node.c_str(), reason.c_str());
}

void throwLogicalError(const std::string& node, const std::string& reason)
{
    throw LOGICAL_ERROR_EXCEPTION("%s: %s", node.c_str(), reason.c_str());
}

void throwRuntimeError(const std::string& node, const std::string& reason)
{
    throw RUNTIME_EXCEPTION("%s: %s", node.c_str(), reason.c_str());
}

} // namespace ZetoNodeMap
