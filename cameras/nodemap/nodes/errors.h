#pragma once

#include "genapiversion.h"

#include <string>

namespace ZetoNodeMap {

// The exceptions of a node map, with the name of the node in the text.

[[noreturn]] void throwNotReadable(const std::string& node, GenApi::EAccessMode mode);
[[noreturn]] void throwNotWritable(const std::string& node, GenApi::EAccessMode mode);
[[noreturn]] void throwNotImplemented(const std::string& node);
[[noreturn]] void throwOutOfRange(const std::string& node, const std::string& reason);
[[noreturn]] void throwInvalidArgument(const std::string& node, const std::string& reason);
[[noreturn]] void throwLogicalError(const std::string& node, const std::string& reason);
[[noreturn]] void throwRuntimeError(const std::string& node, const std::string& reason);
[[noreturn]] void throwAccessError(const std::string& node, const std::string& reason);

} // namespace ZetoNodeMap
