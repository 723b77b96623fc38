#include "faultinjector.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "handsonkeys.h"
#include "nodemapbuilder.h"
#include "testmain.h"
#include "treetext.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QtTest>

#include <tuple>

using namespace ZetoNodeMap;

namespace {

constexpr int64_t lowest = std::numeric_limits<int64_t>::min();
constexpr int64_t highest = std::numeric_limits<int64_t>::max();

/// One feature of each type, representation and nuisance. \a isDone is told of the command "Calibrate".
std::unique_ptr<NodeMap> everyFeature(const bool& isDone)
{
    NodeMapBuilder b;
    b.category("Root");
    b.integer("Width").in("Root").unit("px").limits(16, 4096).increment(4).value(640);
    b.integer("Whole").in("Root").limits(lowest, highest).value(-1);
    b.integer("Hex").in("Root").representation(GenApi::HexNumber).limits(0, 0xffff).value(255);
    b.integer("GevPersistentIPAddress").in("Root").value(0xc0a80001);
    b.integer("GevMACAddress").in("Root").value(0x0011223344aa);
    b.integer("Binning").in("Root").validValues({1, 2, 4}).value(2);
    b.integer("Outside").in("Root").limits(0, 10).onRead([] { return int64_t{77}; });
    b.integer("Odd").in("Root").limits(0, 99).increment(4).onRead([] { return int64_t{5}; });
    b.integer("Secret").in("Root").access(GenApi::WO).limits(0, 99);
    b.integer("Rounded").in("Root").onWrite([](NodeMap&, int64_t value) { return value / 10 * 10; });
    b.integer("Refused").in("Root").value(5).onWrite(
        [](NodeMap&, int64_t) { throw ACCESS_EXCEPTION("Not while streaming"); });
    b.floating("Exposure")
        .in("Root")
        .unit("us")
        .notation(GenApi::fnFixed, 2)
        .limits(10, 1e6)
        .value(20000.001);
    b.floating("Stepped").in("Root").notation(GenApi::fnFixed, 1).limits(0, 2).increment(0.5).value(1);
    b.floating("Wide").in("Root").value(1.5e300);
    b.floating("Rate").in("Root").notation(GenApi::fnFixed, 1).validValues({12.5, 25}).value(25);
    b.boolean("Flag").in("Root").value(false);
    b.boolean("Arm").in("Root").access(GenApi::WO).value(false);
    b.enumeration("Mode")
        .in("Root")
        .entry(Entry("Off", 0).displayName("Switched off"))
        .entry(Entry("Gone", 1).access(GenApi::NI))
        .entry(Entry("Later", 2).access(GenApi::NA))
        .entry(Entry("On", 3));
    b.string("Label").in("Root").maxLength(5).value("cam");
    b.string("Password").in("Root").access(GenApi::WO).maxLength(9);
    b.bytes("Bytes").in("Root").access(GenApi::RW);
    b.integer("Count").in("Root").access(GenApi::RO);
    b.integer("Room").in("Root").value(9);
    b.integer("Guest").in("Root").limits(0, "Room").value(3);
    b.floating("Weight").in("Root").notation(GenApi::fnFixed, 1).limits(0, "Room").increment(1).value(3);
    b.command("Calibrate").in("Root").doneWhen([&isDone] { return isDone; });
    b.command("Reset").in("Root").onExecute([](NodeMap& map) { map.assign("Count", int64_t{8}); });
    return b.build();
}

/// The items of a choice, those that cannot be chosen with a star.
QString itemsOf(const QComboBox& choice)
{
    QStringList items;
    for (int i = 0; i < choice.count(); ++i) {
        const bool isEnabled = choice.model()->index(i, 0).flags() & Qt::ItemIsEnabled;
        items << choice.itemText(i) + (isEnabled ? "" : "*");
    }
    return items.join(',');
}

QString describe(QWidget* editor)
{
    if (auto* choice = qobject_cast<QComboBox*>(editor))
        return choice->currentText() + '{' + itemsOf(*choice) + '}';
    if (auto* button = qobject_cast<QPushButton*>(editor))
        return '[' + button->text() + ']';
    if (auto* spinBox = qobject_cast<QAbstractSpinBox*>(editor))
        return '#' + spinBox->text();
    auto* line = qobject_cast<QLineEdit*>(editor);
    return line ? '"' + line->text() + '"' : QStringLiteral("none");
}

/// A tree with the browser's delegate over a node map, and the camera's log of writes.
class Desk
{
public:
    Desk()
    {
        map->setAccessHook([this](const char* call, const GenApi::INode* node) {
            static const QStringList writing{"SetValue", "SetIntValue", "FromString", "Execute"};
            if (writing.contains(QLatin1String(call)))
                writes << QString::fromUtf8(node->GetName().c_str());
            faults.enter(call, node);
        });
        proxy.setSourceModel(&model);
        view.setModel(&proxy);
        view.setItemDelegateForColumn(1, &delegate);
        view.resize(500, 700);
        view.show();
        view.activateWindow();
        QObject::connect(
            &model, &GenParamTreeModel::errorAppeared, &model,
            [this](const QString& name, const QString& reason) { errors << name + ": " + reason; });
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }

