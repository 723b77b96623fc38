#include "faultinjector.h"
#include "genparamdelegate.h"
#include "genparamtreemodel.h"
#include "handsonkeys.h"
#include "nodemapbuilder.h"
#include "testmain.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QtTest>

using namespace ZetoNodeMap;

namespace {

constexpr int64_t lowest = std::numeric_limits<int64_t>::min();
constexpr int64_t highest = std::numeric_limits<int64_t>::max();

/// One feature of each type, representation and nuisance.
std::unique_ptr<NodeMap> everyFeature()
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
    b.enumeration("Selector").in("Root").entries({"Red", "Blue"}).selects({"Gain"});
    b.integer("Gain").in("Root").limits(0, 9).valueAt({0}, 1).valueAt({1}, 7);
    b.integer("Count").in("Root").access(GenApi::RO);
    b.integer("Room").in("Root").value(9);
    b.integer("Guest").in("Root").limits(0, "Room").value(3);
    b.floating("Weight").in("Root").notation(GenApi::fnFixed, 1).limits(0, "Room").increment(1).value(3);
    b.command("Reset").in("Root").onExecute([](NodeMap& map) { map.assign("Count", int64_t{8}); });
    return b.build();
}

QString describe(QWidget* editor)
{
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemText(i) +
                         (combo->model()->flags(combo->model()->index(i, 0)) & Qt::ItemIsEnabled
                              ? QString()
                              : QStringLiteral("*"));
        return combo->currentText() + QLatin1Char('{') + items.join(QLatin1Char(',')) + QLatin1Char('}');
    }
    if (auto* button = qobject_cast<QPushButton*>(editor))
        return QLatin1Char('[') + button->text() + QLatin1Char(']');
    if (auto* spinBox = qobject_cast<QAbstractSpinBox*>(editor))
        return QLatin1Char('#') + spinBox->text();
    auto* line = qobject_cast<QLineEdit*>(editor);
    return line ? QLatin1Char('"') + line->text() + QLatin1Char('"') : QStringLiteral("none");
}

/// A tree with the browser's delegate over a node map, and the camera's log of writes.
class Desk
{
public:
    Desk()
        : map(everyFeature())
        , faults(std::make_shared<FaultInjector>())
    {
        map->setAccessHook([this](const char* call, const GenApi::INode* node) {
            static const QStringList writing{"SetValue", "SetIntValue", "FromString", "Execute"};
            if (writing.contains(QLatin1String(call)))
                writes << QString::fromUtf8(node->GetName().c_str());
            faults->enter(call, node);
        });
        model = std::make_unique<GenParamTreeModel>(map.get());
        proxy.setSourceModel(model.get());
        view.setModel(&proxy);
        view.setItemDelegateForColumn(1, &delegate);
        view.resize(500, 700);
        view.show();
        view.activateWindow();
        QObject::connect(
            model.get(), &GenParamTreeModel::errorAppeared, model.get(),
            [this](const QString& name, const QString& reason) { errors << name + ": " + reason; });
    }

    QModelIndex cell(const char* feature) const
    {
        for (int row = 0; row < proxy.rowCount(); ++row)
            if (proxy.index(row, 0).data().toString() == QLatin1String(feature))
                return proxy.index(row, 1);
        return QModelIndex();
    }

    QWidget* editor() const
    {
        QWidget* focus = QApplication::focusWidget();
        return focus && focus->parentWidget() == view.viewport() ? focus : nullptr;
    }

    QWidget* open(const char* feature)
    {
        view.setFocus();
        view.setCurrentIndex(cell(feature));
        pressKeys(QStringLiteral("F2"));
        return editor();
    }

    /// What the camera holds.
    QString held(const char* feature) const
    {
        if (dynamic_cast<GenApi::IFloat*>(map->GetNode(feature)))
            return QVariant(map->number(feature)).toString();
        return dynamic_cast<GenApi::ICommand*>(map->GetNode(feature))
                   ? QString()
                   : QString::fromStdString(map->text(feature));
    }

    QString note() const
    {
        for (QLabel* label : view.viewport()->findChildren<QLabel*>(QStringLiteral("cellNote")))
            if (label->isVisible())
                return label->text();
        return QString();
    }

