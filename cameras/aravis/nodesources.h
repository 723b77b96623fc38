#pragma once

#include "booleansource.h"
#include "commandsource.h"
#include "enumerationsource.h"
#include "floatsource.h"
#include "integersource.h"
#include "registersource.h"
#include "stringsource.h"

#include <memory>

namespace ZetoAravis {

class DescribedDevice;

// What the nodes of a node map get their values from: each makes the source of the description's node \a
// index. \a device must outlive the source.

std::unique_ptr<ZetoNodeMap::IntegerSource> makeIntegerSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::FloatSource> makeFloatSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::StringSource> makeStringSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::EnumerationSource> makeEnumerationSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::BooleanSource> makeBooleanSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::CommandSource> makeCommandSource(DescribedDevice& device, int index);
std::unique_ptr<ZetoNodeMap::RegisterSource> makeRegisterSource(DescribedDevice& device, int index);

} // namespace ZetoAravis
