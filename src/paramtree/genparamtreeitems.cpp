#include "genparamtreeitems.h"

#include "genapiguard.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace {

/// Far above any device. Categories that list each other over several levels multiply without end.
constexpr size_t maxRows = 200000;

/// As many as an item can number. The unit of a feature beyond them is asked each time.
constexpr size_t maxUnits = GenParamTreeItem::unknownUnit;

struct OrderByFeature
{
    bool operator()(const GenParamTreeItem* a, const GenParamTreeItem* b) const
    {
        return std::less<>()(a->feature.value, b->feature.value);
    }
    bool operator()(const GenParamTreeItem* a, const GenApi::IValue* b) const
    {
        return std::less<>()(a->feature.value, b);
    }
    bool operator()(const GenApi::IValue* a, const GenParamTreeItem* b) const
    {
        return std::less<>()(a, b->feature.value);
    }
};

std::vector<GenApi::IValue*> membersOf(const GenApi::IValue& category)
{
    GenApi::FeatureList_t features;
    genApiFault([&] { dynamic_cast<const GenApi::ICategory&>(category).GetFeatures(features); });
    std::vector<GenApi::IValue*> members;
    std::copy_if(features.begin(), features.end(), std::back_inserter(members),
                 [](const GenApi::IValue* feature) { return feature != nullptr; });
    return members;
}

bool isCategory(const GenParamTreeItem& item)
{
    return item.feature.kind == GenParamKind::Category ||
           (item.feature.kind == GenParamKind::Unknown &&
            dynamic_cast<GenApi::ICategory*>(item.feature.value));
}

bool isBelow(const GenParamTreeItem& item, const GenApi::IValue* feature)
{
    for (const GenParamTreeItem* ancestor = item.parent; ancestor; ancestor = ancestor->parent)
        if (ancestor->feature.value == feature)
            return true;
    return false;
}

} // namespace

struct GenParamTreeItems::Build
{
    const GenApi::IValue* root;
    size_t room = maxRows;
    /// Integers whose name stands for an address, decided when the whole tree is known.
    std::vector<std::pair<GenParamTreeItem*, GenParamKind>> namedAddresses = {};
};

void GenParamTreeItems::build(GenApi::INodeMap& nodeMap)
{
    clear();
    auto* root = genApiOr<GenApi::IValue*>(
        nullptr, [&] { return dynamic_cast<GenApi::IValue*>(nodeMap.GetNode("Root")); });
    if (!dynamic_cast<GenApi::ICategory*>(root))
        return;
    Build build{root};
    addCategory(build, *root, nullptr);
    if (!m_trustsRepresentation)
        for (const auto& [item, kind] : build.namedAddresses)
            item->feature.kind = kind;
    sortByFeature();
}

void GenParamTreeItems::clear()
{
    *this = GenParamTreeItems();
}

void GenParamTreeItems::addCategory(Build& build, GenApi::IValue& category, GenParamTreeItem* parent)
{
    const std::vector<GenApi::IValue*> members = membersOf(category);
    const auto count = static_cast<qint32>(std::min(members.size(), build.room));
    if (count == 0)
        return;
    build.room -= static_cast<size_t>(count);
    m_blocks.push_back(std::make_unique<GenParamTreeItem[]>(static_cast<size_t>(count)));
    GenParamTreeItem* rows = m_blocks.back().get();
    (parent ? parent->children : m_root) = rows;
    (parent ? parent->childCount : m_rootCount) = count;
    for (qint32 row = 0; row < count; ++row) {
        rows[row].feature.value = members[static_cast<size_t>(row)];
        rows[row].parent = parent;
        addRow(build, rows[row]);
    }
}

void GenParamTreeItems::addRow(Build& build, GenParamTreeItem& item)
{
    m_byFeature.push_back(&item);
    GenApi::IValue& value = *item.feature.value;
    item.feature = genApiOr(item.feature, [&value] { return declaredFeature(value); });
    genApiFault([this, &item] { format(item); });
    if (isIntegerKind(item.feature.kind))
        noteAddress(build, item);
    else if (isCategory(item) && &value != build.root && !isBelow(item, &value))
        addCategory(build, value, &item);
}

GenParamFormat GenParamTreeItems::format(GenParamTreeItem& item)
{
    if (item.unit != GenParamTreeItem::unknownUnit)
        return {m_units[item.unit], item.decimals};
    GenParamFormat format = formatOfParam(item.feature);
    if (item.feature.kind != GenParamKind::Unknown) {
        item.unit = static_cast<quint8>(unitNumber(format.unit));
        item.decimals = static_cast<quint8>(qBound(qint64{0}, format.decimals, qint64{255}));
    }
    return format;
}

size_t GenParamTreeItems::unitNumber(const QString& unit)
{
    const auto found = std::find(m_units.begin(), m_units.end(), unit);
    const auto number = static_cast<size_t>(found - m_units.begin());
    if (found == m_units.end() && number < maxUnits)
        m_units.push_back(unit);
    return number;
}

void GenParamTreeItems::noteAddress(Build& build, GenParamTreeItem& item)
{
    const GenICam::gcstring name =
        genApiOr(GenICam::gcstring(), [&item] { return nodeOf(*item.feature.value).GetName(); });
    if (item.feature.kind == GenParamKind::IPv4Address && name == "GevCurrentIPAddress")
        m_trustsRepresentation = true;
    const GenParamKind named = namedAddressKind(name);
    if (named != GenParamKind::Unknown)
        build.namedAddresses.emplace_back(&item, named);
}

void GenParamTreeItems::sortByFeature()
{
    std::stable_sort(m_byFeature.begin(), m_byFeature.end(), OrderByFeature());
    for (size_t i = 1; i < m_byFeature.size(); ++i)
        if (m_byFeature[i]->feature.value == m_byFeature[i - 1]->feature.value)
            m_byFeature[i]->isRepeated = m_byFeature[i - 1]->isRepeated = true;
    m_byFeature.shrink_to_fit();
    m_blocks.shrink_to_fit();
}

int GenParamTreeItems::rowOf(const GenParamTreeItem& item) const
{
    return static_cast<int>(&item - (item.parent ? item.parent->children : m_root));
}

GenParamTreeItems::Range GenParamTreeItems::rowsOf(const GenApi::IValue* feature) const
{
    const auto range = std::equal_range(m_byFeature.begin(), m_byFeature.end(), feature, OrderByFeature());
    return {range.first, range.second};
}

GenParamTreeItem* GenParamTreeItems::primary(const GenApi::IValue* feature) const
{
    const Range rows = rowsOf(feature);
    return rows.first == rows.last ? nullptr : *rows.first;
}

GenParamTreeItem& GenParamTreeItems::primary(GenParamTreeItem& item) const
{
    return item.isRepeated ? **rowsOf(item.feature.value).first : item;
}