    std::unique_ptr<NodeMap> map;
    std::shared_ptr<FaultInjector> faults;
    std::unique_ptr<GenParamTreeModel> model;
    QSortFilterProxyModel proxy;
    GenParamDelegate delegate;
    QTreeView view;
    QStringList writes;
    QStringList errors;
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
    void showsSelectedFeaturesAtOnce();
    void keepsWhatIsTypedThroughChanges();
    void followsTheCameraWhileNothingIsTyped();
    void followsLimitsAndChoicesWhileNothingIsTyped();
    void showsNoTextThatCannotBeRead();
    void givesUpWhenTheFeatureBecomesReadOnly();
    void outlivesItsNodeMap();
    void survivesEveryFault();
    void startsEmptyWithoutAValue();
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
    row("Width", "#640px", "'800 Return", "800");
    row("Width", "#640px", "'801 Tab", "800");
    row("Width", "#640px", "'802 Return", "804");
    row("Width", "#640px", "Up Up PgDown Return", "608");
    row("Width", "#640px", "Up Escape", "640", 0);
    row("Width", "#640px", "'9 Escape", "640", 0);
    row("Width", "#640px", "'9 Return", "640", 0, "9 is not a number from 16 to 4096.");
    row("Whole", "#-1", "'-9223372036854775808 Return", "-9223372036854775808");
    row("Whole", "#-1", "'9223372036854775807 Return", "9223372036854775807");
    row("Hex", "#ff", "'FFfe Return", "0xFFFE");
    row("Hex", "#ff", "Up Return", "0x100");
    row("GevPersistentIPAddress", "\"192.168.0.1\"", "'10.0.0.255 Return", "167772415");
    row("GevPersistentIPAddress", "\"192.168.0.1\"", "'10.0.0 Return Escape", "3232235521", 0,
        "\"10.0.0\" is not an IPv4 address.");
    row("GevPersistentIPAddress", "\"192.168.0.1\"", "'10.0.0.256 Return", "167772185");
    row("GevMACAddress", "\"00:11:22:33:44:aa\"", "'aa-bb-cc-dd-ee-01 Tab", "187723572702721");
    row("GevMACAddress", "\"00:11:22:33:44:aa\"", "'00:11 Return Escape", "73588229290", 0,
        "\"00:11\" is not a MAC address.");
    row("Binning", "2{1,2,4}", "Down Return", "4");
    row("Binning", "2{1,2,4}", "Return", "2", 0);
    row("Outside", "#77", "Return", "77", 0);
    row("Secret", "#", "'12 Return", "12");
    row("Secret", "#", "'1 Backspace Return", "0", 0);
    row("Exposure", "#20000.00us", "Return", "20000.001", 0);
    row("Exposure", "#20000.00us", "'20000.1234 Return", "20000.1234");
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
    row("Label", "\"cam\"", "'123456789 Return", "12345");
    row("Label", "\"cam\"", "'\u00e4\u00f6\u00fc Return", "\u00e4\u00f6");
    row("Label", "\"cam\"", "Backspace Return", "");
    row("Password", "\"\"", "'abc Return", "abc");
    row("Password", "\"\"", "Return", "", 0);
    row("Reset", "[Execute]", "Space Space", "", 2);
    row("Reset", "[Execute]", "Return", "");
    row("Reset", "[Execute]", "Tab", "", 0);
}

void TestGenParamDelegate::editsEveryType()
{
    QFETCH(const QString, actions);
    Desk desk;
    const QByteArray feature = QByteArray(QTest::currentDataTag()).split(' ').first();
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QTEST(describe(desk.open(feature)), "opened");
    pressKeys(actions);
    QCoreApplication::processEvents();
    QTEST(desk.held(feature), "held");
    QTEST(desk.writes.size(), "writes");
    QCOMPARE(desk.errors.join(QLatin1Char('\n')), QString());
    QTEST(desk.note(), "note");
}

void TestGenParamDelegate::tellsRefusedWrites()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    desk.open("Refused");
    pressKeys(QStringLiteral("'9 Return"));
    QTRY_COMPARE(desk.note(), QStringLiteral("Not while streaming"));
    QCOMPARE(desk.errors.join(QLatin1Char('\n')), QStringLiteral("Refused: Not while streaming"));
    QCOMPARE(desk.cell("Refused").data().toString(), QStringLiteral("5"));
    QCOMPARE(desk.editor(), nullptr);

    QCOMPARE(describe(desk.open("Refused")), QStringLiteral("#5"));
    // Left open, the field goes back to what the camera holds.
    pressKeys(QStringLiteral("'8"));
    emit desk.delegate.commitData(desk.editor());
    QCOMPARE(describe(desk.editor()), QStringLiteral("#5"));

    desk.open("Exposure");
    pressKeys(QStringLiteral("'5 Tab"));
    QVERIFY(desk.note().contains(QLatin1String("10")));
}

void TestGenParamDelegate::showsWhatTheCameraMadeOfAValue()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QWidget* editor = desk.open("Rounded");
    pressKeys(QStringLiteral("'47"));
    emit desk.delegate.commitData(editor);
    QCOMPARE(describe(editor), QStringLiteral("#40"));
    QCOMPARE(desk.cell("Rounded").data().toString(), QStringLiteral("40"));
}

