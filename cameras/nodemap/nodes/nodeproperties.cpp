#include "nodeproperties.h"

#include "nodedeclaration.h"

#include <GenApi/EnumClasses.h>

namespace ZetoNodeMap {

std::vector<NodeProperty> nodeProperties(const NodeInfo& info)
{
    const auto yes = [](bool flag) { return std::string(flag ? "Yes" : ""); };
    const NodeProperty stated[] = {
        {"Name", info.name},
        {"NameSpace", GenApi::ENameSpaceClass::ToString(info.nameSpace).c_str()},
        {"DisplayName", info.displayName},
        {"ToolTip", info.toolTip},
        {"Description", info.description},
        {"Visibility", GenApi::EVisibilityClass::ToString(info.visibility).c_str()},
        {"DocuURL", info.docuUrl},
        {"IsDeprecated", yes(info.deprecated)},
        {"EventID", info.eventId},
        {"Streamable", yes(info.streamable)},
        {"Cachable", GenApi::ECachingModeClass::ToString(info.cachingMode).c_str()},
        {"PollingTime", info.pollingTime < 0 ? std::string() : std::to_string(info.pollingTime)},
    };
    std::vector<NodeProperty> present;
    for (const NodeProperty& property : stated) {
        if (!property.value.empty())
            present.push_back(property);
    }
    return present;
}

} // namespace ZetoNodeMap
