#include "browserbench.h"

#include "bareaccess.h"
#include "featuretree.h"
#include "genparamtreemodel.h"
#include "nodemapbuilder.h"

#include <QApplication>
#include <QHeaderView>

#include <algorithm>
#include <cstring>

std::unique_ptr<ZetoNodeMap::NodeMap> makeFeatureTree(int featureCount)
{
    ZetoNodeMap::NodeMapBuilder builder;
    ZetoNodeMap::declareFeatureTree(builder, featureCount);
    return builder.build();
}

bool isValueRead(const char* call)
{
    static const char* const reads[] = {"GetValue", "GetIntValue", "ToString", "GetCurrentEntry", "Get"};
    return std::any_of(std::begin(reads), std::end(reads),
                       [&](const char* read) { return std::strcmp(read, call) == 0; });
}

BrowserBench::BrowserBench(int featureCount)
    : m_nodeMap(makeFeatureTree(featureCount))
    , m_view(m_nodeMap.get())
{
    m_view.setVisibility(ZetoGui::Guru);
    m_constants = std::make_unique<ConstantTree>(*tree().model());
    constantTree().setModel(m_constants.get());
    show(m_view);
    show(m_constantView);
}

void BrowserBench::show(ZetoGui::ZetoGenParamTreeView& view)
{
    QTreeView& tree = *view.treeView();
    tree.expandAll();
    view.resize(600, 600);
    view.show();
    settle();
    // As tall as it takes for exactly so many rows.
    const int rowHeight = tree.visualRect(tree.model()->index(0, 0)).height();
    view.resize(600, view.height() + RowsOnScreen * rowHeight - tree.viewport()->height());
    tree.header()->resizeSection(0, 250);
    settle();
}

std::vector<GenApi::IValue*> BrowserBench::readableOnScreen()
{
    std::vector<GenApi::IValue*> features;
    const int height = tree().viewport()->height();
    for (QModelIndex row = tree().indexAt({1, 1}); row.isValid(); row = tree().indexBelow(row)) {
        if (tree().visualRect(row).top() >= height)
            break;
        auto* feature = row.data(Qt::UserRole).value<GenApi::IValue*>();
        if (feature && readValue(*feature))
            features.push_back(feature);
    }
    return features;
}

void BrowserBench::countReads(bool on)
{
    m_reads = 0;
    m_nodeMap->setAccessHook(on ? ZetoNodeMap::AccessHook([this](const char* call, const GenApi::INode*) {
        m_reads += isValueRead(call);
    })
                                : ZetoNodeMap::AccessHook());
}

int BrowserBench::takeReadCount()
{
    return std::exchange(m_reads, 0);
}

void BrowserBench::settle()
{
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents(QEventLoop::AllEvents);
    }
}
