#include "genparamtreemodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QtTest>

#include <utility>

using ZetoNodeMap::NodeMap;
using ZetoNodeMap::NodeMapBuilder;

namespace {

/// A camera with a feature of every kind and some that depend on others.
std::unique_ptr<NodeMap> camera()
{
    NodeMapBuilder b;
    b.category("Root").contains({"Image", "Control"});
    b.category("Image").contains({"Width", "OffsetX", "Format", "Gain", "Reverse", "Name"});
    b.category("Control").contains({"Trigger", "Gain", "Lock", "Address", "Secret", "Serial", "Temperature"});
    b.integer("Width").limits(16, 4096).increment(4).unit("px").value(640);
    b.integer("OffsetX").limits(0, 4096).value(0).lockedIf("Lock").invalidatedBy({"Width"});
    b.enumeration("Format").entry("Mono8", 1).entry("Mono16", 5);
    b.floating("Gain").limits(0, 24).unit("dB").notation(GenApi::fnFixed, 1).value(6.5);
    b.boolean("Reverse").value(true);
    b.string("Name").value("left");
    b.command("Trigger");
    b.boolean("Lock").value(false);
    b.integer("Address").representation(GenApi::IPV4Address).value(0x0A000001);
    b.integer("Secret").access(GenApi::WO).value(1);
    b.integer("Serial").access(GenApi::RO).value(7);
    b.integer("Temperature").access(GenApi::RO).pollingTime(100).caching(GenApi::NoCache).value(30);
    return b.build();
}

/// Reads every cell once, as a view that shows everything does.
QString allTexts(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QString texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        const QString value = name.siblingAtColumn(1).data().toString();
        texts += name.data().toString() + '=' + value + ' ' + allTexts(model, name);
    }
    return texts;
}

/// A camera in a model, what the model reads of it and what it signals.
class Shown
{
public:
    Shown()
    {
        map->setAccessHook([this](const char* call, const GenApi::INode*) {
            reads += qstrcmp(call, "GetValue") == 0 || qstrcmp(call, "ToString") == 0;
            if (qstrcmp(call, refused) == 0)
                throw ACCESS_EXCEPTION(reason);
        });
        const auto log = [this](const QString& line) { lines += line; };
        QObject::connect(&model, &GenParamTreeModel::dataChanged, &context,
                         [log](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                             const bool isOneCell = from == to && from.column() == 1 && roles.isEmpty();
                             log(isOneCell ? from.siblingAtColumn(0).data().toString() : "more than a cell");
                         });
        QObject::connect(
            &model, &GenParamTreeModel::errorAppeared, &context,
            [log](const QString& name, const QString& reason) { log('!' + name + ": " + reason); });
        QObject::connect(&model, &GenParamTreeModel::errorDisappeared, &context,
                         [log](const QString& name) { log("ok " + name); });
    }

    QModelIndex cell(const QString& name) const { return valueCell(model, name); }
    int takeReads() { return std::exchange(reads, 0); }
    QString takeSignals() { return std::exchange(lines, {}).join("; "); }
    /// As a view that shows everything, with nothing to report.
    void readAll()
    {
        allTexts(model);
        takeReads();
        takeSignals();
    }

    const char* refused = ""; ///< the call that the camera refuses
    const char* reason = "refused";
    int reads = 0;
    std::unique_ptr<NodeMap> map = camera();
    GenParamTreeModel model{map.get()};
    QStringList lines; ///< changed cells by name, errors as "!name: reason" and "ok name"
    QObject context;
};

} // namespace

class TestGenParamTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void mirrorsCategories();
    void readsNothingBeforeItIsShown();
    void describesCells();
    void believesRepresentations();
    void writes();
    void reportsEachChangeOnce();
    void refreshesWhatIsNamed();
    void reportsErrorsInPairs();
    void keepsARefusalUntilTheValueChanges();
    void givesUpTheNodeMap();
    void composesToolTips();
};