    QModelIndex cell(const char* feature) const { return valueCell(proxy, feature); }

    QWidget* editor() const
    {
        QWidget* focus = QApplication::focusWidget();
        return focus && focus->parentWidget() == view.viewport() ? focus : nullptr;
    }

    QWidget* open(const char* feature)
    {
        view.setFocus();
        view.setCurrentIndex(cell(feature));
        pressKeys("F2");
        return editor();
    }

    QString shown(const char* feature) const { return cell(feature).data().toString(); }

    /// What the camera holds.
    QString held(const char* feature) const
    {
        if (dynamic_cast<GenApi::IFloat*>(map->GetNode(feature)))
            return QVariant(map->number(feature)).toString();
        return dynamic_cast<GenApi::ICommand*>(map->GetNode(feature))
                   ? QString()
                   : QString::fromStdString(map->text(feature));
    }

    void refresh(const char* feature) { model.refresh(0, {proxy.mapToSource(cell(feature))}); }
    QString written() const { return writes.join(' '); }

    QString note() const
    {
        for (QLabel* label : view.viewport()->findChildren<QLabel*>("cellNote"))
            if (label->isVisible())
                return label->text();
        return QString();
    }

    QStringList writes;
    QStringList errors;
    FaultInjector faults;
    bool isDone = false;
    std::unique_ptr<NodeMap> map = everyFeature(isDone);
    GenParamTreeModel model{map.get()};
    QSortFilterProxyModel proxy;
    GenParamDelegate delegate;
    QTreeView view;
};

} // namespace

class TestGenParamDelegate : public QObject
{
    Q_OBJECT

private slots:
    void editsEveryType_data();
    void editsEveryType();
    void tellsRefusedWrites();
    void showsWhatTheCameraMadeOfAValue();
    void runsACommandOncePerClick();
    void showsABusyCommand();
    void keepsWhatIsTypedThroughChanges();
    void followsTheCameraWhileNothingIsTyped();
    void startsEmptyWithoutAValue();
    void givesUpWhenTheFeatureBecomesReadOnly();
    void outlivesItsNodeMap();
    void survivesEveryFault();
    void fallsBackToTheStandardEditor();
};

