#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

using ZetoNodeMap::NodeMap;

namespace {

constexpr int featureCount = 40;

std::unique_ptr<NodeMap> camera()
{
    ZetoNodeMap::NodeMapBuilder b;
    auto root = b.category("Root");
    for (int i = 0; i < featureCount; ++i)
        b.integer("F" + std::to_string(i)).in(i % 2 ? "Odd" : "Even");
    b.category("Even");
    b.category("Odd");
    root.contains("Even", "Odd", "F0");
    return b.build();
}

/// Writes features from two threads until it is destroyed.
class Writers
{
public:
    explicit Writers(NodeMap& map)
    {
        for (const int step : {1, 7})
            m_threads.emplace_back([this, &map, step] {
                for (int i = 0; !m_isStopped; i += step)
                    map.assign("F" + std::to_string(i % featureCount), i);
            });
    }
    ~Writers()
    {
        m_isStopped = true;
        for (std::thread& thread : m_threads)
            thread.join();
    }
    Q_DISABLE_COPY(Writers)

private:
    std::atomic<bool> m_isStopped{false};
    std::vector<std::thread> m_threads;
};

} // namespace

/// Node callbacks from other threads while models live and die. Meant for the sanitizers.
class TestGenParamTreeThreads : public QObject
{
    Q_OBJECT

private slots:
    void survivesChangesWhileModelsComeAndGo();
    void losesNoChange();
};

void TestGenParamTreeThreads::survivesChangesWhileModelsComeAndGo()
{
    const auto map = camera();
    const Writers writers(*map);
    for (int round = 0; round < 2000; ++round) {
        auto model = std::make_unique<GenParamTreeModel>(map.get());
        GenParamTreeVisibilityFilterProxyModel proxy;
        proxy.setSourceModel(model.get());
        proxy.setFilterText(QString::number(round % 10));
        treeText(proxy);
        const QModelIndexList cells = valueCells(*model, "F0");
        for (const QModelIndex& cell : cells)
            cell.data();
        if (round % 2 == 0)
            QCoreApplication::processEvents();
        if (round % 3 == 0)
            model->detach();
        else
            model->refresh(1, cells);
        model.reset();
    }
}

void TestGenParamTreeThreads::losesNoChange()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    QHash<QString, QString> shown; // as a view would: asked again at each change of the cell
    const auto show = [&shown](const QModelIndex& cell) {
        shown[cell.siblingAtColumn(0).data().toString()] = cell.data().toString();
    };
    for (int i = 0; i < featureCount; ++i)
        show(valueCell(model, QStringLiteral("F%1").arg(i)));
    connect(&model, &GenParamTreeModel::dataChanged, this, show);
    for (int round = 0; round < 50; ++round) {
        {
            const Writers writers(*map);
            QTest::qWait(2);
        }
        QCoreApplication::processEvents();
        for (int i = 0; i < featureCount; ++i) {
            const std::string name = "F" + std::to_string(i);
            QCOMPARE(shown[QString::fromStdString(name)], QString::number(map->integer(name)));
        }
    }
}

ZETO_TEST_MAIN(TestGenParamTreeThreads)
#include "tst_genparamtreethreads.moc"
