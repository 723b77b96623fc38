#pragma once

#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include "constanttree.h"
#include "nodemap.h"

#include <QLineEdit>
#include <QTimer>
#include <QTreeView>

#include <memory>

/// A browser on screen over a tree of features, and beside it the same window over constant strings.
class BrowserBench
{
public:
    static constexpr int RowsOnScreen = 40;

    explicit BrowserBench(int featureCount);

    ZetoNodeMap::NodeMap& nodeMap() { return *m_nodeMap; }
    QTreeView& tree() { return *m_view.treeView(); }
    QTreeView& constantTree() { return *m_constantView.treeView(); }
    QLineEdit& filter() { return *m_view.findChild<QLineEdit*>(QStringLiteral("filterLineEdit")); }
    QTimer& pollingTimer() { return *m_view.findChild<QTimer*>(); }

    /// The features whose value cells can be seen, commands left out.
    std::vector<GenApi::IValue*> readableOnScreen();

    /// Calls that read a value, since the last call of this function.
    int takeReadCount();
    void countReads(bool on);

    /// Runs what is pending, until everything is painted.
    static void settle();

private:
    void show(ZetoGui::ZetoGenParamTreeView& view);

    std::unique_ptr<ZetoNodeMap::NodeMap> m_nodeMap;
    ZetoGui::ZetoGenParamTreeView m_view;
    ZetoGui::ZetoGenParamTreeView m_constantView;
    std::unique_ptr<ConstantTree> m_constants;
    int m_reads = 0;
};

std::unique_ptr<ZetoNodeMap::NodeMap> makeFeatureTree(int featureCount);

/// True for the GenApi calls that read a value.
bool isValueRead(const char* call);
