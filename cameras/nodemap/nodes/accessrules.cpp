#include "accessrules.h"

namespace ZetoNodeMap {

GenApi::EAccessMode AccessRules::evaluate(const NodeMap& map, GenApi::EAccessMode source) const
{
    const GenApi::EAccessMode granted = GenApi::Combine(declared, source);
    if (granted == GenApi::NI || !implemented.evaluate(map))
        return GenApi::NI;
    if (granted == GenApi::NA || !available.evaluate(map))
        return GenApi::NA;
    return locked.evaluate(map) ? GenApi::Combine(granted, GenApi::RO) : granted;
}

bool AccessRules::isTraceable() const
{
    return implemented.isTraceable() && available.isTraceable() && locked.isTraceable();
}

std::vector<std::string> AccessRules::inputs() const
{
    std::vector<std::string> all;
    for (const Setting<bool>* rule : {&implemented, &available, &locked}) {
        const std::vector<std::string> inputs = rule->inputs();
        all.insert(all.end(), inputs.begin(), inputs.end());
    }
    return all;
}

} // namespace ZetoNodeMap
