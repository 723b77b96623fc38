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

/// Asks everything that a view asks. \return the texts of the values.
QString askEverything(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QString texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        const QModelIndex value = name.siblingAtColumn(1);
        for (const QModelIndex& index : {name, value}) {
            for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::WhatsThisRole,
                                   Qt::BackgroundRole, Qt::UserRole})
                index.data(role);
            index.flags();
        }
        texts += value.data().toString() + ' ' + askEverything(model, name);
    }
    return texts;
}

/// A camera that fails, and what a person does with its tree, behind the filter and without it.
struct Session
{
    Session()
    {
        map->setAccessHook([this](const char* call, const GenApi::INode* node) { faults.enter(call, node); });
    }
    ~Session()
    {
        watch.reset();
        model.reset();
        // Every callback is gone, whatever failed: this would reach a dead model.
        faults.stop();
        map->InvalidateNodes();
    }
    Q_DISABLE_COPY(Session)

    void build()
    {
        model = std::make_unique<GenParamTreeModel>(map.get());
        watch = std::make_unique<PairWatch>(*model);
    }

    /// \return whether all reports came in pairs.
    bool run()
    {
        const QAbstractItemModelTester tester(model.get());
        GenParamTreeVisibilityFilterProxyModel proxy;
        proxy.setSourceModel(model.get());
        askEverything(*model);
        proxy.setFilterText("o");
        askEverything(proxy);
        for (const auto& [name, value] : {std::pair<const char*, QVariant>("Integer", 5),
                                          {"Float", 2.5},
                                          {"Enumeration", "Two"},
                                          {"Boolean", true},
                                          {"String", "other"},
                                          {"Command", QVariant()}})
            model->setData(valueCell(*model, name), value);
        model->refresh(2, valueCells(*model, "Integer") + valueCells(*model, "Polled"));
        proxy.setFilterText("*");
        askEverything(proxy);
        return !watch->isBroken();
    }

    FaultInjector faults;
    std::unique_ptr<NodeMap> map = camera();
    std::unique_ptr<GenParamTreeModel> model;
    std::unique_ptr<PairWatch> watch;
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
        Session session;
        session.faults.throwAt(place, faults[static_cast<size_t>(place) % faults.size()]);
        session.build();
        QVERIFY2(session.run(), qPrintable(QString::number(place)));
        places = std::max(places, session.faults.callCount());
    }
    QVERIFY(places > 500);
}

void TestGenParamTreeFaults::survivesRandomFaults()
{
    for (unsigned seed = 0; seed < 100; ++seed) {
        Session session;
        session.build();
        session.faults.throwRandomly(0.25, seed);
        QVERIFY(session.run());
        // Without a fault, after all values are read again, nothing of it is left.
        session.faults.stop();
        GenParamTreeModel& model = *session.model;
        const GenParamTreeModel fresh(session.map.get());
        QModelIndexList cells;
        for (const char* name :
             {"A", "B", "Integer", "Float", "Enumeration", "Boolean", "String", "Command", "Polled"})
            cells += valueCells(model, name);
        model.refresh(2, cells);
        QCOMPARE(askEverything(model), askEverything(fresh));
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
