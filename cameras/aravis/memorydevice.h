#pragma once

#include "gobjectpointer.h"

#include <arv.h>

namespace ZetoAravis {

class DeviceMemory;

/// \return a device of the Aravis library whose memory is \a memory, which must outlive it. It has no stream
/// and no description of its own. Accesses are as thread-safe as the memory.
GObjectPointer<ArvDevice> makeMemoryDevice(DeviceMemory& memory);

} // namespace ZetoAravis
