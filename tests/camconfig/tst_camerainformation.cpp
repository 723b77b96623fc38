#include "camerainformation.h"
#include "featuretext.h"
#include "frameexcursion.h"
#include "framestate.h"
#include "timebudget.h"

#include "genparamerror.h"
#include "nodemaparray.h"
#include "nodemapbuilder.h"
#include "testmain.h"

#include <QtTest>

using namespace std::chrono_literals;
using ZetoGui::CameraInformation;
using ZetoGui::FrameState;
using ZetoGui::TimeBudget;
using ZetoNodeMap::NodeMap;
using ZetoNodeMap::NodeMapBuilder;

namespace {

const std::vector<std::string> frameFeatures = {"Width", "Height", "CurrentExposureTime", "CurrentFrameTime"};

enum Lacks
{
    Nothing,
    Selector,
    Height,
    Everything
};

/// Frame A is 4000x3000 at 100 us of 40000, Frame B 2000x1500 at 50 us of 20000.
std::unique_ptr<NodeMap> makeCamera(Lacks lacks)
{
    NodeMapBuilder b;
    b.category("Root");
    if (lacks == Everything)
        return b.build();
    b.integer("Width").in("Root").value(4000).valueAt({1}, 2000);
    if (lacks != Height)
        b.integer("Height").in("Root").value(3000).valueAt({1}, 1500);
    b.integer("CurrentExposureTime").in("Root").value(100).valueAt({1}, 50);
    b.integer("CurrentFrameTime").in("Root").value(40000).valueAt({1}, 20000);
    b.integer("CurrentTemperature").in("Root").value(42);
    b.enumeration("FrameMode").in("Root").entries({"FrameA", "FrameB", "DualVideo"});
    if (lacks != Selector) {
        std::vector<std::string> selected = frameFeatures;
        if (lacks == Height)
            selected.erase(selected.begin() + 1);
        b.enumeration("FrameAB_Selector").in("Root").entries({"FrameA", "FrameB"}).selects(selected);
    }
    return b.build();
}

QString textOf(std::optional<int64_t> value)
{
    return value ? QString::number(*value) : QStringLiteral("-");
}

QString textOf(const ZetoGui::FrameInformation& frame)
{
    return textOf(frame.width) + QLatin1Char('x') + textOf(frame.height) + QLatin1Char(' ') +
           textOf(frame.exposureTime) + QLatin1Char('/') + textOf(frame.frameTime);
}

QString framesOf(const CameraInformation& information)
{
    return textOf(information.frameA()) + QLatin1Char(' ') + textOf(information.frameB());
}

/// A camera, what is asked of it, and a clock that its accesses make go on.
class Camera
{
public:
    explicit Camera(Lacks lacks = Nothing)
        : map(makeCamera(lacks))
        , params(*map)
    {
        map->setAccessHook([this](const char* call, const GenApi::INode* node) { onCall(call, node); });
    }
    ~Camera() { map->setAccessHook({}); }

    TimeBudget budget()
    {
        return TimeBudget(200ms, [this] { return now; });
    }

    int32_t select(const char* frame)
    {
        const int32_t code = params.GetEnum("FrameAB_Selector", nullptr)->SetValueStr(frame);
        log.clear();
        return code;
    }

    const std::unique_ptr<NodeMap> map;
    ZetoGenParam::NodeMapArray params;
    QStringList log; ///< features read, and the frames switched to
    std::chrono::steady_clock::time_point now;
    std::chrono::milliseconds accessTime = 0ms;
    QString failing; ///< feature whose value cannot be read
    int32_t failure = 0;
    QList<int32_t> switchingFailures; ///< of the next attempts to switch

private:
    void onCall(const QString& call, const GenApi::INode* node)
    {
        const bool isSwitching = call == QLatin1String("FromString") || call == QLatin1String("SetIntValue");
        if (!node || (!isSwitching && call != QLatin1String("GetValue")))
            return;
        now += accessTime;
        const QString name = QString::fromLatin1(node->GetName().c_str());
        log += isSwitching ? QStringLiteral("switch") : name;
        const int32_t code = isSwitching && !switchingFailures.isEmpty() ? switchingFailures.takeFirst()
                             : !isSwitching && name == failing           ? failure
                                                                         : 0;
        if (code)
            throw ZetoGenParam::CodeException(code);
    }
};

/// What a dialog hears of a feature.
class Listener : public ZetoGenParam::ParamEventSink
{
public:
    void OnParamChanged(ZetoGenParam::Param* param) override
    {
        if (!ZetoGui::FrameExcursion::postpones(this, param))
            heard += QString::fromLatin1(param->GetName());
    }

    QStringList heard;
};

} // namespace

