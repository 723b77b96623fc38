#pragma once

#include "genparamtreeitem.h"

#include <atomic>
#include <memory>
#include <vector>

/// The rows of a parameter tree, owned, and the ordered map from a feature to them.
///
/// Built once and whole; only what was read changes afterwards, so that finding the rows of a feature and
/// marking them is safe on any thread until clear(). Rows are kept level by level in one block, the rows of a
/// category side by side: so the rows below one end where those below the next begin.
class GenParamTreeItems
{
public:
    /// Builds the rows below the category "Root" of \a nodeMap. Reads no value. Nothing that the node map
    /// throws leaves it: what cannot be asked is left out.
    void build(GenApi::INodeMap& nodeMap);
    void clear();

    /// The row number \a row below \a parent, null standing for what is above the top level.
    GenParamTreeItem& child(const GenParamTreeItem* parent, int row);
    int childCount(const GenParamTreeItem* parent) const;
    /// Null at the top level.
    GenParamTreeItem* parentOf(const GenParamTreeItem& item);
    /// The row of \a item below its parent.
    int rowOf(const GenParamTreeItem& item) const;

    /// All rows of \a feature in the order of the tree, level by level.
    std::vector<GenParamTreeItem*> rowsOf(const GenApi::IValue* feature);
    /// The row that keeps what was read of \a feature, null when it has none.
    GenParamTreeItem* primary(const GenApi::IValue* feature);
    GenParamTreeItem& primary(GenParamTreeItem& item);

    /// Calls \a visit with the primary row of every feature.
    template <typename Visit>
    void forEachFeature(Visit visit);

    /// That the feature may have changed since it was read. Marked on any thread, taken on the model's.
    void mark(const GenParamTreeItem& item) { m_marks[numberOf(item)] = true; }
    /// \return whether \a item was marked.
    bool takeMark(const GenParamTreeItem& item);

    /// What surrounds a value in its text. Asked once, when the tree is built; asked again when that failed,
    /// and then throws what GenApi throws.
    GenParamFormat format(GenParamTreeItem& item);
    /// \a text in the memory of an equal one, if it is one of the few that many features have in common.
    QString shared(const QString& text);

    /// Whether the declared representation of integers goes before their names: true when the device's own IP
    /// address feature declares one.
    bool trustsRepresentation() const { return m_trustsRepresentation; }

private:
    struct Build;
    using Numbers = std::vector<qint32>;

    void addMembers(const GenApi::IValue& category, qint32 parent);
    void declare(Build& build, qint32 number);
    void noteAddress(Build& build, qint32 number);
    bool isBelow(const GenParamTreeItem& item, const GenApi::IValue* feature) const;
    size_t textNumber(const QString& text);
    void sortByFeature();
    size_t numberOf(const GenParamTreeItem& item) const { return static_cast<size_t>(&item - m_rows.data()); }
    Numbers::const_iterator firstRowOf(const GenApi::IValue* feature) const;
    GenParamTreeItem& at(qint32 number) { return m_rows[static_cast<size_t>(number)]; }
    const GenParamTreeItem& at(qint32 number) const { return m_rows[static_cast<size_t>(number)]; }

    std::vector<GenParamTreeItem> m_rows;
    std::unique_ptr<std::atomic<bool>[]> m_marks; ///< one for each row
    Numbers m_byFeature;
    qint32 m_rootCount = 0;
    std::vector<QString> m_texts; ///< units, and names of enumeration entries in use: the distinct ones
    bool m_trustsRepresentation = false;
};

template <typename Visit>
void GenParamTreeItems::forEachFeature(Visit visit)
{
    const GenApi::IValue* last = nullptr;
    for (const qint32 number : m_byFeature) {
        GenParamTreeItem& item = at(number);
        if (item.value != last)
            visit(item);
        last = item.value;
    }
}
