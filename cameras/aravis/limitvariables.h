#pragma once

#include "xmlelement.h"

#include <string>
#include <vector>

namespace ZetoAravis {

class CameraDescription;

/// Formulas may use limits of a node, as `X.Max`, and values of entries, as `X.Entry.Name`, which the Aravis
/// library takes for 0. In \a formula, an element with variables and formulas as its children, each becomes a
/// variable of the node that states the limit, or a constant. \return the names of those that nothing states.
std::vector<std::string> settleLimitVariables(const CameraDescription& description, XmlElement& formula);

} // namespace ZetoAravis
