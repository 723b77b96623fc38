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
    auto& splitter = browser.child<QSplitter>("splitter");
    browser.view.setVisibility(ZetoGui::Expert);
    for (const char* category : {"Analog Control", "LUT", "Transport"})
        browser.tree().expand(browser.row(category));
    browser.tree().setColumnWidth(0, 123);
    const QByteArray state = browser.view.saveState();
    QVERIFY2(state.startsWith("Analog Control&lt;Analog Control/LUT&lt;Transport&lt;"
                              "&amp;W123&amp;V1&amp;S000000ff"),
             state);
    const QList<int> sizes = splitter.sizes();

    browser.click("pbCollapseAll");
    browser.view.setVisibility(ZetoGui::Basic);
    browser.tree().setColumnWidth(0, 77);
    splitter.setSizes({200, 200});
    QCOMPARE(browser.expanded(), QString());
    browser.view.loadState(state);
    QCOMPARE(browser.expanded(), QStringLiteral("Analog Control,LUT,Transport"));
    QCOMPARE(browser.tree().columnWidth(0), 123);
    QCOMPARE(browser.view.visibility(), ZetoGui::Expert);
    QCOMPARE(splitter.sizes(), sizes);
}

void TestZetoGenParamTreeView::takesNoHarmFromStates()
{
    Browser browser;
    const QByteArray before = browser.view.saveState();
    const char* const harmless[] = {nullptr,    "",        "Elsewhere&lt;",   "&amp;W0",
                                    "&amp;W-5", "&amp;V3", "&amp;S0123456789"};
    for (const char* state : harmless) {
        browser.view.loadState(state);
        QCOMPARE(QByteArray(browser.view.saveState()), before);
    }
    for (const char* state : {"Control&lt;&amp;Wide", "Control&lt;&amp;W99&amp;Vx"}) {
        QVERIFY_EXCEPTION_THROWN(browser.view.loadState(state), std::invalid_argument);
        QCOMPARE(QByteArray(browser.view.saveState()), before);
    }
}

void TestZetoGenParamTreeView::keepsItsPlaceWhileFiltering()
{
    Browser browser(makeCamera(400));
    browser.click("pbExpandAll");
    browser.select("Feature210");
    browser.tree().scrollTo(browser.tree().currentIndex(), QAbstractItemView::PositionAtCenter);
    const int scroll = browser.tree().verticalScrollBar()->value();
    const QString expanded = browser.expanded();

    QTest::keyClicks(&browser.filter(), "Feature9");
    QVERIFY(!browser.isShown("Feature210"));
    QVERIFY(browser.isShown("Feature95"));
    QCOMPARE(browser.expanded(), QStringLiteral("Category0,Category4"));

    browser.filter().selectAll();
    QTest::keyClick(&browser.filter(), Qt::Key_Delete);
    QCOMPARE(browser.expanded(), expanded);
    QCOMPARE(browser.current(), QStringLiteral("Feature210"));
    QVERIFY(browser.tree().selectionModel()->isSelected(browser.tree().currentIndex()));
    QCOMPARE(browser.tree().verticalScrollBar()->value(), scroll);

    // Who goes elsewhere meanwhile stays there.
    QTest::keyClicks(&browser.filter(), "Feature9");
    browser.select("Feature95");
    browser.filter().clear();
    QCOMPARE(browser.current(), QStringLiteral("Feature95"));
    QVERIFY(
        browser.tree().viewport()->rect().contains(browser.tree().visualRect(browser.tree().currentIndex())));
}

void TestZetoGenParamTreeView::keepsExpansionThroughLevels()
{
    Browser browser;
    auto& level = browser.child<QComboBox>("cbVisibility");
    level.setCurrentIndex(1);
    browser.tree().expand(browser.row("Transport"));
    browser.tree().expand(browser.row("Stream"));
    browser.tree().expand(browser.row("Device Control"));
    browser.select("StreamDelay");
    level.setCurrentIndex(0);
    QCOMPARE(browser.expanded(), QStringLiteral("Device Control"));
    browser.tree().collapse(browser.row("Device Control"));
    level.setCurrentIndex(2);
    QCOMPARE(browser.expanded(), QStringLiteral("Transport,Stream"));
    QCOMPARE(browser.current(), QStringLiteral("StreamDelay"));

    // A single category that the camera implements only now and then.
    browser.camera->setAccessMode("Transport", GenApi::NI);
    QVERIFY(!browser.isShown("Transport"));
    browser.camera->setAccessMode("Transport", GenApi::RO);
    QCOMPARE(browser.expanded(), QStringLiteral("Transport,Stream"));
}

void TestZetoGenParamTreeView::entersTheTreeFromTheFilter()
{
    Browser browser;
    browser.tree().setFocus();
    pressKeys("Ctrl+F");
    QVERIFY(browser.filter().hasFocus());
    pressKeys("'lut Down");
    QVERIFY(browser.tree().hasFocus());
    QCOMPARE(browser.current(), QStringLiteral("LUTEnable")); // which was in two closed categories
    QVERIFY(browser.tree().visualRect(browser.tree().currentIndex()).isValid());

    pressKeys("Ctrl+F 'DeviceT Return");
    QVERIFY(browser.tree().hasFocus());
    QVERIFY(browser.view.isVisible());
    QCOMPARE(browser.current(), QStringLiteral("DeviceTemperature"));
}

void TestZetoGenParamTreeView::clearsTheFilter()
{
    Browser browser;
    browser.filter().setFocus();
    pressKeys("'Gain Escape");
    QCOMPARE(browser.filter().text(), QString());
    QVERIFY(browser.view.isVisible());
    QVERIFY(!browser.child<QToolButton>("clearFilterButton").isEnabled());
    pressKeys("'Gain");
    browser.click("clearFilterButton");
    QVERIFY(browser.isShown("LUTEnable"));
}

