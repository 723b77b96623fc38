#pragma once

#include <QModelIndex>

class QTreeView;

/// Where the person is in a filtered tree: the current row, and the place on screen of a row that they look
/// at. Both come back when a change of the filter that took them away is undone, unless the person went
/// elsewhere meanwhile.
class TreePlace
{
public:
    /// Works on \a view, which must outlive it.
    explicit TreePlace(QTreeView& view);

    /// To be called before the filter changes.
    void remember();
    /// To be called after the filter changed.
    void restore();
    /// To be called when the view is given another model.
    void forget();

private:
    /// What a person changes by scrolling, expanding or collapsing.
    struct Sight
    {
        int scroll = 0;
        int anchorTop = 0;
    };

    Sight sight() const;
    bool hasMoved() const;
    void chooseAnchor();
    void restoreCurrent();
    void restoreScroll();

    QTreeView& m_view;
    // Indexes of the model behind the proxy, whose rows never move.
    QModelIndex m_current;
    QModelIndex m_anchor;
    int m_anchorTop = 0; // pixels below the top of the viewport
    Sight m_restored;
};
