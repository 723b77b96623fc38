#include "genparamtreemodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QtTest>

using ZetoNodeMap::NodeMap;
using ZetoNodeMap::NodeMapBuilder;

namespace {

/// Counts the reads of values, of one name or of all.
class ReadCounter
{
public:
    explicit ReadCounter(NodeMap& map)
        : m_map(map)
    {
        m_map.setAccessHook([this](const char* call, const GenApi::INode*) {
            if (qstrcmp(call, "GetValue") == 0 || qstrcmp(call, "ToString") == 0)
                ++m_reads;
        });
    }
    ~ReadCounter() { m_map.setAccessHook({}); }
    Q_DISABLE_COPY(ReadCounter)

    int take() { return std::exchange(m_reads, 0); }

private:
    NodeMap& m_map;
    int m_reads = 0;
};

/// Writes down what a model signals: changed cells by name, errors as "!name: reason" and "ok name".
class SignalLog
{
public:
    explicit SignalLog(GenParamTreeModel& model)
    {
        QObject::connect(&model, &GenParamTreeModel::dataChanged, &m_context,
                         [this](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                             const bool isOneCell = from == to && from.column() == 1 && roles.isEmpty();
                             m_lines += isOneCell ? from.siblingAtColumn(0).data().toString()
                                                  : QStringLiteral("more than a cell");
                         });
        QObject::connect(&model, &GenParamTreeModel::errorAppeared, &m_context,
                         [this](const QString& name, const QString& reason) {
                             m_lines += QStringLiteral("!%1: %2").arg(name, reason);
                         });
        QObject::connect(&model, &GenParamTreeModel::errorDisappeared, &m_context,
                         [this](const QString& name) { m_lines += QStringLiteral("ok ") + name; });
    }

    QString take()
    {
        const QString lines = m_lines.join(QStringLiteral("; "));
        m_lines.clear();
        return lines;
    }

private:
    QObject m_context;
    QStringList m_lines;
};

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
        const QModelIndex index = model.index(row, 0, parent);
        texts +=
            QStringLiteral("%1=%2 ").arg(index.data().toString(), index.siblingAtColumn(1).data().toString());
        texts += allTexts(model, index);
    }
    return texts;
}

[[noreturn]] void refuse()
{
    throw ACCESS_EXCEPTION("refused");
}

} // namespace

class TestGenParamTreeModel : public QObject
{
    Q_OBJECT

private slots:
    void mirrorsCategories_data();
    void mirrorsCategories();
    void readsNothingBeforeItIsShown();
    void describesCells();
    void believesRepresentations_data();
    void believesRepresentations();
    void writes_data();
    void writes();
    void reportsEachChangeOnce();
    void refreshesWhatIsNamed();
    void reportsErrorsInPairs();
    void keepsARefusalUntilTheValueChanges();
    void givesUpTheNodeMap();
    void composesToolTips_data();
    void composesToolTips();
};

/// "Root:A,x A:y" is the category Root with A and x and the category A with y; all else is an integer.
void TestGenParamTreeModel::mirrorsCategories_data()
{
    QTest::addColumn<QString>("categories");
    QTest::addColumn<QString>("tree");
    QTest::newRow("nested") << "Root:A,x,B A:C,y C:z B:"
                            << "A(C(z) y) x B";
    QTest::newRow("a feature in several categories") << "Root:A,B,x A:x B:y,x"
                                                     << "A(x) B(y x) x";
    QTest::newRow("a category twice") << "Root:A,B A:x B:A"
                                      << "A(x) B(A(x))";
    QTest::newRow("a cycle ends at the ancestor") << "Root:A A:B,x B:A,y"
                                                  << "A(B(A y) x)";
    QTest::newRow("a cycle to the root") << "Root:A,Root A:Root,x"
                                         << "A(Root x) Root";
    QTest::newRow("empty") << "Root:"
                           << "";
    QTest::newRow("no root") << "A:x"
                             << "";
}

void TestGenParamTreeModel::mirrorsCategories()
{
    QFETCH(const QString, categories);
    NodeMapBuilder b;
    QStringList names;
    for (const QString& category : categories.split(QLatin1Char(' '))) {
        const QStringList parts = category.split(QLatin1Char(':'));
        const QStringList members = parts[1].split(QLatin1Char(','), Qt::SkipEmptyParts);
        std::vector<std::string> list;
        for (const QString& member : members)
            list.push_back(member.toStdString());
        b.category(parts[0].toStdString()).contains(list);
        names += members;
    }
    names.removeDuplicates();
    for (const QString& name : names)
        if (!categories.contains(name + ':'))
            b.integer(name.toStdString());
    const auto map = b.build();
    GenParamTreeModel model(map.get());
    const QAbstractItemModelTester tester(&model);
    QTEST(treeText(model), "tree");
}

