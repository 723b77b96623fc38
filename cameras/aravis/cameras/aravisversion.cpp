#include "aravisversion.h"

#include <arv.h>

#include <string>

namespace ZetoAravis {

const char* aravisVersion()
{
    static const std::string text = "Aravis " + std::to_string(arv_get_major_version()) + "." +
                                    std::to_string(arv_get_minor_version()) + "." +
                                    std::to_string(arv_get_micro_version());
    return text.c_str();
}

} // namespace ZetoAravis
