#pragma once

#include <ZetoGenParam.h>

#include <optional>

namespace ZetoGui {

/// Whether the camera has \a param, which may be null, and lets it be written now.
inline bool isOffered(ZetoGenParam::Param* param)
{
    return param && param->IsAvailable() && param->IsWritable();
}

/// None for a feature that the camera lacks or that cannot be read.
inline std::optional<int64_t> valueOf(ZetoGenParam::Int* param)
{
    int32_t error = 0;
    const int64_t value = param ? param->GetValue(&error) : 0;
    return param && error == ZetoCam::Success ? std::make_optional(value) : std::nullopt;
}

} // namespace ZetoGui