void TestGenParamTreeModel::mirrorsCategories()
{
    // "Root:A,x A:y" is the category Root with A and x and the category A with y; all else is an integer.
    const auto mirrored = [](const QString& categories) {
        NodeMapBuilder b;
        QStringList names;
        for (const QString& category : categories.split(' ')) {
            const QStringList members = category.section(':', 1).split(',', Qt::SkipEmptyParts);
            std::vector<std::string> list;
            for (const QString& member : members)
                list.push_back(member.toStdString());
            b.category(category.section(':', 0, 0).toStdString()).contains(list);
            names += members;
        }
        names.removeDuplicates();
        for (const QString& name : qAsConst(names))
            if (!categories.contains(name + ':'))
                b.integer(name.toStdString());
        const auto map = b.build();
        GenParamTreeModel model(map.get());
        const QAbstractItemModelTester tester(&model);
        return treeText(model);
    };
    QCOMPARE(mirrored("Root:A,x,B A:C,y C:z B:"), QStringLiteral("A(C(z) y) x B"));
    QCOMPARE(mirrored("Root:A,B,x A:x B:y,x"), QStringLiteral("A(x) B(y x) x"));
    QCOMPARE(mirrored("Root:A,B A:x B:A"), QStringLiteral("A(x) B(A(x))"));
    // A cycle ends at the ancestor.
    QCOMPARE(mirrored("Root:A A:B,x B:A,y"), QStringLiteral("A(B(A y) x)"));
    QCOMPARE(mirrored("Root:A,Root A:Root,x"), QStringLiteral("A(Root x) Root"));
    QCOMPARE(mirrored("Root:"), QString());
    QCOMPARE(mirrored("A:x"), QString());
}

void TestGenParamTreeModel::readsNothingBeforeItIsShown()
{
    Shown shown;
    treeText(shown.model);
    QCOMPARE(shown.takeReads(), 0);
    allTexts(shown.model);
    QCOMPARE(shown.takeReads(), 10); // neither the command nor the write-only feature, and Gain once
    allTexts(shown.model);
    QCOMPARE(shown.takeReads(), 0);
}

void TestGenParamTreeModel::describesCells()
{
    const Shown shown;
    const GenParamTreeModel& model = shown.model;
    QCOMPARE(
        allTexts(model),
        QStringLiteral("Image= Width=640px OffsetX=0 Format=Mono8 Gain=6.5dB Reverse=True Name=left Control= "
                       "Trigger=Execute Gain=6.5dB Lock=False Address=10.0.0.1 Secret=<Value not readable> "
                       "Serial=7 Temperature=30 "));
    const QModelIndex width = shown.cell("Width");
    QCOMPARE(int(shown.cell("Serial").flags()), 33);
    QCOMPARE(int(shown.cell("Secret").flags()), 35);
    QCOMPARE(int(shown.cell("Trigger").flags()), 35);
    QCOMPARE(int(width.siblingAtColumn(0).flags()), 33);
    QCOMPARE(model.headerData(1, Qt::Vertical).toString(), QStringLiteral("Value"));
    QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant());
    QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole), QVariant());
    QCOMPARE(model.columnCount(width.siblingAtColumn(0)), 2);

    QVERIFY(width.data(Qt::UserRole).value<GenApi::IValue*>()->GetNode()->GetName() == "Width");
    QCOMPARE(width.data(Qt::EditRole), QVariant(qint64{640}));
    QCOMPARE(shown.cell("Address").data(Qt::EditRole), QVariant("10.0.0.1"));
    QVERIFY(model.index(0, 0).data(Qt::BackgroundRole).value<QBrush>().color().alpha() < 255);
    QCOMPARE(width.data(Qt::BackgroundRole), QVariant());
    for (const GenApi::EAccessMode without : {GenApi::NA, GenApi::NI}) {
        shown.map->setAccessMode("Width", without);
        QCOMPARE(width.data().toString(), "<Value not available>");
        shown.map->setAccessMode("Width", GenApi::RW);
        QCOMPARE(width.data().toString(), "640px");
    }
}

void TestGenParamTreeModel::believesRepresentations()
{
    const auto textsWhenDeclared = [](GenApi::ERepresentation representation) {
        NodeMapBuilder b;
        b.category("Root").contains({"GevMACAddress", "GevCurrentIPAddress"});
        b.integer("GevMACAddress").value(11);
        b.integer("GevCurrentIPAddress").representation(representation).value(1);
        const auto map = b.build();
        return allTexts(GenParamTreeModel(map.get()));
    };
    QCOMPARE(textsWhenDeclared(GenApi::IPV4Address),
             QStringLiteral("GevMACAddress=11 GevCurrentIPAddress=0.0.0.1 "));
    QCOMPARE(textsWhenDeclared(GenApi::PureNumber),
             QStringLiteral("GevMACAddress=00:00:00:00:00:0b GevCurrentIPAddress=0.0.0.1 "));
}

