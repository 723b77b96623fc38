#include "treeexpansion.h"

#include "categories.h"
#include "featuretreeview.h"

#include <QAbstractProxyModel>

namespace {

const QAbstractProxyModel* proxyOf(const QTreeView& view)
{
    return qobject_cast<const QAbstractProxyModel*>(view.model());
}

} // namespace

TreeExpansion::TreeExpansion(FeatureTreeView& view)
    : m_view(view)
{
}

void TreeExpansion::watchModel()
{
    forget();
    const QAbstractItemModel* const model = m_view.model();
    // Single rows go and come when the camera reports that it implements a feature only now and then.
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex& parent, int first, int last) {
                if (holdsCategory(parent, first, last))
                    remember();
            });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                if (holdsCategory(parent, first, last))
                    restore();
            });
}

void TreeExpansion::remember()
{
    const QAbstractProxyModel* const proxy = proxyOf(m_view);
    if (!proxy)
        return;
    visitCategories(*proxy, [this, proxy](const QModelIndex& category, const QString&) {
        const QModelIndex source = proxy->mapToSource(category);
        if (m_view.isExpanded(category))
            m_expanded.insert(source);
        else
            m_expanded.remove(source);
    });
}

void TreeExpansion::restore()
{
    const QAbstractProxyModel* const proxy = proxyOf(m_view);
    if (!proxy)
        return;
    QModelIndexList back;
    for (const QModelIndex& source : qAsConst(m_expanded)) {
        const QModelIndex category = proxy->mapFromSource(source);
        if (category.isValid() && !m_view.isExpanded(category))
            back.append(category);
    }
    m_view.expandRows(back);
}

bool TreeExpansion::holdsCategory(const QModelIndex& parent, int first, int last) const
{
    for (int row = first; row <= last; ++row) {
        if (isCategory(m_view.model()->index(row, 0, parent)))
            return true;
    }
    return false;
}
