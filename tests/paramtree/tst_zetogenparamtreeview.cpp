#include "browserfixture.h"

#include "handsonkeys.h"
#include "testmain.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <stdexcept>

using ZetoGui::ZetoGenParamTreeView;

namespace {

/// A browser on the screen over a camera of its own.
struct Browser
{
    explicit Browser(std::unique_ptr<ZetoNodeMap::NodeMap> nodeMap = makeCamera())
        : camera(std::move(nodeMap))
        , view(camera.get())
    {
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }

    QLineEdit& filter() const { return childOf<QLineEdit>(view, "filterLineEdit"); }
    QTreeView& tree() const { return *view.treeView(); }
    void click(const char* button) { childOf<QAbstractButton>(view, button).click(); }
    QString current() const { return tree().currentIndex().siblingAtColumn(0).data().toString(); }
    void select(const QString& name) { tree().setCurrentIndex(rowOf(view, name)); }

    std::unique_ptr<ZetoNodeMap::NodeMap> camera;
    ZetoGenParamTreeView view;
};

QImage pictureOf(const QAbstractButton& button)
{
    return button.icon().pixmap(16, 16).toImage();
}

void throwAccessException(const char* call, const GenApi::INode*)
{
    if (qstrcmp(call, "GetValue") == 0)
        throw ACCESS_EXCEPTION("no <b>answer</b>");
}

} // namespace

class TestZetoGenParamTreeView : public QObject
{
    Q_OBJECT

private slots:
    void restoresASavedState();
    void restoresCategoriesOfAHigherLevel();
    void takesNoHarmFromStates_data();
    void takesNoHarmFromStates();
    void keepsItsPlaceWhileFiltering();
    void keepsExpansionThroughLevels();
    void entersTheTreeFromTheFilter();
    void clearsTheFilter();
    void showsTheFilterOptionsInForce_data();
    void showsTheFilterOptionsInForce();
    void copies();
    void editsByKeyboard();
    void editsAgainAfterAnEditorWasFilteredAway();
    void leavesTheHostWindowOpenOnEscape();
    void describesTheCurrentFeature();
    void listsErrorsWhileTheyLast();
    void keepsTheColumnThatThePersonChose();
    void takesAnotherCamera();
};

void TestZetoGenParamTreeView::restoresASavedState()
{
    Browser browser;
    browser.tree().expand(rowOf(browser.view, QStringLiteral("Analog Control")));
    browser.tree().expand(rowOf(browser.view, QStringLiteral("LUT")));
    browser.tree().setColumnWidth(0, 123);
    browser.view.setVisibility(ZetoGui::Expert);
    const QByteArray state = browser.view.saveState();
    QVERIFY2(state.startsWith("Analog Control&lt;Analog Control/LUT&lt;&amp;W123&amp;V1&amp;S000000ff"),
             state);
    const QList<int> sizes = childOf<QSplitter>(browser.view, "splitter").sizes();

    browser.click("pbCollapseAll");
    browser.view.setVisibility(ZetoGui::Basic);
    browser.tree().setColumnWidth(0, 77);
    childOf<QSplitter>(browser.view, "splitter").setSizes({200, 200});
    QCOMPARE(expandedIn(browser.view), QString());
    browser.view.loadState(state);
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Analog Control,LUT"));
    QCOMPARE(browser.tree().columnWidth(0), 123);
    QCOMPARE(browser.view.visibility(), ZetoGui::Expert);
    QCOMPARE(childOf<QSplitter>(browser.view, "splitter").sizes(), sizes);
}

void TestZetoGenParamTreeView::restoresCategoriesOfAHigherLevel()
{
    Browser browser;
    browser.view.setVisibility(ZetoGui::Guru);
    browser.click("pbExpandAll");
    const QByteArray state = browser.view.saveState();

    Browser fresh;
    fresh.view.loadState(state);
    QCOMPARE(expandedIn(fresh.view), expandedIn(browser.view));
    QCOMPARE(fresh.view.visibility(), ZetoGui::Guru);
}

void TestZetoGenParamTreeView::takesNoHarmFromStates_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("null") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("nothing in it") << QByteArray("Elsewhere&lt;") << false;
    QTest::newRow("width 0") << QByteArray("&amp;W0") << false;
    QTest::newRow("width out of range") << QByteArray("&amp;W-5") << false;
    QTest::newRow("no such level") << QByteArray("&amp;V3") << false;
    QTest::newRow("splitter of another kind") << QByteArray("&amp;S0123456789") << false;
    QTest::newRow("malformed width") << QByteArray("Control&lt;&amp;Wide") << true;
    QTest::newRow("malformed level") << QByteArray("Control&lt;&amp;W99&amp;Vx") << true;
}

