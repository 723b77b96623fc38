#pragma once

#include <QModelIndex>
#include <QObject>
#include <QSet>

class FeatureTreeView;

/// Which categories of a parameter tree are expanded, also of those that the filter hides at present: a
/// category that comes back is expanded again as before.
class TreeExpansion : public QObject
{
    Q_OBJECT

public:
    /// Works on \a view, which must outlive it.
    explicit TreeExpansion(FeatureTreeView& view);

    /// To be called after the view was given another model, a proxy on a parameter tree; nothing is expanded
    /// then.
    void watchModel();

    /// Notes how the categories in the view stand. What was noted of hidden ones stays.
    void remember();
    /// Adds a category to those noted as expanded, by its index in the model behind the proxy.
    void add(const QModelIndex& sourceCategory) { m_expanded.insert(sourceCategory); }
    /// Expands all noted categories that are in the view.
    void restore();
    void forget() { m_expanded.clear(); }

private:
    bool holdsCategory(const QModelIndex& parent, int first, int last) const;

    FeatureTreeView& m_view;
    QSet<QModelIndex> m_expanded; // of the model behind the proxy, whose rows never move
};
