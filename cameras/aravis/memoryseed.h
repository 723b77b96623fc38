#pragma once

namespace ZetoAravis {

class CameraDescription;
class NodeStates;
class NodeValues;

/// Puts sensible values into the zeroed memory of a device that exists only as a description; without them
/// most of a real camera's features count as not implemented, and the others have no room between their
/// limits.
///
/// - Inquiry memory (read-only for clients) behind pIsImplemented, pIsAvailable and pIsLocked gets values
///   that make features present and writable, where a few obvious values do.
/// - Increments become 1, maxima rise above the minima by 4095 (floats: 1000) where they left no room.
/// - Integer and float features outside their limits get their minimum, enumerations without an entry for
///   their value their first selectable one.
/// - The vendor and model name of the description become those of the device, where the memory has room.
///
/// What a client can write as a setting is left alone otherwise, so features whose availability depends on
/// settings start as these say. Never throws GenICam exceptions: what cannot be mended stays as it is.
void seedMemory(const CameraDescription& description, NodeValues& values, const NodeStates& states);

} // namespace ZetoAravis
