#include "descriptionnodemap.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "handsonkeys.h"
#include "testmain.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

namespace {

/// Counts the writes that pass through.
class WriteCounter : public QIdentityProxyModel
{
public:
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        const bool isTaken = QIdentityProxyModel::setData(index, value, role);
        isTaken ? ++taken : ++refused;
        return isTaken;
    }
    int taken = 0;
    int refused = 0;
};

/// The keys that enter another value, in the way of the editor's kind.
QString keysForOtherValue(QWidget& editor)
{
    if (auto* choice = qobject_cast<QComboBox*>(&editor))
        return choice->currentIndex() + 1 < choice->count() ? QStringLiteral("Down") : QStringLiteral("Up");
    if (auto* spinBox = qobject_cast<QAbstractSpinBox*>(&editor))
        return spinBox->property("value") == spinBox->property("maximum") ? QStringLiteral("Down")
                                                                          : QStringLiteral("Up");
    const QString text = static_cast<QLineEdit&>(editor).text();
    if (text.count(QLatin1Char('.')) == 3)
        return QStringLiteral("'10.1.2.3");
    return text.count(QLatin1Char(':')) == 5 ? QStringLiteral("'02:11:22:33:44:55")
                                             : QStringLiteral("End Backspace 'x");
}

/// The browser's model and delegate over the features of a camera, all expanded.
class Desk
{
public:
    explicit Desk(GenApi::INodeMap& map)
        : model(&map)
    {
        counter.setSourceModel(&model);
        view.setModel(&counter);
        view.setItemDelegateForColumn(1, &delegate);
        view.expandAll();
        view.show();
        view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }

    QModelIndexList rows() const
    {
        return counter.match(counter.index(0, 0), Qt::DisplayRole, "*", -1,
                             Qt::MatchWildcard | Qt::MatchRecursive);
    }

    QWidget* editor() const
    {
        QWidget* focus = QApplication::focusWidget();
        return focus->parentWidget() == view.viewport() ? focus : nullptr;
    }

    QWidget* open(const QModelIndex& cell)
    {
        view.setFocus();
        view.setCurrentIndex(cell);
        pressKeys("F2");
        return editor();
    }

    void close()
    {
        QCoreApplication::processEvents(); // Return is taken up there
        if (editor())
            pressKeys("Escape");
    }

    bool showsWhatTheCameraHolds(const QModelIndex& cell)
    {
        const QString shown = cell.data().toString();
        model.refresh(0, {counter.mapToSource(cell)});
        return cell.data().toString() == shown;
    }

    GenParamTreeModel model;
    WriteCounter counter;
    GenParamDelegate delegate;
    QTreeView view;
};

} // namespace

/// Every writable feature of whole cameras, edited by keyboard alone. The descriptions of real cameras are
/// used where the folder that ZETO_TEST_DESCRIPTIONS names has them.
class TestEditDescriptions : public QObject
{
    Q_OBJECT

private slots:
    void editsEveryWritableFeature_data();
    void editsEveryWritableFeature();
};

void TestEditDescriptions::editsEveryWritableFeature_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<int>("leastChanged");
    QTest::addColumn<int>("mostRefused");
    QTest::newRow("demo") << QByteArray(ZETO_DEMO_XML) << 90 << 12; // registers, broken limits
    const auto real = [](const char* name, int leastChanged, int mostRefused = 0) {
        const QByteArray path = qgetenv("ZETO_TEST_DESCRIPTIONS") + QByteArray("/") + name + ".xml";
        QTest::newRow(name) << path << leastChanged << mostRefused;
    };
    real("usb3-a", 80, 2); // minimum above maximum
    real("gige-a", 330);
    real("gige-b", 75);
    real("coaxpress-a", 80);
}

void TestEditDescriptions::editsEveryWritableFeature()
{
    QFETCH(const QByteArray, path);
    if (!QFile::exists(QFile::decodeName(path)))
        QSKIP("The descriptions of real cameras are not here");
    const auto camera = ZetoAravis::DescriptionNodeMap::open(path.toStdString());
    Desk desk(camera->nodeMap());

    int changed = 0;
    for (const QModelIndex& row : desk.rows()) {
        const QModelIndex cell = row.siblingAtColumn(1);
        const QByteArray name = row.data().toString().toUtf8();
        if (!(cell.flags() & Qt::ItemIsEditable))
            continue;
        QWidget* editor = desk.open(cell);
        QVERIFY2(editor, name);
        const QString shown = cell.data().toString();
        const int before = desk.counter.taken;
        if (qobject_cast<QPushButton*>(editor)) {
            pressKeys("Space");
            QCOMPARE(desk.counter.taken, before + 1);
            desk.close();
            continue;
        }
        pressKeys("Return");
        desk.close();
        QVERIFY2(desk.counter.taken == before && cell.data().toString() == shown, name);

        editor = desk.open(cell);
        QVERIFY2(editor, name);
        pressKeys(keysForOtherValue(*editor) + QStringLiteral(" Return"));
        desk.close();
        QVERIFY2(desk.showsWhatTheCameraHolds(cell), name);
        changed += cell.data().toString() != shown;
    }
    QFETCH(const int, leastChanged);
    QVERIFY(changed >= leastChanged);
    QFETCH(const int, mostRefused);
    QVERIFY(desk.counter.refused <= mostRefused);
}

ZETO_TEST_MAIN(TestEditDescriptions)
#include "tst_editdescriptions.moc"