void TestGenParamTreeModel::writes()
{
    const auto check = [](const char* feature, const QVariant& value, bool taken, const char* text) {
        Shown shown;
        const QAbstractItemModelTester tester(&shown.model);
        const QModelIndex cell = shown.cell(feature);
        shown.readAll();
        QCOMPARE(shown.model.setData(cell, value), taken);
        const QString rows = QString(feature) == "Gain" ? "Gain; Gain" : feature;
        const QString signalled = shown.takeSignals();
        QVERIFY2(taken ? signalled == rows : !signalled.contains(rows) || signalled.startsWith('!'),
                 qPrintable(signalled));
        QCOMPARE(cell.data().toString(), QString(text));
        QVERIFY(!shown.model.setData(cell.siblingAtColumn(0), value));
        QVERIFY(!shown.model.setData(cell, value, Qt::DisplayRole));
    };
    check("Width", qint64{656}, true, "656px");
    check("Width", 657, false, "640px"); // off the increment
    check("Width", std::numeric_limits<quint64>::max(), false, "640px");
    check("Width", 1e300, false, "640px");
    check("Width", QVariantList(), false, "640px");
    check("Address", "192.168.1.10", true, "192.168.1.10");
    check("Reverse", false, true, "False");
    check("Gain", 0.5, true, "0.5dB");
    check("Gain", 24.5, false, "6.5dB"); // outside
    check("Gain", "loud", false, "6.5dB");
    check("Name", "rechts", true, "rechts");
    check("Name", QString(), true, "");
    check("Format", "Mono16", true, "Mono16");
    check("Format", 5, true, "Mono16");
    check("Format", "Mono17", false, "Mono8");
    check("Trigger", QVariant(), true, "Execute");
    check("Serial", 8, false, "7");
    check("Secret", 8, true, "<Value not readable>");
    check("Secret", "<Value not readable>", false, "<Value not readable>"); // a placeholder is no value
    check("Image", 1, false, "");
}

void TestGenParamTreeModel::reportsEachChangeOnce()
{
    Shown shown;
    shown.map->assign("Width", int64_t{656});
    shown.reads = 0;
    QCOMPARE(shown.takeSignals(), QStringLiteral("Width; OffsetX")); // not read yet: it may have changed

    shown.readAll();
    shown.map->assign("Width", int64_t{672});
    QCOMPARE(shown.takeSignals(), QStringLiteral("Width")); // OffsetX was called back too, but stayed
    QCOMPARE(shown.takeReads(), 2);
    QCOMPARE(shown.cell("Width").data().toString(), QStringLiteral("672px"));
    QCOMPARE(shown.takeReads(), 0);

    shown.map->assign("Gain", 1.0);
    QCOMPARE(shown.takeSignals(), QStringLiteral("Gain; Gain"));
    QCOMPARE(shown.takeReads(), 1);

    shown.model.setData(shown.cell("Lock"), true);
    QCOMPARE(shown.takeSignals(), QStringLiteral("OffsetX; Lock")); // no longer writable
    QCOMPARE(int(shown.cell("OffsetX").flags()), 33);
    QCOMPARE(shown.takeReads(), 1);
}

void TestGenParamTreeModel::refreshesWhatIsNamed()
{
    Shown shown;
    const QModelIndex temperature = shown.cell("Temperature");
    shown.readAll();
    shown.model.refresh(150, {temperature, temperature.siblingAtColumn(0), shown.cell("Width")});
    QCOMPARE(shown.takeReads(), 2);
    QCOMPARE(shown.takeSignals(), QString());

    // Polled by the node map but not on screen: reported unread.
    shown.model.refresh(200, {shown.cell("Width")});
    QCOMPARE(shown.takeReads(), 1);
    QCOMPARE(shown.takeSignals(), QStringLiteral("Temperature"));
}

void TestGenParamTreeModel::reportsErrorsInPairs()
{
    Shown shown;
    const QModelIndexList gains = valueCells(shown.model, "Gain");
    shown.refused = "GetValue";
    QCOMPARE(gains[0].data().toString(), QStringLiteral("ERROR"));
    QCOMPARE(gains[1].data().toString(), QStringLiteral("ERROR"));
    QVERIFY(gains[0].data(Qt::BackgroundRole).isValid());
    QCOMPARE(int(gains[0].flags()), 35); // a new value may be the cure
    shown.model.refresh(0, gains);
    QCOMPARE(shown.takeSignals(), QStringLiteral("!Gain: refused"));

    shown.reason = "";
    shown.model.refresh(0, gains);
    QCOMPARE(shown.takeSignals(), QStringLiteral("ok Gain; !Gain: Unknown Error"));

    shown.refused = "";
    shown.model.refresh(0, gains);
    QCOMPARE(shown.takeSignals(), QStringLiteral("ok Gain; Gain; Gain"));
    QCOMPARE(gains[1].data().toString(), QStringLiteral("6.5dB"));
}