void TestGenParamDelegate::editsEveryType_data()
{
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("actions");
    QTest::addColumn<QString>("held");
    QTest::addColumn<int>("writes");
    QTest::addColumn<QString>("note");

    const auto row = [](const char* feature, const char* opened, const char* actions, const char* held,
                        int writes = 1, const char* note = "") {
        QTest::addRow("%s %s", feature, actions) << opened << actions << held << writes << note;
    };
    row("Width", "#640px", "Return", "640", 0);
    row("Width", "#640px", "'801 Tab", "800");
    row("Width", "#640px", "'802 Return", "804");
    row("Width", "#640px", "Up Up PgDown Return", "608");
    row("Width", "#640px", "'9 Escape", "640", 0);
    row("Width", "#640px", "'9 Return", "640", 0, "9 is not a number from 16 to 4096.");
    row("Whole", "#-1", "'-9223372036854775808 Return", "-9223372036854775808");
    row("Hex", "#ff", "'FFfe Return", "0xFFFE");
    row("GevPersistentIPAddress", "\"192.168.0.1\"", "'10.0.0 Return Escape", "3232235521", 0,
        "\"10.0.0\" is not an IPv4 address.");
    row("GevPersistentIPAddress", "\"192.168.0.1\"", "'10.0.0.256 Return", "167772185");
    row("GevMACAddress", "\"00:11:22:33:44:aa\"", "'aa-bb-cc-dd-ee-01 Tab", "187723572702721");
    row("GevMACAddress", "\"00:11:22:33:44:aa\"", "'00:11 Return Escape", "73588229290", 0,
        "\"00:11\" is not a MAC address.");
    row("Binning", "2{1,2,4}", "Down Return", "4");
    row("Binning", "2{1,2,4}", "Return", "2", 0);
    row("Outside", "#77", "Return", "77", 0);
    row("Odd", "#5", "Return", "5", 0);
    row("Odd", "#5", "Up Return", "5");
    row("Secret", "#", "'12 Return", "12");
    row("Secret", "#", "'1 Backspace Return", "0", 0);
    row("Exposure", "#20000.00us", "Return", "20000.001", 0);
    row("Exposure", "#20000.00us", "'2,5e3 Return", "2500");
    row("Exposure", "#20000.00us", "Up Tab", "21000.001");
    row("Exposure", "#20000.00us", "'x1e Tab", "20000.001", 0, "1e is not a number.");
    row("Stepped", "#1.0", "Up Up Up Return", "2");
    row("Wide", "#1.5e+300", "'-1.7976931348623157e308 Return", "-1.7976931348623157e+308");
    row("Rate", "25.0{12.5,25.0}", "Up Return", "12.5");
    row("Flag", "False{False,True}", "Down Return", "1");
    row("Flag", "False{False,True}", "'t Escape", "1"); // committed at once
    row("Arm", "{False,True}", "'t Escape", "1");
    row("Mode", "Switched off{Switched off,Later*,On}", "Down Return", "On");
    row("Mode", "Switched off{Switched off,Later*,On}", "Tab", "Off", 0);
    row("Label", "\"cam\"", "'\u00e4\u00f6\u00fc Return", "\u00e4\u00f6");
    row("Label", "\"cam\"", "Backspace Return", "");
    row("Password", "\"\"", "'abc Return", "abc");
    row("Reset", "[Execute]", "Space Space", "", 2);
    row("Reset", "[Execute]", "Tab", "", 0);
}

void TestGenParamDelegate::editsEveryType()
{
    QFETCH(const QString, actions);
    Desk desk;
    const QByteArray feature = QByteArray(QTest::currentDataTag()).split(' ').first();
    QTEST(describe(desk.open(feature)), "opened");
    pressKeys(actions);
    QCoreApplication::processEvents();
    QTEST(desk.held(feature), "held");
    QTEST(desk.writes.size(), "writes");
    QCOMPARE(desk.errors, QStringList());
    QTEST(desk.note(), "note");
}

void TestGenParamDelegate::tellsRefusedWrites()
{
    Desk desk;
    desk.open("Refused");
    pressKeys("'9 Return");
    QTRY_COMPARE(desk.note(), QStringLiteral("Not while streaming"));
    QCOMPARE(desk.errors, QStringList("Refused: Not while streaming"));
    QCOMPARE(desk.shown("Refused"), QStringLiteral("5"));
    QCOMPARE(desk.editor(), nullptr);

    desk.open("Exposure");
    pressKeys("'5 Tab");
    QVERIFY(desk.note().contains("10"));
}

void TestGenParamDelegate::showsWhatTheCameraMadeOfAValue()
{
    Desk desk;
    for (const auto& [feature, typed, held] :
         {std::make_tuple("Refused", "'8", "5"), std::make_tuple("Rounded", "'47", "40")}) {
        QWidget* editor = desk.open(feature);
        pressKeys(typed);
        emit desk.delegate.commitData(editor); // and left open
        QCOMPARE(describe(editor), '#' + QString(held));
        QCOMPARE(desk.shown(feature), QString(held));
    }
}

