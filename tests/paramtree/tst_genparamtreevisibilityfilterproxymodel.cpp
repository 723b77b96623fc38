#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractItemModelTester>
#include <QMetaMethod>
#include <QStandardItemModel>
#include <QtTest>

using Proxy = GenParamTreeVisibilityFilterProxyModel;

namespace {

std::unique_ptr<ZetoNodeMap::NodeMap> camera()
{
    ZetoNodeMap::NodeMapBuilder b;
    b.category("Root").contains("Analog", "Deep");
    b.category("Analog").contains("Gain", "GainAuto", "BlackLevel", "Fit");
    b.category("Deep").visibility(GenApi::Guru).contains("Raw", "Digital Gain");
    b.floating("Gain");
    b.integer("GainAuto").visibility(GenApi::Expert);
    b.integer("BlackLevel");
    b.integer("Fit").availableIf(true).access(GenApi::NI).displayName("Filter");
    b.integer("Raw").visibility(GenApi::Guru);
    b.integer("Digital Gain");
    return b.build();
}

} // namespace

class TestGenParamTreeVisibilityFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void filters_data();
    void filters();
    void showsRowsWithoutAFeature();
    void followsTheDevice();
    void keepsPersistentIndexes();
    void showsWhatCannotBeAsked();
};

void TestGenParamTreeVisibilityFilterProxyModel::filters_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("tree");
    QTest::newRow("at first") << 0 << "*"
                              << ""
                              << "Analog(Gain BlackLevel)";
    QTest::newRow("expert") << 1 << "*"
                            << ""
                            << "Analog(Gain GainAuto BlackLevel)";
    QTest::newRow("guru") << 2 << ""
                          << ""
                          << "Analog(Gain GainAuto BlackLevel) Deep(Raw Digital Gain)";
    QTest::newRow("invisible") << 3 << "Fil"
                               << ""
                               << "Analog Deep";
    QTest::newRow("part of the name") << 2 << "gain"
                                      << ""
                                      << "Analog(Gain GainAuto) Deep(Digital Gain)";
    QTest::newRow("case") << 2 << "gain"
                          << "case"
                          << "Analog Deep";
    QTest::newRow("whole") << 2 << "gain"
                           << "whole"
                           << "Analog(Gain) Deep";
    QTest::newRow("whole, both") << 2 << "gain"
                                 << "case whole"
                                 << "Analog Deep";
    QTest::newRow("beginning") << 2 << "Gain*"
                               << "whole"
                               << "Analog(Gain GainAuto) Deep";
    QTest::newRow("one letter") << 2 << "ra?"
                                << "whole"
                                << "Analog Deep(Raw)";
    QTest::newRow("set of letters") << 2 << "[BR]*"
                                    << "whole"
                                    << "Analog(BlackLevel) Deep(Raw)";
    QTest::newRow("unfinished set") << 2 << "[B"
                                    << ""
                                    << "Analog Deep";
    QTest::newRow("a category's name") << 2 << "Analog"
                                       << ""
                                       << "Analog Deep";
}

void TestGenParamTreeVisibilityFilterProxyModel::filters()
{
    QFETCH(const int, level);
    QFETCH(const QString, pattern);
    QFETCH(const QString, options);
    const auto map = camera();
    GenParamTreeModel model(map.get());
    Proxy proxy;
    const QAbstractItemModelTester tester(&proxy);
    proxy.setSourceModel(&model);
    QCOMPARE(treeText(proxy), QStringLiteral("Analog(Gain BlackLevel)"));

    QVERIFY(QMetaObject::invokeMethod(&proxy, "setFilterVisibility", Q_ARG(int, level)));
    QVERIFY(QMetaObject::invokeMethod(&proxy, "setFilterText", Q_ARG(QString, pattern)));
    proxy.setNameCaseSensitivity(options.contains("case") ? Qt::CaseSensitive : Qt::CaseInsensitive);
    proxy.setWholeWord(options.contains("whole"));
    QTEST(treeText(proxy), "tree");
}

void TestGenParamTreeVisibilityFilterProxyModel::showsRowsWithoutAFeature()
{
    QStandardItemModel model(2, 1);
    model.setData(model.index(0, 0), "plain");
    model.setData(model.index(1, 0), "null");
    model.setData(model.index(1, 0), QVariant::fromValue<GenApi::IValue*>(nullptr), Qt::UserRole);
    Proxy proxy;
    proxy.setFilterText("none");
    proxy.setSourceModel(&model);
    QCOMPARE(treeText(proxy), QStringLiteral("plain null"));
}

void TestGenParamTreeVisibilityFilterProxyModel::followsTheDevice()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    Proxy proxy;
    const QAbstractItemModelTester tester(&proxy);
    proxy.setSourceModel(&model);
    QCOMPARE(treeText(proxy), QStringLiteral("Analog(Gain BlackLevel)"));
    map->setAccessMode("Fit", GenApi::RW);
    map->setAccessMode("Gain", GenApi::NI);
    QCOMPARE(treeText(proxy), QStringLiteral("Analog(BlackLevel Filter)"));
}

void TestGenParamTreeVisibilityFilterProxyModel::keepsPersistentIndexes()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    Proxy proxy;
    proxy.setSourceModel(&model);
    const QPersistentModelIndex category = proxy.index(0, 0);
    const QPersistentModelIndex level = valueCell(proxy, "BlackLevel");
    QSignalSpy removals(&proxy, &Proxy::rowsRemoved);
    proxy.setFilterText("level");
    QCOMPARE(removals.count(), 0); // in one step
    QCOMPARE(level, valueCell(proxy, "BlackLevel"));
    QCOMPARE(level.row(), 0);
    proxy.setFilterText("gain");
    QVERIFY(category.isValid());
    QVERIFY(!level.isValid());
}

void TestGenParamTreeVisibilityFilterProxyModel::showsWhatCannotBeAsked()
{
    const auto map = camera();
    GenParamTreeModel model(map.get());
    Proxy proxy;
    map->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "GetAccessMode") == 0)
            throw TIMEOUT_EXCEPTION("gone");
    });
    proxy.setSourceModel(&model);
    QCOMPARE(treeText(proxy), QStringLiteral("Analog(Gain BlackLevel Filter)"));
}

ZETO_TEST_MAIN(TestGenParamTreeVisibilityFilterProxyModel)
#include "tst_genparamtreevisibilityfilterproxymodel.moc"
