#pragma once

#include "genapiversion.h"

#include <string>

namespace ZetoNodeMap {

inline GenICam::gcstring toGenICam(const std::string& text)
{
    return GenICam::gcstring(text.data(), text.size());
}

inline std::string fromGenICam(const GenICam::gcstring& text)
{
    return std::string(text.c_str(), text.size());
}

} // namespace ZetoNodeMap