void TestGenParamTreeModel::readsNothingBeforeItIsShown()
{
    const auto map = camera();
    ReadCounter reads(*map);
    GenParamTreeModel model(map.get());
    treeText(model);
    QCOMPARE(reads.take(), 0);
    allTexts(model);
    QCOMPARE(reads.take(), 10); // neither the command nor the write-only feature, and Gain once
    allTexts(model);
    QCOMPARE(reads.take(), 0);
}

void TestGenParamTreeModel::describesCells()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(
        allTexts(model),
        QStringLiteral("Image= Width=640px OffsetX=0 Format=Mono8 Gain=6.5dB Reverse=True Name=left Control= "
                       "Trigger=Execute Gain=6.5dB Lock=False Address=10.0.0.1 Secret=<Value not readable> "
                       "Serial=7 Temperature=30 "));
    const auto flagsOf = [&model](const char* name) { return int(valueCell(model, name).flags()); };
    QCOMPARE(flagsOf("Serial"), 33);
    QCOMPARE(flagsOf("Secret"), 35);
    QCOMPARE(flagsOf("Trigger"), 35);
    QCOMPARE(int(valueCell(model, "Width").siblingAtColumn(0).flags()), 33);
    QCOMPARE(model.headerData(1, Qt::Vertical).toString(), QStringLiteral("Value"));
    QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant());
    QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole), QVariant());
    QCOMPARE(model.columnCount(valueCell(model, "Width").siblingAtColumn(0)), 2);

    auto* feature = valueCell(model, "Width").data(Qt::UserRole).value<GenApi::IValue*>();
    QVERIFY(feature->GetNode()->GetName() == "Width");
    QCOMPARE(valueCell(model, "Width").data(Qt::EditRole), QVariant(qint64{640}));
    QCOMPARE(valueCell(model, "Address").data(Qt::EditRole), QVariant("10.0.0.1"));
    QVERIFY(model.index(0, 0).data(Qt::BackgroundRole).value<QBrush>().color().alpha() < 255);
    QCOMPARE(valueCell(model, "Width").data(Qt::BackgroundRole), QVariant());
}

void TestGenParamTreeModel::believesRepresentations_data()
{
    QTest::addColumn<int>("declared");
    QTest::addColumn<QString>("texts");
    QTest::newRow("declared as an address: all declarations hold")
        << int(GenApi::IPV4Address) << "GevMACAddress=11 GevCurrentIPAddress=0.0.0.1 ";
    QTest::newRow("not declared: the names tell")
        << int(GenApi::PureNumber) << "GevMACAddress=00:00:00:00:00:0b GevCurrentIPAddress=0.0.0.1 ";
}

void TestGenParamTreeModel::believesRepresentations()
{
    QFETCH(const int, declared);
    NodeMapBuilder b;
    b.category("Root").contains({"GevMACAddress", "GevCurrentIPAddress"});
    b.integer("GevMACAddress").value(11);
    b.integer("GevCurrentIPAddress").representation(GenApi::ERepresentation(declared)).value(1);
    const auto map = b.build();
    QTEST(allTexts(GenParamTreeModel(map.get())), "texts");
}

void TestGenParamTreeModel::writes_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<QString>("text");
    QTest::newRow("integer") << "Width" << QVariant(qint64{656}) << true << "656px";
    QTest::newRow("integer off the increment") << "Width" << QVariant(657) << false << "640px";
    QTest::newRow("beyond 64 bits") << "Width" << QVariant(std::numeric_limits<quint64>::max()) << false
                                    << "640px";
    QTest::newRow("float beyond 64 bits") << "Width" << QVariant(1e300) << false << "640px";
    QTest::newRow("no integer") << "Width" << QVariant(QVariantList()) << false << "640px";
    QTest::newRow("address") << "Address" << QVariant("192.168.1.10") << true << "192.168.1.10";
    QTest::newRow("boolean") << "Reverse" << QVariant(false) << true << "False";
    QTest::newRow("float") << "Gain" << QVariant(0.5) << true << "0.5dB";
    QTest::newRow("float outside") << "Gain" << QVariant(24.5) << false << "6.5dB";
    QTest::newRow("no float") << "Gain" << QVariant("loud") << false << "6.5dB";
    QTest::newRow("string") << "Name" << QVariant("rechts") << true << "rechts";
    QTest::newRow("null string") << "Name" << QVariant(QString()) << true << "";
    QTest::newRow("symbolic name") << "Format" << QVariant("Mono16") << true << "Mono16";
    QTest::newRow("entry's value") << "Format" << QVariant(5) << true << "Mono16";
    QTest::newRow("no entry") << "Format" << QVariant("Mono17") << false << "Mono8";
    QTest::newRow("command") << "Trigger" << QVariant() << true << "Execute";
    QTest::newRow("read-only") << "Serial" << QVariant(8) << false << "7";
    QTest::newRow("write-only") << "Secret" << QVariant(8) << true << "<Value not readable>";
    QTest::newRow("a placeholder is no value")
        << "Secret" << QVariant("<Value not readable>") << false << "<Value not readable>";
    QTest::newRow("category") << "Image" << QVariant(1) << false << "";
}

