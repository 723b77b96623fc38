#pragma once

namespace ZetoGui {

/// Entries of the camera's features `FrameAB_Selector` and `FrameMode`.
constexpr const char FrameA[] = "FrameA";
constexpr const char FrameB[] = "FrameB";

} // namespace ZetoGui
