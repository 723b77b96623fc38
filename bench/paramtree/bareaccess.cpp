#include "bareaccess.h"

#include <benchmark/benchmark.h>

namespace {

template <class Visit>
void visitFeatures(const GenApi::ICategory& category, const Visit& visit)
{
    GenApi::FeatureList_t features;
    category.GetFeatures(features);
    for (GenApi::IValue* feature : features) {
        visit(*feature);
        if (const auto* child = dynamic_cast<const GenApi::ICategory*>(feature))
            visitFeatures(*child, visit);
    }
}

template <class Visit>
void visitFeatures(const GenApi::INodeMap& nodeMap, const Visit& visit)
{
    visitFeatures(dynamic_cast<const GenApi::ICategory&>(*nodeMap.GetNode("Root")), visit);
}

bool isCategory(GenApi::IValue& feature)
{
    return feature.GetNode()->GetPrincipalInterfaceType() == GenApi::intfICategory;
}

QString text(const GenICam::gcstring& bytes)
{
    return QString::fromUtf8(bytes.c_str(), static_cast<int>(bytes.length()));
}

struct Listener
{
    void ignoreChange(GenApi::INode* /*node*/) {}
};

} // namespace

std::vector<GenApi::IValue*> featuresOf(const GenApi::INodeMap& nodeMap)
{
    std::vector<GenApi::IValue*> all;
    visitFeatures(nodeMap, [&](GenApi::IValue& feature) {
        if (!isCategory(feature))
            all.push_back(&feature);
    });
    return all;
}

std::vector<GenApi::CallbackHandleType> walkAndRegister(const GenApi::INodeMap& nodeMap)
{
    static Listener listener;
    std::vector<GenApi::CallbackHandleType> handles;
    visitFeatures(nodeMap, [&](GenApi::IValue& feature) {
        GenApi::INode* node = feature.GetNode();
        benchmark::DoNotOptimize(node->GetName());
        benchmark::DoNotOptimize(node->GetVisibility());
        benchmark::DoNotOptimize(node->GetAccessMode());
        handles.push_back(GenApi::Register(node, listener, &Listener::ignoreChange));
    });
    return handles;
}

bool readValue(GenApi::IValue& feature)
{
    switch (feature.GetNode()->GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        benchmark::DoNotOptimize(dynamic_cast<GenApi::IInteger&>(feature).GetValue());
        return true;
    case GenApi::intfIFloat:
        benchmark::DoNotOptimize(dynamic_cast<GenApi::IFloat&>(feature).GetValue());
        return true;
    case GenApi::intfIBoolean:
        benchmark::DoNotOptimize(dynamic_cast<GenApi::IBoolean&>(feature).GetValue());
        return true;
    case GenApi::intfIEnumeration:
    case GenApi::intfIString:
        benchmark::DoNotOptimize(feature.ToString());
        return true;
    default:
        return false;
    }
}

QString valueText(GenApi::IValue& feature)
{
    switch (feature.GetNode()->GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger: {
        auto& node = dynamic_cast<GenApi::IInteger&>(feature);
        return QString::number(node.GetValue()) + text(node.GetUnit());
    }
    case GenApi::intfIFloat: {
        auto& node = dynamic_cast<GenApi::IFloat&>(feature);
        const auto decimals = static_cast<int>(node.GetDisplayPrecision());
        return QString::number(node.GetValue(), 'f', decimals) + text(node.GetUnit());
    }
    case GenApi::intfIBoolean:
        return dynamic_cast<GenApi::IBoolean&>(feature).GetValue() ? QStringLiteral("True")
                                                                   : QStringLiteral("False");
    case GenApi::intfIEnumeration:
    case GenApi::intfIString:
        return text(feature.ToString());
    default:
        return {};
    }
}

int countMatches(const GenApi::INodeMap& nodeMap, GenApi::EVisibility level, const QRegExp& pattern)
{
    int matches = 0;
    visitFeatures(nodeMap, [&](GenApi::IValue& feature) {
        const GenApi::INode* node = feature.GetNode();
        matches += node->GetVisibility() <= level &&
                   (isCategory(feature) || pattern.indexIn(text(node->GetDisplayName())) >= 0) &&
                   GenApi::IsImplemented(&feature);
    });
    return matches;
}
