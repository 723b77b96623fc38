// Random patterns, case, whole-word and level settings for the browser's filter.

#include "featuretree.h"
#include "fuzztarget.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "nodemapbuilder.h"

namespace {

/// A tree with a long name that repeats itself, the worst case for wildcards.
std::unique_ptr<ZetoNodeMap::NodeMap> makeNodeMap()
{
    ZetoNodeMap::NodeMapBuilder builder;
    ZetoNodeMap::declareFeatureTree(builder, 20);
    builder.integer("Long").in("Category0").displayName(std::string(200, 'a'));
    builder.integer("Brackets").in("Category0").displayName("[*]?\\ \xc3\xa9\xe6\xbc\xa2");
    return builder.build();
}

int rowCount(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    int rows = model.rowCount(parent);
    for (int row = model.rowCount(parent) - 1; row >= 0; --row)
        rows += rowCount(model, model.index(row, 0, parent));
    return rows;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto nodeMap = makeNodeMap();
    static GenParamTreeModel model(nodeMap.get());
    static const int allRows = rowCount(model);
    if (size == 0)
        return 0;

    GenParamTreeVisibilityFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setFilterVisibility(GenApi::Guru);
    require(rowCount(proxy) == allRows, "an empty pattern hides nothing");

    const int settings = data[0];
    proxy.setNameCaseSensitivity(settings & 1 ? Qt::CaseSensitive : Qt::CaseInsensitive);
    proxy.setWholeWord(settings & 2);
    proxy.setFilterText(
        QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1)));
    require(rowCount(proxy) <= allRows, "a pattern adds nothing");
    proxy.setFilterVisibility((settings >> 2) % 3);
    require(proxy.rowCount() == model.rowCount(), "a category stays, whatever the pattern");

    proxy.setFilterText(QString());
    proxy.setFilterVisibility(GenApi::Guru);
    require(rowCount(proxy) == allRows, "an empty pattern hides nothing");
    return 0;
}