void TestGenParamDelegate::runsACommandOncePerClick()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QCOMPARE(desk.cell("Count").data().toString(), QStringLiteral("0"));
    QWidget* button = desk.open("Reset");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(desk.writes.join(QLatin1Char(' ')), QStringLiteral("Reset"));
    QCOMPARE(desk.cell("Count").data().toString(), QStringLiteral("8"));
    desk.view.setFocus(); // leaving the button must not run it again
    QCOMPARE(desk.writes.size(), 1);
    const QPoint cell = desk.view.visualRect(desk.cell("Reset")).center();
    QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, cell);
    QCOMPARE(desk.writes.size(), 2);
    QTest::mouseClick(desk.view.viewport(), Qt::RightButton, {}, cell);
    QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, {1, 1}); // dragged off the button
    QCOMPARE(desk.writes.size(), 2);
    QTest::mouseDClick(desk.view.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, cell);
    QCOMPARE(desk.writes.size(), 3);
    QCOMPARE(desk.editor(), nullptr);
}

void TestGenParamDelegate::showsABusyCommand()
{
    bool isDone = false;
    NodeMapBuilder b;
    b.category("Root");
    b.integer("Result").in("Root");
    b.command("Calibrate").in("Root").doneWhen([&isDone] { return isDone; }).invalidates({"Result"});
    const auto map = b.build();
    GenParamTreeModel model(map.get());
    const QModelIndex cell = model.index(1, 1);
    QTreeView view;
    GenParamDelegate delegate;
    view.setModel(&model);
    view.setItemDelegateForColumn(1, &delegate);
    view.openPersistentEditor(cell);
    auto* button = view.viewport()->findChild<QPushButton*>();
    QVERIFY(button);

    button->click();
    QCOMPARE(button->text(), QStringLiteral("Executing..."));
    QCOMPARE(cell.data().toString(), QStringLiteral("Executing..."));
    QVERIFY(cell.data(GenParamTreeModel::BusyRole).toBool());
    button->click(); // in vain
    isDone = true;
    QTRY_COMPARE(button->text(), QStringLiteral("Execute"));
    QVERIFY(!cell.data(GenParamTreeModel::BusyRole).toBool());
}

void TestGenParamDelegate::showsSelectedFeaturesAtOnce()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QCOMPARE(desk.cell("Gain").data().toString(), QStringLiteral("1"));
    desk.open("Selector");
    pressKeys(QStringLiteral("Down"));
    QCOMPARE(desk.cell("Gain").data().toString(), QStringLiteral("7"));
}

void TestGenParamDelegate::keepsWhatIsTypedThroughChanges()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    // An attempt to confirm what is not complete yet does not give it up.
    QWidget* editor = desk.open("GevPersistentIPAddress");
    pressKeys(QStringLiteral("'10.0.0 Return"));
    desk.map->assign("GevPersistentIPAddress", int64_t{1});
    QCOMPARE(describe(editor), QStringLiteral("\"10.0.0\""));
    pressKeys(QStringLiteral("Escape"));

    editor = desk.open("Width");
    pressKeys(QStringLiteral("'12"));
    desk.map->assign("Whole", int64_t{4});
    desk.map->assign("Width", int64_t{100});
    desk.model->refresh(100, {desk.model->index(0, 1)});
    desk.proxy.setFilterRegularExpression(QStringLiteral("W"));
    QCOMPARE(desk.editor(), editor);
    QCOMPARE(describe(editor), QStringLiteral("#12px"));
    pressKeys(QStringLiteral("'0 Return"));
    QTRY_COMPARE(desk.map->text("Width"), std::string("120"));

    // A filter that takes the cell away takes the editor along, and nothing is written.
    desk.open("Width");
    pressKeys(QStringLiteral("'64"));
    desk.proxy.setFilterRegularExpression(QStringLiteral("Hex"));
    QCoreApplication::processEvents();
    QCOMPARE(desk.writes.join(QLatin1Char(' ')), QStringLiteral("Width"));
}

void TestGenParamDelegate::followsTheCameraWhileNothingIsTyped()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QWidget* editor = desk.open("Width");
    desk.map->assign("Width", int64_t{100});
    QCOMPARE(describe(editor), QStringLiteral("#100px"));
    editor = desk.open("Mode");
    desk.map->assign("Mode", int64_t{3});
    QCOMPARE(describe(editor), QStringLiteral("On{Switched off,Later*,On}"));
    desk.map->assign("Mode", int64_t{9}); // no entry has this value
    QVERIFY(describe(editor).startsWith(QLatin1Char('{')));
    QCOMPARE(desk.writes.join(QLatin1Char(' ')), QString());
}

