#include "faultinjector.h"
#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using ZetoNodeMap::FaultInjector;
using ZetoNodeMap::NodeMap;

namespace {

std::unique_ptr<NodeMap> camera()
{
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root").contains("A", "B");
    b.category("A").contains("Integer", "Float", "Enumeration");
    b.category("B").contains("Integer", "Boolean", "String", "Command", "Polled");
    b.integer("Integer").limits(0, 100).unit("px").value(1);
    b.floating("Float").notation(GenApi::fnFixed, 2).unit("s").invalidatedBy({"Integer"}).value(0.5);
    b.enumeration("Enumeration").entry("One", 1).entry("Two", 2).selects({"Integer"});
    b.boolean("Boolean").lockedIf("Polled");
    b.string("String").value("text");
    b.command("Command");
    b.boolean("Polled").pollingTime(1);
    return b.build();
}

/// Follows the reports of a model and finds what does not come in pairs.
class PairWatch
{
public:
    explicit PairWatch(GenParamTreeModel& model)
    {
        QObject::connect(&model, &GenParamTreeModel::errorAppeared, &m_context,
                         [this](const QString& name, const QString& reason) {
                             m_isBroken |= m_open.contains(name) || reason.isEmpty();
                             m_open += name;
                         });
        QObject::connect(&model, &GenParamTreeModel::errorDisappeared, &m_context,
                         [this](const QString& name) { m_isBroken |= !m_open.remove(name); });
    }
    bool isBroken() const { return m_isBroken; }
    bool isEmpty() const { return m_open.isEmpty(); }

private:
    QObject m_context;
    QSet<QString> m_open;
    bool m_isBroken = false;
};

/// Everything that a view asks of a row.
void askEverything(QAbstractItemModel& model, QModelIndexList& cells,
                   const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < 2; ++column) {
            const QModelIndex index = model.index(row, column, parent);
            for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::WhatsThisRole,
                                   Qt::BackgroundRole, Qt::UserRole})
                index.data(role);
            index.flags();
        }
        cells += model.index(row, 1, parent);
        askEverything(model, cells, model.index(row, 0, parent));
    }
}

/// What a person does with the tree, behind the filter and without it.
struct Session
{
    explicit Session(NodeMap& map)
        : model(&map)
        , watch(model)
        , tester(&model)
    {
        proxy.setSourceModel(&model);
    }

    void run()
    {
        QModelIndexList cells;
        askEverything(model, cells);
        proxy.setFilterText("o");
        askEverything(proxy, cells);
        for (const auto& [name, value] : {std::pair<const char*, QVariant>("Integer", 5),
                                          {"Float", 2.5},
                                          {"Enumeration", "Two"},
                                          {"Boolean", true},
                                          {"String", "other"},
                                          {"Command", QVariant()}})
            model.setData(valueCell(model, name), value);
        model.refresh(2, valueCells(model, "Integer") + valueCells(model, "Polled"));
        proxy.setFilterText("*");
        askEverything(proxy, cells);
    }

    /// Without a fault, after all values are read again, nothing of it is left.
    QString healed()
    {
        QModelIndexList cells;
        askEverything(model, cells);
        model.refresh(2, cells);
        QString texts;
        for (const QModelIndex& cell : qAsConst(cells))
            texts += cell.data().toString() + ' ';
        return texts;
    }

    GenParamTreeModel model;
    PairWatch watch;
    QAbstractItemModelTester tester;
    GenParamTreeVisibilityFilterProxyModel proxy;
};

} // namespace

class TestGenParamTreeFaults : public QObject
{
    Q_OBJECT

private slots:
    void survivesAFaultAtEachPlace();
    void survivesRandomFaults();
    void outlivesACallbackThatCannotBeRemoved();
};

void TestGenParamTreeFaults::survivesAFaultAtEachPlace()
{
    const auto& faults = FaultInjector::allFaults();
    int64_t places = 1;
    for (int64_t place = 0; place < places; ++place) {
        const auto map = camera();
        FaultInjector injector;
        map->setAccessHook(
            [&injector](const char* call, const GenApi::INode* node) { injector.enter(call, node); });
        injector.throwAt(place, faults[static_cast<size_t>(place) % faults.size()]);
        {
            Session session(*map);
            session.run();
            QVERIFY2(!session.watch.isBroken(), qPrintable(QString::number(place)));
        }
        places = std::max(places, injector.callCount());
        // Every callback is gone, whatever failed: this would reach a dead model.
        map->setAccessHook({});
        map->InvalidateNodes();
    }
    QVERIFY(places > 500);
}

void TestGenParamTreeFaults::survivesRandomFaults()
{
    for (unsigned seed = 0; seed < 100; ++seed) {
        const auto map = camera();
        FaultInjector injector;
        map->setAccessHook(
            [&injector](const char* call, const GenApi::INode* node) { injector.enter(call, node); });
        Session session(*map);
        injector.throwRandomly(0.25, seed);
        session.run();
        QVERIFY(!session.watch.isBroken());
        map->setAccessHook({});
        const QString texts = session.healed();
        QVERIFY2(!texts.contains("ERROR"), qPrintable(texts));
        for (const char* name : {"Integer", "Float", "Polled"})
            QCOMPARE(valueCell(session.model, name).data().toString(),
                     valueCell(GenParamTreeModel(map.get()), name).data().toString());
    }
}

void TestGenParamTreeFaults::outlivesACallbackThatCannotBeRemoved()
{
    const auto map = camera();
    {
        GenParamTreeModel model(map.get());
        map->setAccessHook([](const char* call, const GenApi::INode*) {
            if (qstrncmp(call, "Deregister", 10) == 0)
                throw RUNTIME_EXCEPTION("busy");
        });
    }
    map->setAccessHook({});
    map->InvalidateNodes();
}

ZETO_TEST_MAIN(TestGenParamTreeFaults)
#include "tst_genparamtreefaults.moc"
