#include "featuretree.h"

#include "nodemapbuilder.h"

namespace ZetoNodeMap {

namespace {

const int membersOfCategory = 20;

/// Says what all features of the tree have.
template <class Builder>
Builder& described(Builder&& feature, int number)
{
    static const GenApi::EVisibility levels[] = {GenApi::Beginner, GenApi::Expert, GenApi::Guru};
    return feature.in("Category" + std::to_string(number / membersOfCategory))
        .displayName("Feature " + std::to_string(number))
        .toolTip("Feature number " + std::to_string(number) + " of the tree")
        .visibility(levels[number % 3]);
}

void declareFeature(NodeMapBuilder& builder, int number)
{
    const std::string name = "Feature" + std::to_string(number);
    switch (number % 6) {
    case 0:
        described(builder.integer(name), number)
            .unit("px")
            .limits(0, 4096)
            .increment(2)
            .value(number % 2048 * 2);
        break;
    case 1:
        described(builder.floating(name), number).unit("us").limits(0, 1e6).value(number * 0.5);
        break;
    case 2:
        described(builder.enumeration(name), number).entries({"Off", "Once", "Continuous"});
        break;
    case 3:
        described(builder.boolean(name), number).value(number % 4 == 3);
        break;
    case 4:
        described(builder.string(name), number).maxLength(64).value("Text " + std::to_string(number));
        break;
    default:
        described(builder.command(name), number);
        break;
    }
}

} // namespace

void declareFeatureTree(NodeMapBuilder& builder, int featureCount)
{
    const int categoryCount = (featureCount + membersOfCategory - 1) / membersOfCategory;
    builder.category("Root");
    for (int category = 0; category < categoryCount; ++category) {
        const std::string group = "Group" + std::to_string(category / membersOfCategory);
        if (category % membersOfCategory == 0)
            builder.category(group).in("Root");
        builder.category("Category" + std::to_string(category)).in(group);
    }
    for (int number = 0; number < featureCount; ++number)
        declareFeature(builder, number);
}

} // namespace ZetoNodeMap
