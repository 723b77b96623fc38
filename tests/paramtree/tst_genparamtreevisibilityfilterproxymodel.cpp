#include "genparamtreemodel.h"
#include "genparamtreevisibilityfilterproxymodel.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractItemModelTester>
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

/// The filter over a camera's features.
struct Filtered
{
    Filtered() { proxy.setSourceModel(&model); }

    std::unique_ptr<ZetoNodeMap::NodeMap> map = camera();
    GenParamTreeModel model{map.get()};
    Proxy proxy;
    QAbstractItemModelTester tester{&proxy};
};

const QString atFirst = QStringLiteral("Analog(Gain BlackLevel)");

} // namespace

class TestGenParamTreeVisibilityFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void filters();
    void showsRowsWithoutAFeature();
    void followsTheDevice();
    void keepsPersistentIndexes();
    void showsWhatCannotBeAsked();
};

void TestGenParamTreeVisibilityFilterProxyModel::filters()
{
    const auto shown = [](int level, const char* pattern, const QString& options = QString()) {
        Filtered filtered;
        Proxy& proxy = filtered.proxy;
        QMetaObject::invokeMethod(&proxy, "setFilterVisibility", Q_ARG(int, level));
        QMetaObject::invokeMethod(&proxy, "setFilterText", Q_ARG(QString, pattern));
        proxy.setNameCaseSensitivity(options.contains("case") ? Qt::CaseSensitive : Qt::CaseInsensitive);
        proxy.setWholeWord(options.contains("whole"));
        return treeText(proxy);
    };
    QCOMPARE(treeText(Filtered().proxy), atFirst);
    QCOMPARE(shown(0, "*"), atFirst);
    QCOMPARE(shown(1, "*"), QStringLiteral("Analog(Gain GainAuto BlackLevel)"));
    QCOMPARE(shown(2, ""), QStringLiteral("Analog(Gain GainAuto BlackLevel) Deep(Raw Digital Gain)"));
    QCOMPARE(shown(3, "Fil"), QStringLiteral("Analog Deep"));
    QCOMPARE(shown(2, "Analog"), QStringLiteral("Analog Deep"));
    QCOMPARE(shown(2, "gain"), QStringLiteral("Analog(Gain GainAuto) Deep(Digital Gain)"));
    QCOMPARE(shown(2, "gain", "case"), QStringLiteral("Analog Deep"));
    QCOMPARE(shown(2, "gain", "whole"), QStringLiteral("Analog(Gain) Deep"));
    QCOMPARE(shown(2, "gain", "case whole"), QStringLiteral("Analog Deep"));
    QCOMPARE(shown(2, "Gain*", "whole"), QStringLiteral("Analog(Gain GainAuto) Deep"));
    QCOMPARE(shown(2, "[BR]*", "whole"), QStringLiteral("Analog(BlackLevel) Deep(Raw)"));
    QCOMPARE(shown(2, "[B"), QStringLiteral("Analog Deep"));
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
    const Filtered filtered;
    QCOMPARE(treeText(filtered.proxy), atFirst);
    filtered.map->setAccessMode("Fit", GenApi::RW);
    filtered.map->setAccessMode("Gain", GenApi::NI);
    QCOMPARE(treeText(filtered.proxy), QStringLiteral("Analog(BlackLevel Filter)"));
}

void TestGenParamTreeVisibilityFilterProxyModel::keepsPersistentIndexes()
{
    Filtered filtered;
    Proxy& proxy = filtered.proxy;
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
    Filtered filtered;
    filtered.map->setAccessHook([](const char* call, const GenApi::INode*) {
        if (qstrcmp(call, "GetAccessMode") == 0)
            throw TIMEOUT_EXCEPTION("gone");
    });
    filtered.proxy.setFilterText("*"); // asks again
    QCOMPARE(treeText(filtered.proxy), QStringLiteral("Analog(Gain BlackLevel Filter)"));
}

ZETO_TEST_MAIN(TestGenParamTreeVisibilityFilterProxyModel)
#include "tst_genparamtreevisibilityfilterproxymodel.moc"
