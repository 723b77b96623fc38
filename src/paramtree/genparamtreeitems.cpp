#include "genparamtreeitems.h"

#include "genapiguard.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

namespace {

/// Far above any device. Categories that list each other over several levels multiply without end.
constexpr size_t maxRows = 200000;

/// As many as an item can number. The unit of a feature beyond them is asked each time.
constexpr size_t maxTexts = GenParamTreeItem::unknownUnit;

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
    return item.kind == GenParamKind::Category ||
           (item.kind == GenParamKind::Unknown && dynamic_cast<GenApi::ICategory*>(item.value));
}

} // namespace

struct GenParamTreeItems::Build
{
    const GenApi::IValue* root;
    /// Integers whose name stands for an address, decided when the whole tree is known.
    std::vector<std::pair<qint32, GenParamKind>> namedAddresses = {};
};

void GenParamTreeItems::build(GenApi::INodeMap& nodeMap)
{
    clear();
    auto* root = genApiOr<GenApi::IValue*>(
        nullptr, [&] { return dynamic_cast<GenApi::IValue*>(nodeMap.GetNode("Root")); });
    if (!dynamic_cast<GenApi::ICategory*>(root))
        return;
    Build build{root};
    addMembers(*root, -1);
    m_rootCount = static_cast<qint32>(m_rows.size());
    for (qint32 number = 0; number < static_cast<qint32>(m_rows.size()); ++number)
        declare(build, number);
    if (!m_trustsRepresentation)
        for (const auto& [number, kind] : build.namedAddresses)
            at(number).kind = kind;
    m_rows.shrink_to_fit();
    m_marks = std::make_unique<std::atomic<bool>[]>(m_rows.size());
    sortByFeature();
}

void GenParamTreeItems::clear()
{
    *this = GenParamTreeItems();
}

void GenParamTreeItems::addMembers(const GenApi::IValue& category, qint32 parent)
{
    for (GenApi::IValue* member : membersOf(category)) {
        if (m_rows.size() == maxRows)
            return;
        GenParamTreeItem& item = m_rows.emplace_back();
        item.value = member;
        item.parent = parent;
    }
}

void GenParamTreeItems::declare(Build& build, qint32 number)
{
    GenParamTreeItem& item = at(number);
    item.firstChild = static_cast<qint32>(m_rows.size());
    GenApi::IValue& value = *item.value;
    GenParamFeature& feature = item;
    feature = genApiOr(feature, [&value] { return declaredFeature(value); });
    genApiFault([this, &item] { format(item); });
    if (isIntegerKind(item.kind))
        noteAddress(build, number);
    else if (isCategory(item) && &value != build.root && !isBelow(item, &value))
        addMembers(value, number); // and item may have moved
}

bool GenParamTreeItems::isBelow(const GenParamTreeItem& item, const GenApi::IValue* feature) const
{
    for (qint32 above = item.parent; above >= 0; above = at(above).parent)
        if (at(above).value == feature)
            return true;
    return false;
}

GenParamFormat GenParamTreeItems::format(GenParamTreeItem& item)
{
    if (item.unit != GenParamTreeItem::unknownUnit)
        return {m_texts[item.unit], item.decimals};
    GenParamFormat format = formatOfParam(item);
    if (item.kind != GenParamKind::Unknown) {
        item.unit = static_cast<quint8>(textNumber(format.unit));
        item.decimals = static_cast<quint8>(qBound(qint64{0}, format.decimals, qint64{255}));
    }
    return format;
}

QString GenParamTreeItems::shared(const QString& text)
{
    const size_t number = textNumber(text);
    return number < maxTexts ? m_texts[number] : text;
}

size_t GenParamTreeItems::textNumber(const QString& text)
{
    const auto found = std::find(m_texts.begin(), m_texts.end(), text);
    const auto number = static_cast<size_t>(found - m_texts.begin());
    if (found == m_texts.end() && number < maxTexts)
        m_texts.push_back(text);
    return number;
}

void GenParamTreeItems::noteAddress(Build& build, qint32 number)
{
    GenParamTreeItem& item = at(number);
    const GenICam::gcstring name =
        genApiOr(GenICam::gcstring(), [&item] { return nodeOf(*item.value).GetName(); });
    if (item.kind == GenParamKind::IPv4Address && name == "GevCurrentIPAddress")
        m_trustsRepresentation = true;
    const GenParamKind named = namedAddressKind(name);
    if (named != GenParamKind::Unknown)
        build.namedAddresses.emplace_back(number, named);
}

void GenParamTreeItems::sortByFeature()
{
    m_byFeature.resize(m_rows.size());
    std::iota(m_byFeature.begin(), m_byFeature.end(), 0);
    std::stable_sort(m_byFeature.begin(), m_byFeature.end(),
                     [this](qint32 a, qint32 b) { return std::less<>()(at(a).value, at(b).value); });
    for (size_t i = 1; i < m_byFeature.size(); ++i) {
        auto& item = at(m_byFeature[i]);
        auto& previous = at(m_byFeature[i - 1]);
        if (item.value == previous.value)
            item.isRepeated = previous.isRepeated = true;
    }
}

GenParamTreeItem& GenParamTreeItems::child(const GenParamTreeItem* parent, int row)
{
    return at((parent ? parent->firstChild : 0) + row);
}

int GenParamTreeItems::childCount(const GenParamTreeItem* parent) const
{
    if (!parent)
        return m_rootCount;
    const bool isLast = parent == &m_rows.back();
    return (isLast ? static_cast<qint32>(m_rows.size()) : parent[1].firstChild) - parent->firstChild;
}

GenParamTreeItem* GenParamTreeItems::parentOf(const GenParamTreeItem& item)
{
    return item.parent < 0 ? nullptr : &at(item.parent);
}

int GenParamTreeItems::rowOf(const GenParamTreeItem& item) const
{
    const auto number = static_cast<qint32>(numberOf(item));
    return item.parent < 0 ? number : number - at(item.parent).firstChild;
}

GenParamTreeItems::Numbers::const_iterator GenParamTreeItems::firstRowOf(const GenApi::IValue* feature) const
{
    return std::lower_bound(m_byFeature.begin(), m_byFeature.end(), feature,
                            [this](qint32 number, const GenApi::IValue* wanted) {
                                return std::less<>()(at(number).value, wanted);
                            });
}

std::vector<GenParamTreeItem*> GenParamTreeItems::rowsOf(const GenApi::IValue* feature)
{
    std::vector<GenParamTreeItem*> rows;
    for (auto row = firstRowOf(feature); row != m_byFeature.end() && at(*row).value == feature; ++row)
        rows.push_back(&at(*row));
    return rows;
}

GenParamTreeItem* GenParamTreeItems::primary(const GenApi::IValue* feature)
{
    const auto row = firstRowOf(feature);
    const bool isFound = row != m_byFeature.end() && at(*row).value == feature;
    return isFound ? &at(*row) : nullptr;
}

GenParamTreeItem& GenParamTreeItems::primary(GenParamTreeItem& item)
{
    return item.isRepeated ? at(*firstRowOf(item.value)) : item;
}

bool GenParamTreeItems::takeMark(const GenParamTreeItem& item)
{
    std::atomic<bool>& mark = m_marks[numberOf(item)];
    return mark.load(std::memory_order_relaxed) && mark.exchange(false);
}