void TestGenParamDelegate::runsACommandOncePerClick()
{
    Desk desk;
    QCOMPARE(desk.shown("Count"), QStringLiteral("0"));
    QTest::mouseClick(desk.open("Reset"), Qt::LeftButton);
    QCOMPARE(desk.written(), QStringLiteral("Reset"));
    QCOMPARE(desk.shown("Count"), QStringLiteral("8"));
    desk.view.setFocus(); // leaving the button must not run it again
    QCOMPARE(desk.writes.size(), 1);
    QWidget* const viewport = desk.view.viewport();
    const QPoint cell = desk.view.visualRect(desk.cell("Reset")).center();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, cell);
    QCOMPARE(desk.writes.size(), 2);
    QTest::mouseClick(viewport, Qt::RightButton, {}, cell);
    QTest::mousePress(viewport, Qt::LeftButton, {}, cell);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, {1, 1}); // dragged off the button
    QCOMPARE(desk.writes.size(), 2);
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, cell);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, cell);
    QCOMPARE(desk.writes.size(), 3);
    QCOMPARE(desk.editor(), nullptr);
}

void TestGenParamDelegate::showsABusyCommand()
{
    Desk desk;
    auto* button = qobject_cast<QPushButton*>(desk.open("Calibrate"));
    QVERIFY(button);
    button->click();
    QCOMPARE(button->text(), QStringLiteral("Executing..."));
    QCOMPARE(desk.shown("Calibrate"), QStringLiteral("Executing..."));
    button->click(); // in vain
    QCOMPARE(desk.written(), QStringLiteral("Calibrate"));
    desk.isDone = true;
    QTRY_COMPARE(button->text(), QStringLiteral("Execute"));
    QVERIFY(!desk.cell("Calibrate").data(GenParamTreeModel::BusyRole).toBool());
}

void TestGenParamDelegate::keepsWhatIsTypedThroughChanges()
{
    Desk desk;
    // An attempt to confirm what is not complete yet does not give it up.
    QWidget* editor = desk.open("GevPersistentIPAddress");
    pressKeys("'10.0.0 Return");
    desk.map->assign("GevPersistentIPAddress", int64_t{1});
    QCOMPARE(describe(editor), QStringLiteral("\"10.0.0\""));
    pressKeys("Escape");

    editor = desk.open("Width");
    pressKeys("'12");
    desk.map->assign("Whole", int64_t{4});
    desk.map->assign("Width", int64_t{100});
    desk.refresh("Width");
    desk.proxy.setFilterRegularExpression("W");
    QCOMPARE(desk.editor(), editor);
    QCOMPARE(describe(editor), QStringLiteral("#12px"));
    pressKeys("'0 Return");
    QTRY_COMPARE(desk.held("Width"), QStringLiteral("120"));

    // A filter that takes the cell away takes the editor along, and nothing is written.
    desk.open("Width");
    pressKeys("'64");
    desk.proxy.setFilterRegularExpression("Hex");
    QCoreApplication::processEvents();
    QCOMPARE(desk.written(), QStringLiteral("Width"));
}

void TestGenParamDelegate::followsTheCameraWhileNothingIsTyped()
{
    Desk desk;
    QWidget* editor = desk.open("Width");
    desk.map->assign("Width", int64_t{100});
    QCOMPARE(describe(editor), QStringLiteral("#100px"));
    editor = desk.open("Mode");
    desk.map->assign("Mode", int64_t{3});
    QCOMPARE(describe(editor), QStringLiteral("On{Switched off,Later*,On}"));
    desk.map->setAccessMode("EnumEntry_Mode_Later", GenApi::RW);
    QCOMPARE(describe(editor), QStringLiteral("On{Switched off,Later,On}"));
    desk.map->assign("Mode", int64_t{9}); // no entry has this value
    QVERIFY(describe(editor).startsWith('{'));
    for (const char* feature : {"Guest", "Weight"}) {
        desk.map->assign("Room", int64_t{4});
        editor = desk.open(feature);
        desk.map->assign("Room", int64_t{6}); // the limit: the value itself stays
        pressKeys("Up Up Up Up");
        QVERIFY2(describe(editor).startsWith("#6"), qPrintable(describe(editor)));
        pressKeys("Escape");
    }
    QCOMPARE(desk.written(), QString());
}

