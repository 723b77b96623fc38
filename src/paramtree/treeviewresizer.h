#pragma once

#include <QObject>

class QTreeView;

/// Fits the name column of a tree to its contents and to the view: wide enough for the names on screen, but
/// from half of the view to two thirds of it. Once somebody gave the column a width, it stays at that,
/// through other models too.
class TreeViewResizer : public QObject
{
    Q_OBJECT

public:
    /// Watches \a view, which must outlive it.
    explicit TreeViewResizer(QTreeView& view);

    /// To be called after the view was given another model.
    void fit();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int fittingWidth() const;

    QTreeView& m_view;
    int m_chosenWidth = 0; // 0: nobody has chosen one
    bool m_fitting = false;
};