void TestGenParamTreeModel::keepsARefusalUntilTheValueChanges()
{
    Shown shown;
    shown.readAll();
    const QModelIndex width = shown.cell("Width");
    shown.refused = "SetValue";
    QVERIFY(!shown.model.setData(width, 656));
    QVERIFY(!shown.model.setData(width, 656));
    QCOMPARE(shown.takeSignals(), QStringLiteral("!Width: refused"));
    shown.model.refresh(0, {width});
    QCOMPARE(shown.takeSignals(), QString());
    shown.refused = "";
    QVERIFY(shown.model.setData(width, 656));
    QCOMPARE(shown.takeSignals(), QStringLiteral("ok Width; Width"));
}

void TestGenParamTreeModel::givesUpTheNodeMap()
{
    Shown shown;
    const QAbstractItemModelTester tester(&shown.model);
    shown.model.detach();
    QCOMPARE(shown.model.rowCount(), 0);
    shown.map->InvalidateNodes();
    QCOMPARE(shown.takeSignals(), QString());
    shown.map.reset();
    shown.model.refresh(100, {});
    shown.model.detach();

    // Also from within the report of an error, whatever found it.
    const auto byReading = [](const QModelIndex& cell, GenParamTreeModel&) { cell.data(); };
    const auto byEditing = [](const QModelIndex& cell, GenParamTreeModel&) { cell.data(Qt::UserRole + 1); };
    const auto byRefresh = [](const QModelIndex& cell, GenParamTreeModel& model) {
        model.refresh(0, {cell});
    };
    using Find = void (*)(const QModelIndex&, GenParamTreeModel&);
    for (const Find find : {Find(byReading), Find(byEditing), Find(byRefresh)}) {
        Shown failing;
        connect(&failing.model, &GenParamTreeModel::errorAppeared, this, [&] { failing.model.detach(); });
        failing.refused = "GetValue";
        find(failing.cell("Width"), failing.model);
        QCOMPARE(failing.model.rowCount(), 0);
    }
}

void TestGenParamTreeModel::composesToolTips()
{
    NodeMapBuilder b;
    b.category("Root").contains({"Width", "Rate", "Chooser", "Gone", "Sub"});
    b.category("Sub").description("a group");
    b.integer("Width").limits(16, 4096).increment(4).unit("px").streamable().description(
        "Columns <b> & more");
    b.floating("Rate").validValues({1, 1.5}).notation(GenApi::fnFixed, 2).toolTip("short help").limits(1, 2);
    b.enumeration("Chooser").entry("One", 1).entry("Two", 2).selects({"Width"}).caching(GenApi::WriteAround);
    b.integer("Gone").access(GenApi::NA).caching(GenApi::NoCache);
    const auto map = b.build();
    const GenParamTreeModel model(map.get());
    const auto toolTip = [&model](const char* feature) {
        return valueCell(model, feature).data(Qt::ToolTipRole).toString();
    };
    QCOMPARE(
        toolTip("Width"),
        QStringLiteral("<i>Name:</i> Width<br /><i>Type:</i> Integer<br /><i>Selectors:</i> Chooser<br />"
                       "<i>Limits</i>: Min: 16px, Max: 4096px<br /><i>Increment</i>: 4px<br />"
                       "<i>Description:</i> Columns &lt;b&gt; &amp; more<br />"
                       "<i>Streamable:</i> True<br /><i>Cachable:</i> WriteThrough"));
    QCOMPARE(toolTip("Rate"),
             QStringLiteral("<i>Name:</i> Rate<br /><i>Type:</i> Float<br />"
                            "<i>Limits</i>: Min: 1.00, Max: 2.00<br /><i>Valid values</i>: 1.00, 1.50<br />"
                            "<i>Description:</i> short help<br />"
                            "<i>Streamable:</i> False<br /><i>Cachable:</i> WriteThrough"));
    QCOMPARE(toolTip("Chooser"),
             QStringLiteral("<i>Name:</i> Chooser<br /><i>Type:</i> Enumeration<br />"
                            "<i>Enumeration entries</i>:<br />- One<br />- Two<br />"
                            "<i>Streamable:</i> False<br /><i>Cachable:</i> WriteAround"));
    QCOMPARE(toolTip("Gone"), QStringLiteral("<i>Name:</i> Gone<br /><i>Type:</i> Integer<br />"
                                             "<i>Streamable:</i> False<br /><i>Cachable:</i> NoCache"));
    QCOMPARE(toolTip("Sub"), QStringLiteral("<i>Name:</i> Sub<br /><i>Description:</i> a group"));
}

ZETO_TEST_MAIN(TestGenParamTreeModel)
#include "tst_genparamtreemodel.moc"
