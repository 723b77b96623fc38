#include "treeviewstate.h"

#include "testmain.h"

#include <QtTest>

#include <stdexcept>

namespace {

constexpr int none = -1;

} // namespace

class TestTreeViewState : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsThere();
    void refusesMalformedNumbers();
    void findsPaths();
    void writes();
};

void TestTreeViewState::readsWhatIsThere()
{
    const auto check = [](const char* text, int width, int visibility, const QByteArray& splitter) {
        const TreeViewState state = TreeViewState::fromText(text);
        QCOMPARE(state.nameWidth, width);
        QCOMPARE(state.visibility.value_or(none), visibility);
        QCOMPARE(state.splitter, splitter);
    };
    check("A&lt;A/B&lt;&amp;W250&amp;V1&amp;S00ff", 250, 1, QByteArray("\0\xff", 2));
    check("", 0, none, "");
    check("A&lt;", 0, none, "");
    check("&amp;W12x34", 12, none, "");
    check("&amp;W 12", 12, none, "");
    check("&amp;W-3&amp;V-2", -3, -2, "");
    check("&amp;W7&amp;V", 7, none, "");
    check("&amp;V2&amp;S", 0, 2, "");
    check("&amp;Wide&lt;&amp;W9&amp;V0&amp;S", 9, 0, ""); // a category named like a mark
    check("A<&W250&V1&S00", 0, none, "");                 // entities are not decoded
}

void TestTreeViewState::refusesMalformedNumbers()
{
    const auto errorOf = [](const char* text) {
        try {
            TreeViewState::fromText(text);
        } catch (const std::invalid_argument& exception) {
            return QByteArray(exception.what());
        } catch (const std::out_of_range& exception) {
            return QByteArray(exception.what());
        }
        return QByteArray();
    };
    for (const char* text : {"A&lt;&amp;W&amp;V1", "&amp;W", "&amp;Wxyz", "&amp;W1&amp;VGuru"})
        QCOMPARE(errorOf(text), QByteArray("invalid stoi argument"));
    for (const char* text : {"&amp;W2147483648", "&amp;V-99999999999999999999"})
        QCOMPARE(errorOf(text), QByteArray("stoi argument out of range"));
}

void TestTreeViewState::findsPaths()
{
    const auto state =
        TreeViewState::fromText("Analog Control&lt;Analog Control/LUT&lt;x&lt;y&lt;AA&lt;A&lt;&amp;W1");
    for (const char* path : {"Analog Control", "Analog Control/LUT", "x&lt;y", "A"})
        QVERIFY2(state.isExpanded(path), path);
    for (const char* path : {"Gain", "Control", "LUT", "Analog"})
        QVERIFY2(!state.isExpanded(path), path);
}

void TestTreeViewState::writes()
{
    TreeViewState state;
    state.addExpanded(QStringLiteral("A"));
    state.addExpanded(QString::fromUtf8("A/Gr\xc3\xbc\xc3\x9f"));
    state.nameWidth = 250;
    state.visibility = 2;
    state.splitter = QByteArray("\0\xAB", 2);
    QCOMPARE(state.toText(), QByteArray("A&lt;A/Gr\xc3\xbc\xc3\x9f&lt;&amp;W250&amp;V2&amp;S00ab"));
    QVERIFY(TreeViewState::fromText(state.toText()).isExpanded(QString::fromUtf8("A/Gr\xc3\xbc\xc3\x9f")));
}

ZETO_TEST_MAIN(TestTreeViewState)
#include "tst_treeviewstate.moc"
