#include "nodemapbuilder.h"

#include "testmain.h"

#include <QtTest>

#include <stdexcept>

using namespace ZetoNodeMap;

/// What a builder says is what clients of the interface see.
class TestNodeMapBuilder : public QObject
{
    Q_OBJECT

private slots:
    void states_what_a_feature_says_about_itself();
    void keeps_categories_in_order();
    void reports_references_to_nodes_that_do_not_exist();
};

static QString text(const GenICam::gcstring& text)
{
    return QString::fromUtf8(text.c_str(), static_cast<int>(text.size()));
}

/// The tree below \a category, for example "Analog(Gain,Gamma)".
static QString tree(NodeMap& map, const char* category)
{
    GenApi::FeatureList_t features;
    GenApi::CCategoryPtr(map.GetNode(category))->GetFeatures(features);
    QStringList members;
    for (GenApi::IValue* feature : features) {
        GenApi::INode* node = feature->GetNode();
        const bool isCategory = node->GetPrincipalInterfaceType() == GenApi::intfICategory;
        members += isCategory ? tree(map, node->GetName().c_str()) : text(node->GetName());
    }
    return QLatin1String(category) + QLatin1Char('(') + members.join(QLatin1Char(',')) + QLatin1Char(')');
}

void TestNodeMapBuilder::states_what_a_feature_says_about_itself()
{
    NodeMapBuilder b("Camera");
    b.floating("Gain")
        .displayName("Analog gain")
        .toolTip("tip")
        .description("long")
        .docuUrl("url")
        .eventId("9001")
        .standard()
        .visibility(GenApi::Guru)
        .unit("dB")
        .representation(GenApi::Logarithmic)
        .notation(GenApi::fnFixed, 2)
        .limits(-1.5, 24)
        .increment(0.5)
        .value(3)
        .streamable()
        .deprecated()
        .caching(GenApi::WriteAround)
        .pollingTime(500)
        .alias("GainRaw")
        .access(GenApi::RO);
    b.integer("GainRaw").castAlias("Gain");
    const auto map = b.build();

    GenApi::CFloatPtr gain(map->GetNode("Gain"));
    GenApi::INode& node = *gain->GetNode();
    QStringList texts;
    for (const GenICam::gcstring& each :
         {node.GetDisplayName(), node.GetToolTip(), node.GetDescription(), node.GetDocuURL(),
          node.GetEventID(), node.GetName(true), node.GetDeviceName(), gain->GetUnit(), gain->ToString()})
        texts += text(each);
    QCOMPARE(texts.join(QLatin1Char('|')),
             QStringLiteral("Analog gain|tip|long|url|9001|Std::Gain|Camera|dB|3.00"));
    QCOMPARE(node.GetVisibility(), GenApi::Guru);
    QCOMPARE(node.GetCachingMode(), GenApi::WriteAround);
    QCOMPARE(node.GetPollingTime(), 500);
    QCOMPARE(node.GetAccessMode(), GenApi::RO);
    QVERIFY(node.IsStreamable() && node.IsDeprecated() && node.IsCachable() && !node.IsFeature());
    QCOMPARE(node.GetAlias(), map->GetNode("GainRaw"));
    QCOMPARE(node.GetAlias()->GetCastAlias(), &node);
    QCOMPARE(node.GetPrincipalInterfaceType(), GenApi::intfIFloat);
    QCOMPARE(gain->GetRepresentation(), GenApi::Logarithmic);
    QVERIFY(gain->GetMin() == -1.5 && gain->GetMax() == 24 && gain->GetInc() == 0.5);
    GenICam::gcstring value, attribute;
    QVERIFY(node.GetProperty("Visibility", value, attribute));
    QCOMPARE(text(value), QStringLiteral("Guru"));
    QVERIFY(!node.GetProperty("pError", value, attribute));
}

void TestNodeMapBuilder::keeps_categories_in_order()
{
    NodeMapBuilder b;
    b.integer("Own").in("A");
    b.category("Root").contains("A", "B");
    b.category("B").contains("Shared", "Width");
    b.category("A").contains("Shared");
    b.integer("Shared");
    b.integer("Width");
    b.integer("Hidden");
    b.port("Device");
    const auto map = b.build();

    QCOMPARE(tree(*map, "Root"), QStringLiteral("Root(A(Shared,Own),B(Shared,Width))"));
    QVERIFY(map->GetNode("Shared")->IsFeature());
    QVERIFY(!map->GetNode("Hidden")->IsFeature());
    QVERIFY(!GenApi::CValuePtr(map->GetNode("Device")).IsValid());
    QCOMPARE(map->GetNumNodes(), uint64_t(8));
    QCOMPARE(map->GetNode("Nothing"), static_cast<GenApi::INode*>(nullptr));
}

void TestNodeMapBuilder::reports_references_to_nodes_that_do_not_exist()
{
    const auto declare = [](NodeMapBuilder& b) {
        b.category("Root").contains("Gone", "Width", "Root");
        b.integer("Width").max("WidthMax");
    };
    NodeMapBuilder strict;
    declare(strict);
    try {
        strict.build();
        QFAIL("built with missing nodes");
    } catch (const std::invalid_argument& error) {
        QCOMPARE(QString::fromUtf8(error.what()),
                 QStringLiteral("There are no such nodes: Root -> Gone Width -> WidthMax"));
    }
    NodeMapBuilder tolerant;
    declare(tolerant);
    const auto map = tolerant.build(NodeMapBuilder::MissingNodes::Skip);
    QCOMPARE(map->GetNode("Root")->GetAccessMode(), GenApi::RO); // though it contains itself
    NodeMapBuilder twice;
    twice.integer("Width");
    twice.integer("Width");
    QVERIFY_EXCEPTION_THROWN(twice.build(), std::invalid_argument);
}

ZETO_TEST_MAIN(TestNodeMapBuilder)
#include "tst_nodemapbuilder.moc"