void TestZetoGenParamTreeView::takesNoHarmFromStates()
{
    QFETCH(QByteArray, state);
    QFETCH(bool, isRefused);
    Browser browser;
    const QByteArray before = browser.view.saveState();
    bool wasRefused = false;
    try {
        browser.view.loadState(state.isNull() ? nullptr : state.constData());
    } catch (const std::invalid_argument&) {
        wasRefused = true;
    }
    QCOMPARE(wasRefused, isRefused);
    QCOMPARE(QByteArray(browser.view.saveState()), before);
}

void TestZetoGenParamTreeView::keepsItsPlaceWhileFiltering()
{
    Browser browser(makeCamera(400));
    browser.click("pbExpandAll");
    browser.select(QStringLiteral("Feature210"));
    browser.tree().scrollTo(browser.tree().currentIndex(), QAbstractItemView::PositionAtCenter);
    const int scroll = browser.tree().verticalScrollBar()->value();
    const QString expanded = expandedIn(browser.view);

    QTest::keyClicks(&browser.filter(), QStringLiteral("Feature9"));
    QVERIFY(!rowOf(browser.view, QStringLiteral("Feature210")).isValid());
    QVERIFY(rowOf(browser.view, QStringLiteral("Feature95")).isValid());
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Category0,Category4"));

    browser.filter().selectAll();
    QTest::keyClick(&browser.filter(), Qt::Key_Delete);
    QCOMPARE(expandedIn(browser.view), expanded);
    QCOMPARE(browser.current(), QStringLiteral("Feature210"));
    QVERIFY(browser.tree().selectionModel()->isSelected(browser.tree().currentIndex()));
    QCOMPARE(browser.tree().verticalScrollBar()->value(), scroll);

    // Who goes elsewhere meanwhile stays there.
    QTest::keyClicks(&browser.filter(), QStringLiteral("Feature9"));
    browser.select(QStringLiteral("Feature95"));
    browser.filter().clear();
    QCOMPARE(browser.current(), QStringLiteral("Feature95"));
    QVERIFY(
        browser.tree().viewport()->rect().contains(browser.tree().visualRect(browser.tree().currentIndex())));
}

void TestZetoGenParamTreeView::keepsExpansionThroughLevels()
{
    Browser browser;
    auto& level = childOf<QComboBox>(browser.view, "cbVisibility");
    level.setCurrentIndex(1);
    browser.tree().expand(rowOf(browser.view, QStringLiteral("Transport")));
    browser.tree().expand(rowOf(browser.view, QStringLiteral("Stream")));
    browser.tree().expand(rowOf(browser.view, QStringLiteral("Device Control")));
    browser.select(QStringLiteral("StreamDelay"));
    level.setCurrentIndex(0);
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Device Control"));
    browser.tree().collapse(rowOf(browser.view, QStringLiteral("Device Control")));
    level.setCurrentIndex(2);
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Transport,Stream"));
    QCOMPARE(browser.current(), QStringLiteral("StreamDelay"));

    // A single category that the camera implements only now and then.
    browser.camera->setAccessMode("Transport", GenApi::NI);
    QVERIFY(!rowOf(browser.view, QStringLiteral("Transport")).isValid());
    browser.camera->setAccessMode("Transport", GenApi::RO);
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Transport,Stream"));
}

