#pragma once

namespace ZetoAravis {

/// The library at run time, for example "Aravis 0.8.26".
const char* aravisVersion();

} // namespace ZetoAravis