void TestGenParamDelegate::followsLimitsAndChoicesWhileNothingIsTyped()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QWidget* editor = desk.open("Mode");
    desk.map->setAccessMode("EnumEntry_Mode_Later", GenApi::RW);
    QCOMPARE(describe(editor), QStringLiteral("Switched off{Switched off,Later,On}"));
    for (const char* feature : {"Guest", "Weight"}) {
        desk.map->assign("Room", int64_t{4});
        editor = desk.open(feature);
        desk.map->assign("Room", int64_t{6}); // the value itself stays
        pressKeys(QStringLiteral("Up Up Up Up"));
        QVERIFY2(describe(editor).startsWith(QLatin1String("#6")), qPrintable(describe(editor)));
        pressKeys(QStringLiteral("Escape"));
    }
    QCOMPARE(desk.writes.join(QLatin1Char(' ')), QString());
}

void TestGenParamDelegate::showsNoTextThatCannotBeRead()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QWidget* editor = desk.open("Label");
    QCOMPARE(describe(editor), QStringLiteral("\"cam\""));
    const QModelIndex label = desk.proxy.mapToSource(desk.cell("Label"));
    desk.faults->setFilter([](const char* call, const GenApi::INode* node) {
        return qstrcmp(call, "GetValue") == 0 && node && node->GetName() == "Label";
    });
    desk.faults->throwAt(0, FaultInjector::allFaults().front());
    desk.model->refresh(0, {label});
    QCOMPARE(describe(editor), QStringLiteral("\"\""));
    desk.model->refresh(0, {label});
    QCOMPARE(describe(editor), QStringLiteral("\"cam\""));
}

void TestGenParamDelegate::givesUpWhenTheFeatureBecomesReadOnly()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    desk.open("Width");
    pressKeys(QStringLiteral("'128"));
    desk.map->setAccessMode("Width", GenApi::RO);
    QTRY_COMPARE(desk.editor(), nullptr);
    QCOMPARE(desk.note(), QStringLiteral("The feature cannot be changed at the moment."));
    QCOMPARE(desk.writes.join(QLatin1Char(' ')), QString());
}

void TestGenParamDelegate::outlivesItsNodeMap()
{
    for (const char* feature : {"Width", "Exposure", "Mode", "Label", "Reset"}) {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowActive(&desk.view));
        const QPointer<QWidget> editor = desk.open(feature);
        pressKeys(QStringLiteral("'1"));
        desk.writes.clear();
        desk.model->detach();
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
        QVERIFY(QTest::qWaitForWindowActive(&desk.view));
        desk.faults->setFilter([feature](const char*, const GenApi::INode* node) {
            return node && QString::fromUtf8(node->GetName().c_str()).contains(QLatin1String(feature));
        });
        bool hasFailed = true;
        int call = 0;
        for (; hasFailed; ++call) {
            desk.model->refresh(0, {desk.proxy.mapToSource(desk.cell(feature))});
            desk.faults->throwAt(call, faults.at(static_cast<size_t>(call) % faults.size()));
            if (desk.open(feature))
                pressKeys(QStringLiteral("Up"));
            if (desk.editor())
                pressKeys(QStringLiteral("Return Escape"));
            QCoreApplication::processEvents();
            hasFailed = desk.faults->faultCount() > 0;
            desk.faults->stop();
        }
        QVERIFY2(call > 3, feature);
        // Whatever failed: after the next look the cell shows what the camera holds.
        desk.model->refresh(0, {desk.proxy.mapToSource(desk.cell(feature))});
        QVERIFY2(desk.cell(feature).data().toString() != QLatin1String("ERROR"), feature);
    }
}

void TestGenParamDelegate::startsEmptyWithoutAValue()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    desk.faults->setFilter([](const char* call, const GenApi::INode* node) {
        return qstrcmp(call, "GetValue") == 0 && node && node->GetName() == "Label";
    });
    desk.faults->throwAt(0, FaultInjector::allFaults().front());
    desk.model->refresh(0, {desk.proxy.mapToSource(desk.cell("Label"))});
    QCOMPARE(desk.cell("Label").data().toString(), QStringLiteral("ERROR"));
    QCOMPARE(describe(desk.open("Label")), QStringLiteral("\"\""));
}

void TestGenParamDelegate::fallsBackToTheStandardEditor()
{
    Desk desk;
    QVERIFY(QTest::qWaitForWindowActive(&desk.view));
    QVERIFY(!desk.cell("Bytes").data(Qt::UserRole + 1).value<QWidget*>());
    QCOMPARE(describe(desk.open("Bytes")), QStringLiteral("\"\""));
    pressKeys(QStringLiteral("'1 Return"));
    QTRY_VERIFY(!desk.note().isEmpty());
    QCOMPARE(QByteArray(QMetaType::typeName(desk.cell("Width").data(Qt::UserRole + 1).userType())),
             QByteArray("ControlData"));
    QVERIFY(QMetaType::type("VariantData") != QMetaType::UnknownType);
}

ZETO_TEST_MAIN(TestGenParamDelegate)
#include "tst_genparamdelegate.moc"