void TestGenParamTreeModel::writes()
{
    QFETCH(const QString, feature);
    QFETCH(const QVariant, value);
    QFETCH(const bool, taken);
    const auto map = camera();
    GenParamTreeModel model(map.get());
    const QAbstractItemModelTester tester(&model);
    const QModelIndex cell = valueCell(model, feature);
    allTexts(model);
    SignalLog log(model);
    QCOMPARE(model.setData(cell, value), taken);
    const QString rows = feature == QLatin1String("Gain") ? "Gain; Gain" : feature;
    const QString signalled = log.take();
    QVERIFY2(taken ? signalled == rows : !signalled.contains(rows) || signalled.startsWith('!'),
             qPrintable(signalled));
    QTEST(cell.data().toString(), "text");
    QVERIFY(!model.setData(cell.siblingAtColumn(0), value));
    QVERIFY(!model.setData(cell, value, Qt::DisplayRole));
}

void TestGenParamTreeModel::reportsEachChangeOnce()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    SignalLog log(model);
    ReadCounter reads(*map);
    const GenApi::CIntegerPtr width = map->GetNode("Width");
    const GenApi::CFloatPtr gain = map->GetNode("Gain");

    width->SetValue(656);
    QCOMPARE(log.take(), QStringLiteral("Width; OffsetX")); // not read yet: it may have changed
    QCOMPARE(reads.take(), 0);

    allTexts(model);
    reads.take();
    width->SetValue(672);
    QCOMPARE(log.take(), QStringLiteral("Width")); // OffsetX was called back too, but stayed
    QCOMPARE(reads.take(), 2);
    QCOMPARE(valueCell(model, "Width").data().toString(), QStringLiteral("672px"));
    QCOMPARE(reads.take(), 0);

    gain->SetValue(1);
    QCOMPARE(log.take(), QStringLiteral("Gain; Gain"));
    QCOMPARE(reads.take(), 1);

    model.setData(valueCell(model, "Lock"), true);
    QCOMPARE(log.take(), QStringLiteral("OffsetX; Lock")); // no longer writable
    QCOMPARE(int(valueCell(model, "OffsetX").flags()), 33);
    QCOMPARE(reads.take(), 1);
}

void TestGenParamTreeModel::refreshesWhatIsNamed()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    allTexts(model);
    SignalLog log(model);
    ReadCounter reads(*map);
    const QModelIndex temperature = valueCell(model, "Temperature");

    map->assign("Temperature", int64_t{30});
    log.take();
    allTexts(model);
    reads.take();
    model.refresh(10, {temperature, temperature.siblingAtColumn(0), valueCell(model, "Width")});
    QCOMPARE(reads.take(), 2);
    QCOMPARE(log.take(), QString());

    // Polled by the node map but not on screen: reported unread.
    model.refresh(200, {valueCell(model, "Width")});
    QCOMPARE(reads.take(), 1);
    QCOMPARE(log.take(), QStringLiteral("Temperature"));
}

void TestGenParamTreeModel::reportsErrorsInPairs()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    SignalLog log(model);
    const QModelIndexList gains = valueCells(model, "Gain");
    map->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "GetValue") == 0)
            refuse();
    });
    QCOMPARE(gains[0].data().toString(), QStringLiteral("ERROR"));
    QCOMPARE(gains[1].data().toString(), QStringLiteral("ERROR"));
    QVERIFY(gains[0].data(Qt::BackgroundRole).isValid());
    QCOMPARE(int(gains[0].flags()), 35); // a new value may be the cure
    model.refresh(0, gains);
    QCOMPARE(log.take(), QStringLiteral("!Gain: refused"));

    map->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "GetValue") == 0)
            throw TIMEOUT_EXCEPTION("");
    });
    model.refresh(0, gains);
    QCOMPARE(log.take(), QStringLiteral("ok Gain; !Gain: Unknown Error"));

    map->setAccessHook({});
    model.refresh(0, gains);
    QCOMPARE(log.take(), QStringLiteral("ok Gain; Gain; Gain"));
    QCOMPARE(gains[1].data().toString(), QStringLiteral("6.5dB"));
}