void TestZetoGenParamTreeView::entersTheTreeFromTheFilter()
{
    Browser browser;
    browser.tree().setFocus();
    QTest::keyClick(&browser.tree(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(browser.filter().hasFocus());
    QTest::keyClicks(&browser.filter(), QStringLiteral("lut"));
    QTest::keyClick(&browser.filter(), Qt::Key_Down);
    QVERIFY(browser.tree().hasFocus());
    QCOMPARE(browser.current(), QStringLiteral("LUTEnable")); // which was in two closed categories
    QVERIFY(browser.tree().visualRect(browser.tree().currentIndex()).isValid());

    QTest::keyClick(&browser.tree(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&browser.filter(), QStringLiteral("DeviceT"));
    QTest::keyClick(&browser.filter(), Qt::Key_Return);
    QVERIFY(browser.tree().hasFocus());
    QVERIFY(browser.view.isVisible());
    QCOMPARE(browser.current(), QStringLiteral("DeviceTemperature"));
}

void TestZetoGenParamTreeView::clearsTheFilter()
{
    Browser browser;
    QTest::keyClicks(&browser.filter(), QStringLiteral("Gain"));
    QTest::keyClick(&browser.filter(), Qt::Key_Escape);
    QCOMPARE(browser.filter().text(), QString());
    QVERIFY(browser.view.isVisible());
    QVERIFY(!childOf<QToolButton>(browser.view, "clearFilterButton").isEnabled());

    QTest::keyClicks(&browser.filter(), QStringLiteral("Gain"));
    browser.click("clearFilterButton");
    QVERIFY(rowOf(browser.view, QStringLiteral("LUTEnable")).isValid());
}

void TestZetoGenParamTreeView::showsTheFilterOptionsInForce_data()
{
    QTest::addColumn<bool>("isCaseSensitive");
    QTest::addColumn<bool>("isWhole");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("hits"); // of "gain" and "Gain", in this order
    QTest::newRow("neither") << false << false << QStringLiteral("://images//options.png")
                             << QStringLiteral("22");
    QTest::newRow("case") << true << false << QStringLiteral("://images//options-c.png")
                          << QStringLiteral("02");
    QTest::newRow("whole") << false << true << QStringLiteral("://images//options-w.png")
                           << QStringLiteral("11");
    QTest::newRow("both") << true << true << QStringLiteral("://images//options-cw.png")
                          << QStringLiteral("01");
}

void TestZetoGenParamTreeView::showsTheFilterOptionsInForce()
{
    QFETCH(bool, isCaseSensitive);
    QFETCH(bool, isWhole);
    QFETCH(QString, icon);
    Browser browser;
    auto& button = childOf<QToolButton>(browser.view, "filterOptionsButton");
    QTest::mouseClick(&button, Qt::LeftButton);
    auto& caseBox = childOf<QCheckBox>(browser.view, "checkBoxCase");
    auto& wholeBox = childOf<QCheckBox>(browser.view, "checkBoxWhole");
    QTRY_VERIFY(caseBox.isVisible());
    if (isCaseSensitive)
        QTest::keyClick(&caseBox, Qt::Key_Space);
    if (isWhole)
        QTest::keyClick(&wholeBox, Qt::Key_Space);
    QTest::keyClick(&wholeBox, Qt::Key_Escape);
    QVERIFY(!wholeBox.isVisible());
    QVERIFY(browser.view.isVisible());

    QCOMPARE(pictureOf(button), QIcon(icon).pixmap(16, 16).toImage());
    QVERIFY(!QIcon(icon).pixmap(16, 16).isNull());
    QVERIFY(QFile::exists(QString(icon).replace(QLatin1String(".png"), QLatin1String("@2x.png"))));

    QString hits;
    for (const char* text : {"gain", "Gain"}) {
        browser.filter().setText(QLatin1String(text));
        const QModelIndex category = rowOf(browser.view, QStringLiteral("Analog Control"));
        hits += QString::number(browser.tree().model()->rowCount(category) - 1); // LUT, a category, stays
    }
    QTEST(hits, "hits");
}

void TestZetoGenParamTreeView::copies()
{
    Browser browser;
    browser.tree().setFocus();
    browser.select(QStringLiteral("DeviceVendorName")); // read-only
    QTest::keyClick(&browser.tree(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("DeviceVendorName\tVendor"));
    QTest::keyClick(&browser.tree(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Vendor"));
    QTest::keyClick(&browser.tree(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("DeviceVendorName"));

    QContextMenuEvent askForMenu(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(browser.tree().viewport(), &askForMenu);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts.append((action->isEnabled() ? QString() : QStringLiteral("-")) + action->text());
    QCOMPARE(texts.join(QLatin1Char('|')), QStringLiteral("-Edit Value|Copy|Copy Value|Copy Name"));
    menu->close();
}

void TestZetoGenParamTreeView::editsByKeyboard()
{
    Browser browser;
    browser.tree().setFocus();
    browser.select(QStringLiteral("Analog Control"));
    QTest::keyClick(&browser.tree(), Qt::Key_Return);
    QCOMPARE(expandedIn(browser.view), QStringLiteral("Analog Control"));
    browser.select(QStringLiteral("Gain"));
    QTest::keyClick(&browser.tree(), Qt::Key_F2);
    QWidget* const editor = QApplication::focusWidget();
    QVERIFY(browser.tree().isPersistentEditorOpen(rowOf(browser.view, QStringLiteral("Gain"), 1)));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("17"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(browser.camera->integer("Gain"), 17);
}

void TestZetoGenParamTreeView::editsAgainAfterAnEditorWasFilteredAway()
{
    Browser browser;
    browser.view.setVisibility(ZetoGui::Expert);
    browser.tree().expandAll();
    browser.tree().setCurrentIndex(rowOf(browser.view, QStringLiteral("PacketSize"), 1));
    browser.tree().setFocus();
    pressKeys(QStringLiteral("F2 '7"));
    QVERIFY(QApplication::focusWidget() != &browser.tree());
    browser.view.setVisibility(ZetoGui::Basic);
    QCoreApplication::processEvents();
    browser.tree().setCurrentIndex(rowOf(browser.view, QStringLiteral("Gain"), 1));
    browser.tree().setFocus();
    pressKeys(QStringLiteral("F2 '4 Return"));
    QTRY_COMPARE(browser.camera->text("Gain"), std::string("4"));
    QCOMPARE(browser.camera->text("PacketSize"), std::string("1500"));
}

void TestZetoGenParamTreeView::leavesTheHostWindowOpenOnEscape()
{
    QDialog host;
    QVBoxLayout layout(&host);
    ZetoGenParamTreeView view;
    layout.addWidget(&view);
    host.show();
    view.treeView()->setFocus();
    QTest::keyClick(view.treeView(), Qt::Key_Escape);
    QVERIFY(!view.isHidden());
    QVERIFY(!host.isVisible()); // it is the host's key
}

void TestZetoGenParamTreeView::describesTheCurrentFeature()
{
    Browser browser;
    const auto& label = childOf<QLabel>(browser.view, "whatsThisLabel");
    const QSize size = browser.view.size();
    browser.select(QStringLiteral("Gain"));
    QCOMPARE(label.text(), QStringLiteral("Amplifies <b>all</b> pixels & more."));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    browser.filter().setText(QStringLiteral("nothing like it"));
    QCOMPARE(label.text(), QString());
    browser.filter().clear();
    QVERIFY(!label.text().isEmpty());
    browser.view.clearParams();
    QCOMPARE(label.text(), QString());
    QCOMPARE(browser.view.size(), size);
}

void TestZetoGenParamTreeView::listsErrorsWhileTheyLast()
{
    Browser browser;
    auto& status = childOf<QPushButton>(browser.view, "pbStatus");
    const QImage ok = QIcon(QStringLiteral("://images//ok.png")).pixmap(16, 16).toImage();
    const QImage error = QIcon(QStringLiteral("://images//err.png")).pixmap(16, 16).toImage();
    QVERIFY(ok != error);
    QCOMPARE(pictureOf(status), ok);
    QTest::keyClick(&status, Qt::Key_Space);
    auto& text = childOf<QPlainTextEdit>(browser.view, "textErrors");
    QCOMPARE(text.window()->windowTitle(), QStringLiteral("Gen<i>Cam errors"));
    QCOMPARE(text.toPlainText(), QStringLiteral("No Errors"));

    browser.camera->setAccessHook(throwAccessException);
    browser.tree().expand(rowOf(browser.view, QStringLiteral("Analog Control")));
    QTRY_COMPARE(pictureOf(status), error);
    const QString gain = QStringLiteral("{Gain}{id:1}: no <b>answer</b> \n");
    const QString gainAuto = QStringLiteral("{GainAuto}{id:2}: no <b>answer</b> \n");
    QTRY_COMPARE(text.toPlainText(), gain + gainAuto); // the dialog is open

    browser.camera->setAccessHook(nullptr);
    browser.camera->assign("Gain", 5);
    QTRY_COMPARE(text.toPlainText(), gainAuto);
    browser.view.setParams(browser.camera.get());
    QCOMPARE(pictureOf(status), ok);
    QTRY_COMPARE(text.toPlainText(), QStringLiteral("No Errors"));
}

void TestZetoGenParamTreeView::keepsTheColumnThatThePersonChose()
{
    Browser browser;
    const int viewport = browser.tree().viewport()->width();
    QVERIFY(browser.tree().columnWidth(0) >= viewport / 2 && browser.tree().columnWidth(0) < viewport);
    browser.view.resize(browser.view.width() + 200, browser.view.height());
    QTRY_VERIFY(browser.tree().columnWidth(0) >= viewport / 2 + 100);

    QHeaderView& header = *browser.tree().header();
    const QPoint grip(header.sectionSize(0) - 1, header.height() / 2);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, grip);
    QMouseEvent drag(QEvent::MouseMove, grip - QPoint(90, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(header.viewport(), &drag);
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, grip - QPoint(90, 0));
    const int chosen = browser.tree().columnWidth(0);
    QCOMPARE(chosen, grip.x() + 1 - 90);
    browser.view.resize(browser.view.width() - 150, browser.view.height());
    browser.click("pbExpandAll");
    browser.view.setParams(browser.camera.get());
    QCoreApplication::processEvents();
    QCOMPARE(browser.tree().columnWidth(0), chosen);
}

void TestZetoGenParamTreeView::takesAnotherCamera()
{
    Browser browser;
    browser.filter().setText(QStringLiteral("7"));
    browser.view.setVisibility(ZetoGui::Guru);
    const auto other = makeCamera(40);
    browser.view.setParams(other.get());
    browser.camera.reset();
    QVERIFY(rowOf(browser.view, QStringLiteral("Feature17")).isValid());
    QVERIFY(!rowOf(browser.view, QStringLiteral("Feature18")).isValid());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    browser.view.clearParams();
    QCOMPARE(QByteArray(browser.view.saveState()), QByteArray());
    QVERIFY(!browser.tree().model());
    browser.view.clearParams();
}

ZETO_TEST_MAIN(TestZetoGenParamTreeView)
#include "tst_zetogenparamtreeview.moc"