/// The live values come from both frames, at a bounded price, and the selected frame stays the selected one.
class TestCameraInformation : public QObject
{
    Q_OBJECT

private slots:
    void reads_both_frames_data();
    void reads_both_frames();
    void passes_over_what_cannot_be_read_data();
    void passes_over_what_cannot_be_read();
    void asks_no_further_when_the_camera_does_not_answer();
    void takes_turns_with_a_slow_camera_data();
    void takes_turns_with_a_slow_camera();
    void keeps_the_switching_to_itself_data();
    void keeps_the_switching_to_itself();
    void follows_the_frame_features();
    void tells_features_as_text_data();
    void tells_features_as_text();
};

void TestCameraInformation::reads_both_frames_data()
{
    QTest::addColumn<int>("lacks");
    QTest::addColumn<QByteArray>("selected");
    QTest::addColumn<QString>("frames");
    QTest::addColumn<int>("switches");
    const QString both = QStringLiteral("4000x3000 100/40000 2000x1500 50/20000");
    QTest::newRow("Frame A is selected") << int(Nothing) << QByteArray("FrameA") << both << 2;
    QTest::newRow("Frame B is selected") << int(Nothing) << QByteArray("FrameB") << both << 2;
    QTest::newRow("no frames") << int(Selector) << QByteArray() << "4000x3000 100/40000 -x- -/-" << 0;
    QTest::newRow("no height") << int(Height) << QByteArray("FrameB") << "4000x- 100/40000 2000x- 50/20000"
                               << 2;
    QTest::newRow("nothing") << int(Everything) << QByteArray() << "-x- -/- -x- -/-" << 0;
}

void TestCameraInformation::reads_both_frames()
{
    QFETCH(int, lacks);
    QFETCH(QByteArray, selected);
    QFETCH(int, switches);
    Camera camera(static_cast<Lacks>(lacks));
    if (!selected.isEmpty())
        camera.select(selected);
    const FrameState state(camera.params);
    CameraInformation information(camera.params, state);
    for (int i = 0; i < 2; ++i) {
        camera.log.clear();
        QCOMPARE(information.read(camera.budget()), CameraInformation::Complete);
        QTEST(framesOf(information), "frames");
        QCOMPARE(camera.log.count(QStringLiteral("switch")), switches);
        if (switches) {
            QCOMPARE(camera.map->text("FrameAB_Selector"), selected.toStdString());
            QVERIFY(camera.log.indexOf(QStringLiteral("Width")) <
                    camera.log.indexOf(QStringLiteral("switch")));
        }
    }
    QCOMPARE(information.temperature().has_value(), lacks != Everything);
}

void TestCameraInformation::passes_over_what_cannot_be_read_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("frames");
    QTest::newRow("width") << "Width"
                           << "-x3000 100/40000 -x1500 50/20000";
    QTest::newRow("exposure") << "CurrentExposureTime"
                              << "4000x3000 -/40000 2000x1500 -/20000";
    QTest::newRow("temperature") << "CurrentTemperature"
                                 << "4000x3000 100/40000 2000x1500 50/20000";
}

void TestCameraInformation::passes_over_what_cannot_be_read()
{
    QFETCH(QString, failing);
    Camera camera;
    camera.failing = failing;
    camera.failure = ZetoCam::ErrorGenICamAccess;
    const FrameState state(camera.params);
    CameraInformation information(camera.params, state);
    QCOMPARE(information.read(camera.budget()), CameraInformation::Complete);
    QTEST(framesOf(information), "frames");
}

void TestCameraInformation::asks_no_further_when_the_camera_does_not_answer()
{
    Camera camera;
    const FrameState state(camera.params);
    CameraInformation information(camera.params, state);
    camera.failing = QStringLiteral("CurrentTemperature");
    camera.failure = ZetoCam::ErrorNoDevice;
    camera.log.clear();
    QCOMPARE(information.read(camera.budget()), CameraInformation::NoAnswer);
    QCOMPARE(camera.log, QStringList{QStringLiteral("CurrentTemperature")});
    camera.failing.clear();
    QCOMPARE(information.read(camera.budget()), CameraInformation::Complete);
}

void TestCameraInformation::takes_turns_with_a_slow_camera_data()
{
    QTest::addColumn<int>("accessTime");
    for (const int milliseconds : {30, 60, 150, 250, 5000})
        QTest::addRow("%d ms", milliseconds) << milliseconds;
}

void TestCameraInformation::takes_turns_with_a_slow_camera()
{
    QFETCH(int, accessTime);
    Camera camera;
    camera.select("FrameB");
    const FrameState state(camera.params);
    CameraInformation information(camera.params, state);
    camera.accessTime = std::chrono::milliseconds(accessTime);
    for (int readings = 0; readings < 9; ++readings) {
        const auto begin = camera.now;
        QCOMPARE(information.read(camera.budget()), CameraInformation::Slow);
        QVERIFY(camera.now - begin <= 200ms + 4 * camera.accessTime);
        QCOMPARE(camera.map->text("FrameAB_Selector"), std::string("FrameB"));
    }
    QCOMPARE(textOf(information.frameA()), QStringLiteral("4000x3000 100/40000"));
    QCOMPARE(textOf(information.frameB()), QStringLiteral("2000x1500 50/20000"));
}

