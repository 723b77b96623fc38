#include "treeviewstate.h"

#include "testmain.h"

#include <QtTest>

#include <stdexcept>

class TestTreeViewState : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatIsThere_data();
    void readsWhatIsThere();
    void refusesMalformedNumbers_data();
    void refusesMalformedNumbers();
    void findsPaths_data();
    void findsPaths();
    void writes();
};

void TestTreeViewState::readsWhatIsThere_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("visibility"); // -1: none
    QTest::addColumn<QByteArray>("splitter");

    QTest::newRow("everything") << QByteArray("A&lt;A/B&lt;&amp;W250&amp;V1&amp;S00ff") << 250 << 1
                                << QByteArray("\0\xff", 2);
    QTest::newRow("nothing") << QByteArray() << 0 << -1 << QByteArray();
    QTest::newRow("paths only") << QByteArray("A&lt;") << 0 << -1 << QByteArray();
    QTest::newRow("number ends at the first other character")
        << QByteArray("&amp;W12x34") << 12 << -1 << QByteArray();
    QTest::newRow("blank before a number") << QByteArray("&amp;W 12") << 12 << -1 << QByteArray();
    QTest::newRow("sign") << QByteArray("&amp;W-3&amp;V-1") << -3 << -1 << QByteArray();
    QTest::newRow("level without a text") << QByteArray("&amp;W7&amp;V") << 7 << -1 << QByteArray();
    QTest::newRow("splitter without a text") << QByteArray("&amp;V2&amp;S") << 0 << 2 << QByteArray();
    QTest::newRow("category named like a mark")
        << QByteArray("&amp;Wide&lt;&amp;W9&amp;V0&amp;S") << 9 << 0 << QByteArray();
    QTest::newRow("entities are not decoded") << QByteArray("A<&W250&V1&S00") << 0 << -1 << QByteArray();
}

void TestTreeViewState::readsWhatIsThere()
{
    QFETCH(QByteArray, text);
    const TreeViewState state = TreeViewState::fromText(text);
    QTEST(state.nameWidth, "width");
    QTEST(state.visibility.value_or(-1), "visibility");
    QTEST(state.splitter, "splitter");
}

void TestTreeViewState::refusesMalformedNumbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("error");

    const QByteArray invalid("invalid stoi argument");
    const QByteArray outOfRange("stoi argument out of range");
    QTest::newRow("width without a number") << QByteArray("A&lt;&amp;W&amp;V1") << invalid;
    QTest::newRow("width at the end") << QByteArray("&amp;W") << invalid;
    QTest::newRow("width of letters") << QByteArray("&amp;Wxyz") << invalid;
    QTest::newRow("width above 32 bits") << QByteArray("&amp;W2147483648") << outOfRange;
    QTest::newRow("level of letters") << QByteArray("&amp;W1&amp;VGuru") << invalid;
    QTest::newRow("level below 32 bits") << QByteArray("&amp;V-99999999999999999999") << outOfRange;
}

void TestTreeViewState::refusesMalformedNumbers()
{
    QFETCH(QByteArray, text);
    QByteArray error;
    try {
        TreeViewState::fromText(text);
    } catch (const std::invalid_argument& exception) {
        error = exception.what();
    } catch (const std::out_of_range& exception) {
        error = exception.what();
    }
    QTEST(error, "error");
}

void TestTreeViewState::findsPaths_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("expanded");

    const QByteArray text("Analog Control&lt;Analog Control/LUT&lt;x&lt;y&lt;&amp;W1");
    QTest::newRow("first") << text << QStringLiteral("Analog Control") << true;
    QTest::newRow("sub-category") << text << QStringLiteral("Analog Control/LUT") << true;
    QTest::newRow("absent") << text << QStringLiteral("Gain") << false;
    QTest::newRow("end of another name") << text << QStringLiteral("Control") << false;
    QTest::newRow("end of another path") << text << QStringLiteral("LUT") << false;
    QTest::newRow("start of another name") << text << QStringLiteral("Analog") << false;
    QTest::newRow("name with a separator in it") << text << QStringLiteral("x&lt;y") << true;
    QTest::newRow("behind its own ending") << QByteArray("AA&lt;A&lt;") << QStringLiteral("A") << true;
}

void TestTreeViewState::findsPaths()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, path);
    QTEST(TreeViewState::fromText(text).isExpanded(path), "expanded");
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
