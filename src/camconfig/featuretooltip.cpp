#include "featuretooltip.h"

#include <ZetoGenParam.h>

#include <GenApi/GenApi.h>

namespace ZetoGui {

namespace {

QString textOf(const GenApi::INodeMap& features, const QString& name)
{
    const GenApi::INode* const node = features.GetNode(name.toUtf8().constData());
    if (!node)
        return {};
    const QString toolTip = QString::fromUtf8(node->GetToolTip().c_str());
    return toolTip.isEmpty() ? QString::fromUtf8(node->GetDescription().c_str()) : toolTip;
}

} // namespace

QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? text : QLatin1String("<qt>") + text.toHtmlEscaped() + QLatin1String("</qt>");
}

QString featureToolTip(ZetoGenParam::Array& array, const QString& name)
{
    try {
        if (const GenApi::INodeMap* const features = array.GetNodeMap(0))
            return plainToolTip(textOf(*features, name));
    } catch (const GenICam::GenericException&) {
        return {}; // a help that cannot be had is none
    } catch (const std::exception&) {
        return {};
    }
    return {};
}

} // namespace ZetoGui