void TestZetoGenParamTreeView::showsTheFilterOptionsInForce_data()
{
    QTest::addColumn<QString>("hits"); // of "gain" and "Gain", in this order
    QTest::newRow("options") << "22";
    QTest::newRow("options-c") << "02";
    QTest::newRow("options-w") << "11";
    QTest::newRow("options-cw") << "01";
}

void TestZetoGenParamTreeView::showsTheFilterOptionsInForce()
{
    const QString icon = QTest::currentDataTag();
    const bool isCaseSensitive = icon.contains("-c");
    const bool isWhole = icon.endsWith('w');
    Browser browser;
    auto& button = browser.child<QToolButton>("filterOptionsButton");
    QTest::mouseClick(&button, Qt::LeftButton);
    auto& wholeBox = browser.child<QCheckBox>("checkBoxWhole");
    QTRY_VERIFY(wholeBox.isVisible());
    if (isCaseSensitive)
        QTest::keyClick(&browser.child<QCheckBox>("checkBoxCase"), Qt::Key_Space);
    if (isWhole)
        QTest::keyClick(&wholeBox, Qt::Key_Space);
    QTest::keyClick(&wholeBox, Qt::Key_Escape);
    QVERIFY(!wholeBox.isVisible());
    QVERIFY(browser.view.isVisible());

    const QString path = "://images//" + icon;
    QVERIFY(!pictureOf(button).isNull());
    QCOMPARE(pictureOf(button), QIcon(path + ".png").pixmap(16, 16).toImage());
    QVERIFY(QFile::exists(path + "@2x.png"));

    QString hits;
    for (const char* text : {"gain", "Gain"}) {
        browser.filter().setText(text);
        const QModelIndex category = browser.row("Analog Control");
        hits += QString::number(browser.tree().model()->rowCount(category) - 1); // LUT, a category, stays
    }
    QTEST(hits, "hits");
}

void TestZetoGenParamTreeView::copies()
{
    Browser browser;
    browser.select("DeviceVendorName"); // read-only
    const auto copied = [](const char* keys) {
        pressKeys(keys);
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(copied("Ctrl+C"), QStringLiteral("DeviceVendorName\tVendor"));
    QCOMPARE(copied("Ctrl+Shift+C"), QStringLiteral("Vendor"));
    QCOMPARE(copied("Ctrl+Alt+C"), QStringLiteral("DeviceVendorName"));

    QContextMenuEvent askForMenu(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(browser.tree().viewport(), &askForMenu);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts.append((action->isEnabled() ? "" : "-") + action->text());
    QCOMPARE(texts.join('|'), QStringLiteral("-Edit Value|Copy|Copy Value|Copy Name"));
    menu->close();
}

void TestZetoGenParamTreeView::editsByKeyboard()
{
    Browser browser;
    browser.select("Analog Control");
    pressKeys("Return");
    QCOMPARE(browser.expanded(), QStringLiteral("Analog Control"));
    browser.select("Gain");
    pressKeys("F2 '17");
    QVERIFY(browser.tree().isPersistentEditorOpen(browser.row("Gain", 1)));
    pressKeys("Return");
    QTRY_COMPARE(browser.camera->integer("Gain"), 17);
}

void TestZetoGenParamTreeView::editsAgainAfterAnEditorWasFilteredAway()
{
    Browser browser;
    browser.view.setVisibility(ZetoGui::Expert);
    browser.tree().expandAll();
    browser.select("PacketSize", 1);
    pressKeys("F2 '7");
    QVERIFY(QApplication::focusWidget() != &browser.tree());
    browser.view.setVisibility(ZetoGui::Basic);
    QCoreApplication::processEvents();
    browser.select("Gain", 1);
    pressKeys("F2 '4 Return");
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
    const auto& label = browser.child<QLabel>("whatsThisLabel");
    const QSize size = browser.view.size();
    browser.select("Gain");
    QCOMPARE(label.text(), QStringLiteral("Amplifies <b>all</b> pixels & more."));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    browser.filter().setText("nothing like it");
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
    auto& status = browser.child<QPushButton>("pbStatus");
    const QImage ok = QIcon(QStringLiteral("://images//ok.png")).pixmap(16, 16).toImage();
    const QImage error = QIcon(QStringLiteral("://images//err.png")).pixmap(16, 16).toImage();
    QVERIFY(ok != error);
    QCOMPARE(pictureOf(status), ok);
    QTest::keyClick(&status, Qt::Key_Space);
    auto& text = browser.child<QPlainTextEdit>("textErrors");
    QCOMPARE(text.window()->windowTitle(), QStringLiteral("Gen<i>Cam errors"));
    QCOMPARE(text.toPlainText(), QStringLiteral("No Errors"));

    browser.camera->setAccessHook(throwAccessException);
    browser.tree().expand(browser.row("Analog Control"));
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
    browser.filter().setText("7");
    browser.view.setVisibility(ZetoGui::Guru);
    const auto other = makeCamera(40);
    browser.view.setParams(other.get());
    browser.camera.reset();
    QVERIFY(browser.isShown("Feature17"));
    QVERIFY(!browser.isShown("Feature18"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    browser.view.clearParams();
    QCOMPARE(QByteArray(browser.view.saveState()), QByteArray());
    QVERIFY(!browser.tree().model());
    browser.view.clearParams();
}

ZETO_TEST_MAIN(TestZetoGenParamTreeView)
#include "tst_zetogenparamtreeview.moc"