void TestCameraInformation::keeps_the_switching_to_itself_data()
{
    QTest::addColumn<QList<int>>("failures");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("heard");
    QTest::addColumn<QString>("other");
    const int refused = ZetoCam::ErrorGenICamAccess;
    const QString read = QStringLiteral("2000x1500 50/20000");
    QTest::newRow("goes and returns") << QList<int>{} << "FrameA"
                                      << "" << read;
    QTest::newRow("may not go") << QList<int>{refused} << "FrameA"
                                << ""
                                << "-x- -/-";
    QTest::newRow("returns at the second attempt") << QList<int>{0, refused} << "FrameA"
                                                   << "" << read;
    QTest::newRow("may not return") << QList<int>{0, refused, refused} << "FrameB"
                                    << "FrameAB_Selector,Width" << read;
    QTest::newRow("is lost there") << QList<int>{0, ZetoCam::ErrorNoDevice} << "FrameB"
                                   << "FrameAB_Selector,Width" << read;
}

void TestCameraInformation::keeps_the_switching_to_itself()
{
    QFETCH(QList<int>, failures);
    QFETCH(QString, selected);
    Camera camera;
    Listener listener;
    for (const char* name : {"FrameAB_Selector", "Width"})
        camera.params.GetParam(name, nullptr)->RegisterEventSink(&listener);
    const FrameState state(camera.params);
    CameraInformation information(camera.params, state);
    camera.switchingFailures = failures;
    information.read(camera.budget());
    QCOMPARE(QString::fromStdString(camera.map->text("FrameAB_Selector")), selected);
    QCOMPARE(QString::fromLatin1(state.selectedFrame()), selected);
    listener.heard.sort();
    QTEST(listener.heard.join(QLatin1Char(',')), "heard");
    QTEST(textOf(information.frameB()), "other");

    listener.heard.clear();
    camera.select(state.isFrameBSelected() ? "FrameA" : "FrameB");
    QVERIFY(listener.heard.contains(QStringLiteral("Width")));
}

void TestCameraInformation::follows_the_frame_features()
{
    Camera camera;
    FrameState state(camera.params);
    QVERIFY(!state.isFrameBSelected());
    QCOMPARE(state.mode(), FrameState::OnlyFrameA);
    QVERIFY(state.takeModeChange());
    QVERIFY(!state.takeModeChange());

    camera.map->assign("FrameAB_Selector", 1);
    QVERIFY(state.isFrameBSelected());
    QVERIFY(!state.takeModeChange());
    camera.map->assign("FrameMode", 1);
    QCOMPARE(state.mode(), FrameState::OnlyFrameB);
    camera.map->setAccessMode("FrameMode", GenApi::NA);
    QCOMPARE(state.mode(), FrameState::OnlyFrameB);
    camera.map->setAccessMode("FrameMode", GenApi::RW);
    camera.map->assign("FrameMode", 2);
    QCOMPARE(state.mode(), FrameState::BothFrames);
    QVERIFY(state.takeModeChange());
}

void TestCameraInformation::tells_features_as_text_data()
{
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QByteArray("Text") << QString::fromUtf8("K\xc3\xa4mera");
    QTest::newRow("empty text") << QByteArray("Empty") << QString();
    QTest::newRow("entry") << QByteArray("Entry") << "BayerRG";
    QTest::newRow("number") << QByteArray("Number") << "-9223372036854775808";
    QTest::newRow("hidden") << QByteArray("Hidden") << "N/A";
    QTest::newRow("another type") << QByteArray("Switch") << "N/A";
    QTest::newRow("none") << QByteArray("Nowhere") << "N/A";
}

void TestCameraInformation::tells_features_as_text()
{
    QFETCH(QByteArray, feature);
    NodeMapBuilder b;
    b.category("Root");
    b.string("Text").in("Root").value("K\xc3\xa4mera");
    b.string("Empty").in("Root");
    b.enumeration("Entry").in("Root").entries({"Mono", "BayerRG"}).value("BayerRG");
    b.integer("Number").in("Root").value(std::numeric_limits<int64_t>::min());
    b.integer("Hidden").in("Root").access(GenApi::NA).value(1);
    b.boolean("Switch").in("Root").value(true);
    const std::unique_ptr<NodeMap> map = b.build();
    ZetoGenParam::NodeMapArray params(*map);
    QTEST(ZetoGui::featureText(&params, feature), "text");
    QCOMPARE(ZetoGui::featureText(nullptr, feature), QStringLiteral("N/A"));
    QCOMPARE(ZetoGui::modelName(params), QStringLiteral("Unknown"));
}

ZETO_TEST_MAIN(TestCameraInformation)
#include "tst_camerainformation.moc"
