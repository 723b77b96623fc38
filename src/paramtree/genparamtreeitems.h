#pragma once

#include "genparamtreeitem.h"

#include <memory>
#include <vector>

/// The rows of a parameter tree, owned, and the ordered map from a feature to them.
///
/// Built once and whole; only the reading in an item changes afterwards, so that finding the rows of a
/// feature is safe on any thread until clear(). Rows are kept in one block per category and the map in one
/// sorted block: a device has thousands of features.
class GenParamTreeItems
{
public:
    using Iterator = std::vector<GenParamTreeItem*>::const_iterator;
    struct Range
    {
        Iterator first, last;
        Iterator begin() const { return first; }
        Iterator end() const { return last; }
    };

    /// Builds the rows below the category "Root" of \a nodeMap. Reads no value. Nothing that the node map
    /// throws leaves it: what cannot be asked is left out.
    void build(GenApi::INodeMap& nodeMap);
    void clear();

    /// The rows at the top level.
    GenParamTreeItem* root() const { return m_root; }
    int rootCount() const { return m_rootCount; }
    /// The row of \a item below its parent.
    int rowOf(const GenParamTreeItem& item) const;

    /// All rows of \a feature in the order of the tree.
    Range rowsOf(const GenApi::IValue* feature) const;
    /// The row that keeps what was read of \a feature, null when it has none.
    GenParamTreeItem* primary(const GenApi::IValue* feature) const;
    GenParamTreeItem& primary(GenParamTreeItem& item) const;

    /// Calls \a visit with the primary row of every feature.
    template <typename Visit>
    void forEachFeature(Visit visit) const;

    /// What surrounds a value in its text. Asked once, when the tree is built; asked again when that failed,
    /// and then throws what GenApi throws.
    GenParamFormat format(GenParamTreeItem& item);

    /// Whether the declared representation of integers goes before their names: true when the device's own IP
    /// address feature declares one.
    bool trustsRepresentation() const { return m_trustsRepresentation; }

private:
    struct Build;
    using Block = std::unique_ptr<GenParamTreeItem[]>;

    void addCategory(Build& build, GenApi::IValue& category, GenParamTreeItem* parent);
    void addRow(Build& build, GenParamTreeItem& item);
    void noteAddress(Build& build, GenParamTreeItem& item);
    size_t unitNumber(const QString& unit);
    void sortByFeature();

    std::vector<Block> m_blocks;
    std::vector<GenParamTreeItem*> m_byFeature;
    GenParamTreeItem* m_root = nullptr;
    qint32 m_rootCount = 0;
    std::vector<QString> m_units; ///< the distinct ones, which are few
    bool m_trustsRepresentation = false;
};

template <typename Visit>
void GenParamTreeItems::forEachFeature(Visit visit) const
{
    const GenApi::IValue* last = nullptr;
    for (GenParamTreeItem* item : m_byFeature) {
        if (item->feature.value != last)
            visit(*item);
        last = item->feature.value;
    }
}
