#include "descriptionnodemap.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "handsonkeys.h"
#include "qtzetospinboxval64.h"
#include "stepgrid.h"
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

/// Whether the camera would take the value that it holds: not one off its own grid, nor an entry that is not
/// available.
bool isLegal(QWidget& editor)
{
    if (auto* choice = qobject_cast<QComboBox*>(&editor))
        return choice->model()->flags(choice->model()->index(choice->currentIndex(), 0)) & Qt::ItemIsEnabled;
    const auto* spinBox = qobject_cast<QtZetoSpinBoxVal64*>(&editor);
    return !spinBox || spinBox->value() == spinBox->maximum() ||
           StepGrid::remainder(spinBox->value(), spinBox->minimum(), spinBox->singleStep()) == 0;
}

/// Enters the value again that an open \a editor shows.
void enterSameValue(QWidget& editor)
{
    if (auto* choice = qobject_cast<QComboBox*>(&editor)) {
        const bool isLast = choice->currentIndex() + 1 == choice->count();
        pressKeys(isLast ? QStringLiteral("Up Down") : QStringLiteral("Down Up"));
        return;
    }
    const auto* line = qobject_cast<QLineEdit*>(&editor);
    typeText(&editor, (line ? line : editor.findChild<QLineEdit*>())->selectedText());
}

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

/// The browser's model and delegate over the features of a camera, all expanded, and a second model that
/// shows what the camera really holds.
class Desk
{
public:
    explicit Desk(GenApi::INodeMap& map)
        : model(&map)
        , witness(&map)
    {
        counter.setSourceModel(&model);
        view.setModel(&counter);
        view.setItemDelegateForColumn(1, &delegate);
        view.expandAll();
        view.show();
        view.activateWindow();
    }

    QModelIndexList valueCells(const QModelIndex& parent = QModelIndex()) const
    {
        QModelIndexList cells;
        for (int row = 0; row < counter.rowCount(parent); ++row) {
            cells << counter.index(row, 1, parent);
            cells << valueCells(counter.index(row, 0, parent));
        }
        return cells;
    }

    QWidget* open(const QModelIndex& cell)
    {
        view.setFocus();
        view.setCurrentIndex(cell);
        pressKeys(QStringLiteral("F2"));
        QWidget* editor = QApplication::focusWidget();
        return editor->parentWidget() == view.viewport() ? editor : nullptr;
    }

    void close()
    {
        QCoreApplication::processEvents(); // Return is taken up there
        if (QApplication::focusWidget()->parentWidget() == view.viewport())
            pressKeys(QStringLiteral("Escape"));
    }

    bool showsWhatTheCameraHolds(const QModelIndex& cell)
    {
        QModelIndexList path;
        for (QModelIndex at = cell; at.isValid(); at = at.parent())
            path.prepend(at);
        QModelIndex same;
        for (const QModelIndex& at : path)
            same = witness.index(at.row(), at.column(), same.siblingAtColumn(0));
        witness.refresh(0, {same});
        return same.data() == cell.data();
    }

    GenParamTreeModel model;
    GenParamTreeModel witness;
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
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));

    int writable = 0, commands = 0, same = 0, changed = 0;
    const QModelIndexList cells = desk.valueCells();
    for (const QModelIndex& cell : cells) {
        const QByteArray name = cell.siblingAtColumn(0).data().toString().toUtf8();
        QWidget* editor = cell.flags() & Qt::ItemIsEditable ? desk.open(cell) : nullptr;
        QCOMPARE(editor != nullptr, bool(cell.flags() & Qt::ItemIsEditable));
        if (!editor)
            continue;
        ++writable;
        const QString shown = cell.data().toString();
        const int before = desk.counter.taken;
        if (qobject_cast<QPushButton*>(editor)) {
            pressKeys(QStringLiteral("Space"));
            QCOMPARE(desk.counter.taken, before + 1);
            ++commands;
            desk.close();
            continue;
        }
        const bool canEnterSame = isLegal(*editor);
        enterSameValue(*editor);
        pressKeys(QStringLiteral("Return"));
        desk.close();
        QVERIFY2((!canEnterSame || cell.data().toString() == shown) && desk.showsWhatTheCameraHolds(cell),
                 name);
        same += desk.counter.taken > before;

        editor = desk.open(cell);
        QVERIFY2(editor, name);
        pressKeys(keysForOtherValue(*editor) + QStringLiteral(" Return"));
        desk.close();
        QVERIFY2(desk.showsWhatTheCameraHolds(cell), name);
        changed += cell.data().toString() != shown;
    }
    qInfo("%d features, %d writable, %d commands run, %d values written back, %d changed, %d writes refused",
          cells.size(), writable, commands, same, changed, desk.counter.refused);
    QFETCH(const int, leastChanged);
    QVERIFY(changed >= leastChanged);
    QFETCH(const int, mostRefused);
    QVERIFY(desk.counter.refused <= mostRefused);
}

ZETO_TEST_MAIN(TestEditDescriptions)
#include "tst_editdescriptions.moc"