void TestGenParamDelegate::startsEmptyWithoutAValue()
{
    Desk desk;
    const auto failOnce = [&desk] {
        desk.faults.throwAt(0, FaultInjector::allFaults().front());
        desk.refresh("Label");
    };
    desk.faults.setFilter([](const char* call, const GenApi::INode* node) {
        return qstrcmp(call, "GetValue") == 0 && node && node->GetName() == "Label";
    });
    failOnce();
    QCOMPARE(desk.shown("Label"), QStringLiteral("ERROR"));
    QWidget* editor = desk.open("Label");
    QCOMPARE(describe(editor), QStringLiteral("\"\""));
    desk.refresh("Label");
    QCOMPARE(describe(editor), QStringLiteral("\"cam\""));
    failOnce();
    QCOMPARE(describe(editor), QStringLiteral("\"\""));
}

void TestGenParamDelegate::givesUpWhenTheFeatureBecomesReadOnly()
{
    Desk desk;
    desk.open("Width");
    pressKeys("'128");
    desk.map->setAccessMode("Width", GenApi::RO);
    QTRY_COMPARE(desk.editor(), nullptr);
    QCOMPARE(desk.note(), QStringLiteral("The feature cannot be changed at the moment."));
    QCOMPARE(desk.written(), QString());
}

void TestGenParamDelegate::outlivesItsNodeMap()
{
    for (const char* feature : {"Width", "Exposure", "Mode", "Label", "Reset"}) {
        Desk desk;
        const QPointer<QWidget> editor = desk.open(feature);
        pressKeys("'1");
        desk.writes.clear();
        desk.model.detach();
        desk.map.reset();
        QTRY_VERIFY(!editor);
        QCOMPARE(desk.writes.size(), 0);
    }
}

void TestGenParamDelegate::survivesEveryFault()
{
    const auto& faults = FaultInjector::allFaults();
    for (const char* feature : {"Width", "Binning", "GevPersistentIPAddress", "Exposure", "Rate", "Flag",
                                "Mode", "Label", "Reset"}) {
        Desk desk;
        desk.faults.setFilter([feature](const char*, const GenApi::INode* node) {
            return node && QString::fromUtf8(node->GetName().c_str()).contains(QLatin1String(feature));
        });
        bool hasFailed = true;
        int call = 0;
        for (; hasFailed; ++call) {
            desk.refresh(feature);
            desk.faults.throwAt(call, faults.at(static_cast<size_t>(call) % faults.size()));
            if (desk.open(feature))
                pressKeys("Up");
            if (desk.editor())
                pressKeys("Return Escape");
            QCoreApplication::processEvents();
            hasFailed = desk.faults.faultCount() > 0;
            desk.faults.stop();
        }
        QVERIFY2(call > 3, feature);
        // Whatever failed: after the next look the cell shows what the camera holds.
        desk.refresh(feature);
        QVERIFY2(desk.shown(feature) != "ERROR", feature);
    }
}

void TestGenParamDelegate::fallsBackToTheStandardEditor()
{
    Desk desk;
    QVERIFY(!desk.cell("Bytes").data(Qt::UserRole + 1).value<QWidget*>());
    QCOMPARE(describe(desk.open("Bytes")), QStringLiteral("\"\""));
    pressKeys("'1 Return");
    QTRY_VERIFY(!desk.note().isEmpty());
    QCOMPARE(QByteArray(QMetaType::typeName(desk.cell("Width").data(Qt::UserRole + 1).userType())),
             QByteArray("ControlData"));
    QVERIFY(QMetaType::type("VariantData") != QMetaType::UnknownType);
}

ZETO_TEST_MAIN(TestGenParamDelegate)
#include "tst_genparamdelegate.moc"
