#include "featureunit.h"

#include <GenICam.h>
#include <ZetoGenParam.h>

namespace ZetoGui {
namespace {

QString integerUnit(ZetoGenParam::Array& array, const char* name)
{
    GenApi::INodeMap* const map = array.GetNodeMap(0);
    GenApi::INode* const node = map ? map->GetNode(name) : nullptr;
    auto* const integer = dynamic_cast<GenApi::IInteger*>(node);
    return integer ? QString::fromUtf8(integer->GetUnit().c_str()) : QString();
}

} // namespace

QString featureUnit(ZetoGenParam::Array& array, const char* name)
{
    try {
        const QString unit = integerUnit(array, name);
        return unit == QLatin1String("us") ? microseconds() : unit;
    } catch (...) { // GenICam::GenericException is no std::exception, and a unit can be done without
        return {};
    }
}

QString microseconds()
{
    return QChar(0x03BC) + QLatin1String("s"); // Greek small letter mu
}

} // namespace ZetoGui