void TestGenParamTreeModel::keepsARefusalUntilTheValueChanges()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    allTexts(model);
    SignalLog log(model);
    const QModelIndex width = valueCell(model, "Width");
    map->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "SetValue") == 0)
            refuse();
    });
    QVERIFY(!model.setData(width, 656));
    QVERIFY(!model.setData(width, 656));
    QCOMPARE(log.take(), QStringLiteral("!Width: refused"));
    model.refresh(0, {width});
    QCOMPARE(log.take(), QString());
    map->setAccessHook({});
    QVERIFY(model.setData(width, 656));
    QCOMPARE(log.take(), QStringLiteral("ok Width; Width"));
}

void TestGenParamTreeModel::givesUpTheNodeMap()
{
    auto map = camera();
    GenParamTreeModel model(map.get());
    const QAbstractItemModelTester tester(&model);
    SignalLog log(model);
    model.detach();
    QCOMPARE(model.rowCount(), 0);
    map->InvalidateNodes();
    QCOMPARE(log.take(), QString());
    map.reset();
    model.refresh(100, {});
    model.detach();

    // Also from within the report of an error.
    const auto other = camera();
    GenParamTreeModel failing(other.get());
    const QModelIndex cell = valueCell(failing, QStringLiteral("Width"));
    cell.data();
    connect(&failing, &GenParamTreeModel::errorAppeared, &failing, [&failing] { failing.detach(); });
    other->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "GetValue") == 0)
            refuse();
    });
    failing.refresh(0, {cell});
    QCOMPARE(failing.rowCount(), 0);
}

void TestGenParamTreeModel::composesToolTips_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("integer") << "Width" << QStringList{"<i>Name:</i> Width",
                                                       "<i>Type:</i> Integer",
                                                       "<i>Selectors:</i> Chooser",
                                                       "<i>Limits</i>: Min: 16px, Max: 4096px",
                                                       "<i>Increment</i>: 4px",
                                                       "<i>Description:</i> Columns &lt;b&gt; &amp; more",
                                                       "<i>Streamable:</i> True",
                                                       "<i>Cachable:</i> WriteThrough"};
    QTest::newRow("float with valid values") << "Rate"
                                             << QStringList{"<i>Name:</i> Rate",
                                                            "<i>Type:</i> Float",
                                                            "<i>Limits</i>: Min: 1.00, Max: 2.00",
                                                            "<i>Valid values</i>: 1.00, 1.50, 2.00",
                                                            "<i>Description:</i> short help",
                                                            "<i>Streamable:</i> False",
                                                            "<i>Cachable:</i> NoCache"};
    QTest::newRow("enumeration") << "Chooser" << QStringList{"<i>Name:</i> Chooser",
                                                             "<i>Type:</i> Enumeration",
                                                             "<i>Enumeration entries</i>:",
                                                             "- One",
                                                             "- Two",
                                                             "<i>Streamable:</i> False",
                                                             "<i>Cachable:</i> WriteAround"};
    QTest::newRow("not available") << "Gone"
                                   << QStringList{"<i>Name:</i> Gone", "<i>Type:</i> Integer",
                                                  "<i>Streamable:</i> False",
                                                  "<i>Cachable:</i> WriteThrough"};
    QTest::newRow("category") << "Sub" << QStringList{"<i>Name:</i> Sub", "<i>Description:</i> a group"};
}

void TestGenParamTreeModel::composesToolTips()
{
    QFETCH(const QString, feature);
    NodeMapBuilder b;
    b.category("Root").contains({"Width", "Rate", "Chooser", "Gone", "Sub"});
    b.category("Sub").description("a group");
    b.integer("Width").limits(16, 4096).increment(4).unit("px").streamable().value(640).description(
        "Columns <b> & more");
    b.floating("Rate")
        .limits(1, 2)
        .validValues({1, 1.5, 2})
        .notation(GenApi::fnFixed, 2)
        .toolTip("short help")
        .caching(GenApi::NoCache);
    b.enumeration("Chooser").entry("One", 1).entry("Two", 2).selects({"Width"}).caching(GenApi::WriteAround);
    b.integer("Gone").access(GenApi::NA);
    const auto map = b.build();
    GenParamTreeModel model(map.get());
    const QString toolTip = valueCell(model, feature).data(Qt::ToolTipRole).toString();
    QTEST(toolTip.split(QStringLiteral("<br />")), "lines");
}

ZETO_TEST_MAIN(TestGenParamTreeModel)
#include "tst_genparamtreemodel.moc"
