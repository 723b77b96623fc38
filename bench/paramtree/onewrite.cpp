// What one write causes, through the model and through an editor: change signals, reads, questions of the
// view.

#include "browserbench.h"
#include "comparison.h"
#include "featuretreeview.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

/// Counts how often views and proxies ask it.
class AskedModel final : public GenParamTreeModel
{
public:
    using GenParamTreeModel::GenParamTreeModel;

    QVariant data(const QModelIndex& index, int role) const override
    {
        ++questions;
        return GenParamTreeModel::data(index, role);
    }

    mutable int questions = 0;
};

struct Costs
{
    int signals_ = 0; ///< dataChanged()
    int cells = 0;    ///< named by them
    int reads = 0;
    int questions = 0; ///< calls of data()
};

/// A tree view on screen, with editors, over the features that it counts the costs of.
class WatchedTree
{
public:
    WatchedTree();

    /// What \a work causes until everything is painted.
    template <typename Work>
    Costs costsOf(const Work& work);

    AskedModel& model() { return m_model; }
    FeatureTreeView& view() { return m_view; }
    /// The value cell of an integer, in the model.
    QModelIndex cell() const { return m_model.index(0, 1, m_model.index(0, 0, m_model.index(0, 0))); }
    QModelIndex cellInView() const { return m_proxy.mapFromSource(cell()); }

private:
    std::unique_ptr<ZetoNodeMap::NodeMap> m_nodeMap = makeFeatureTree(1000);
    AskedModel m_model{m_nodeMap.get()};
    GenParamTreeVisibilityFilterProxyModel m_proxy;
    GenParamDelegate m_delegate;
    FeatureTreeView m_view;
    Costs m_costs;
};

WatchedTree::WatchedTree()
{
    m_proxy.setFilterVisibility(GenApi::Guru);
    m_proxy.setSourceModel(&m_model);
    m_view.setModel(&m_proxy);
    m_view.setItemDelegateForColumn(GenParamTreeModel::ValueColumn, &m_delegate);
    m_view.expandAll();
    m_view.resize(600, 900);
    m_view.show();
    QApplication::setActiveWindow(&m_view);
    BrowserBench::settle();
    QObject::connect(&m_model, &QAbstractItemModel::dataChanged,
                     [this](const QModelIndex& from, const QModelIndex& to) {
                         ++m_costs.signals_;
                         m_costs.cells += (to.row() - from.row() + 1) * (to.column() - from.column() + 1);
                     });
}

template <typename Work>
Costs WatchedTree::costsOf(const Work& work)
{
    m_costs = {};
    m_model.questions = 0;
    m_nodeMap->setAccessHook(
        [this](const char* call, const GenApi::INode*) { m_costs.reads += isValueRead(call); });
    work();
    BrowserBench::settle();
    m_nodeMap->setAccessHook({});
    m_costs.questions = m_model.questions;
    return m_costs;
}

void countCosts(const std::string& what, bool taken, const Costs& costs)
{
    count(what + ", taken by the camera", taken, 1, "writes");
    count(what + ", dataChanged", costs.signals_, 1, "signals");
    count(what + ", cells named by them", costs.cells, 1, "cells");
    count(what + ", reads", costs.reads, 1, "reads");
    count(what + ", calls of data()", costs.questions, 8, "calls");
}

void press(QWidget& editor, int key, const QString& text = {})
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&editor, &event);
    }
}

/// What it costs to leave the editor of the cell with \a key, with 44 typed over its number. Opening and
/// typing are not counted.
Costs costsOfLeavingEditor(WatchedTree& tree, int key)
{
    tree.view().setCurrentIndex(tree.cellInView());
    tree.view().editValue();
    QWidget* editor = tree.view().indexWidget(tree.cellInView());
    if (!editor)
        return {};
    BrowserBench::settle();
    for (int digit = 0; digit < 2; ++digit)
        press(*editor, Qt::Key_4, QStringLiteral("4"));
    BrowserBench::settle();
    return tree.costsOf([&] { press(*editor, key); });
}

} // namespace

void countOneWrite()
{
    WatchedTree tree;
    const Costs write = tree.costsOf([&] { tree.model().setData(tree.cell(), 42); });
    countCosts("one write", tree.cell().data(Qt::EditRole) == 42, write);

    // Closing an editor has the view paint all of its rows again, written or not: that is taken off.
    const Costs givenUp = costsOfLeavingEditor(tree, Qt::Key_Escape);
    Costs edit = costsOfLeavingEditor(tree, Qt::Key_Return);
    edit.questions -= givenUp.questions;
    countCosts("one edit", tree.cell().data(Qt::EditRole) == 44, edit);
}
