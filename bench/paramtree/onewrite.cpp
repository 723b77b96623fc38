// What one write through the model causes: change signals, reads, questions of the view.

#include "browserbench.h"
#include "comparison.h"
#include "featuretreeview.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"

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

} // namespace

void countOneWrite()
{
    const auto nodeMap = makeFeatureTree(1000);
    AskedModel model(nodeMap.get());
    GenParamTreeVisibilityFilterProxyModel proxy;
    proxy.setFilterVisibility(GenApi::Guru);
    proxy.setSourceModel(&model);
    FeatureTreeView view;
    view.setModel(&proxy);
    view.expandAll();
    view.resize(600, 900);
    view.show();
    BrowserBench::settle();

    int signals_ = 0;
    int cells = 0;
    QObject::connect(&model, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& from, const QModelIndex& to) {
                         ++signals_;
                         cells += (to.row() - from.row() + 1) * (to.column() - from.column() + 1);
                     });
    int reads = 0;
    nodeMap->setAccessHook([&](const char* call, const GenApi::INode*) { reads += isValueRead(call); });

    const QModelIndex feature = model.index(0, 1, model.index(0, 0, model.index(0, 0)));
    model.questions = 0;
    const bool taken = model.setData(feature, 42);
    BrowserBench::settle();
    nodeMap->setAccessHook({});

    count("one write, taken by the camera", taken, 1, "writes");
    count("one write, dataChanged", signals_, 1, "signals");
    count("one write, cells named by them", cells, 1, "cells");
    count("one write, reads", reads, 1, "reads");
    count("one write, calls of data()", model.questions, 8, "calls");
}
