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
    void reads_both_frames();
    void passes_over_what_cannot_be_read();
    void asks_no_further_when_the_camera_does_not_answer();
    void takes_turns_with_a_slow_camera();
    void keeps_the_switching_to_itself();
    void follows_the_frame_features();
    void tells_features_as_text();
};

void TestCameraInformation::reads_both_frames()
{
    struct Case
    {
        Lacks lacks;
        const char* selected;
        const char* frames;
    };
    const Case cases[] = {
        {Nothing, "FrameA", "4000x3000 100/40000 2000x1500 50/20000"},
        {Nothing, "FrameB", "4000x3000 100/40000 2000x1500 50/20000"},
        {Height, "FrameB", "4000x- 100/40000 2000x- 50/20000"},
        {Selector, nullptr, "4000x3000 100/40000 -x- -/-"},
        {Everything, nullptr, "-x- -/- -x- -/-"},
    };
    for (const Case& each : cases) {
        Camera camera(each.lacks);
        if (each.selected)
            camera.select(each.selected);
        const FrameState state(camera.params);
        CameraInformation information(camera.params, state);
        for (int i = 0; i < 2; ++i) {
            camera.log.clear();
            QCOMPARE(information.read(camera.budget()), CameraInformation::Complete);
            QCOMPARE(framesOf(information), each.frames);
            QCOMPARE(camera.log.count("switch"), each.selected ? 2 : 0);
            if (each.selected) {
                QCOMPARE(camera.map->text("FrameAB_Selector"), std::string(each.selected));
                QVERIFY(camera.log.indexOf("Width") < camera.log.indexOf("switch"));
            }
        }
        QCOMPARE(information.temperature().has_value(), each.lacks != Everything);
    }
}

void TestCameraInformation::passes_over_what_cannot_be_read()
{
    Camera camera;
    camera.failure = ZetoCam::ErrorGenICamAccess;
    const FrameState state(camera.params);
    const auto framesWithout = [&](const char* feature) {
        camera.failing = feature;
        CameraInformation information(camera.params, state);
        return information.read(camera.budget()) == CameraInformation::Complete ? framesOf(information)
                                                                                : QString();
    };
    QCOMPARE(framesWithout("Width"), "-x3000 100/40000 -x1500 50/20000");
    QCOMPARE(framesWithout("CurrentExposureTime"), "4000x3000 -/40000 2000x1500 -/20000");
    QCOMPARE(framesWithout("CurrentTemperature"), "4000x3000 100/40000 2000x1500 50/20000");
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

void TestCameraInformation::takes_turns_with_a_slow_camera()
{
    for (const auto accessTime : {30ms, 60ms, 150ms, 250ms, 5000ms}) {
        Camera camera;
        camera.select("FrameB");
        const FrameState state(camera.params);
        CameraInformation information(camera.params, state);
        camera.accessTime = accessTime;
        for (int readings = 0; readings < 9; ++readings) {
            const auto begin = camera.now;
            QCOMPARE(information.read(camera.budget()), CameraInformation::Slow);
            QVERIFY(camera.now - begin <= 200ms + 4 * accessTime);
            QCOMPARE(camera.map->text("FrameAB_Selector"), std::string("FrameB"));
        }
        QCOMPARE(framesOf(information), "4000x3000 100/40000 2000x1500 50/20000");
    }
}

void TestCameraInformation::keeps_the_switching_to_itself()
{
    constexpr int32_t refused = ZetoCam::ErrorGenICamAccess;
    struct Case
    {
        QList<int32_t> failures; ///< of the attempts to switch
        const char* selected;    ///< in the end
        QStringList heard;
        const char* other; ///< the other frame as it was read
    };
    const char* const read = "2000x1500 50/20000";
    const QStringList change = {"FrameAB_Selector", "Width"};
    const Case cases[] = {
        {{}, "FrameA", {}, read},
        {{refused}, "FrameA", {}, "-x- -/-"},
        {{0, refused}, "FrameA", {}, read}, // returns at the second attempt
        {{0, refused, refused}, "FrameB", change, read},
        {{0, ZetoCam::ErrorNoDevice}, "FrameB", change, read}, // is lost there
    };
    for (const Case& each : cases) {
        Camera camera;
        Listener listener;
        for (const char* name : {"FrameAB_Selector", "Width"})
            camera.params.GetParam(name, nullptr)->RegisterEventSink(&listener);
        const FrameState state(camera.params);
        CameraInformation information(camera.params, state);
        camera.switchingFailures = each.failures;
        information.read(camera.budget());
        QCOMPARE(camera.map->text("FrameAB_Selector"), std::string(each.selected));
        QCOMPARE(state.selectedFrame(), each.selected);
        listener.heard.sort();
        QCOMPARE(listener.heard, each.heard);
        QCOMPARE(textOf(information.frameB()), each.other);

        listener.heard.clear();
        camera.select(state.isFrameBSelected() ? "FrameA" : "FrameB");
        QVERIFY(listener.heard.contains("Width"));
    }
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

void TestCameraInformation::tells_features_as_text()
{
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
    QCOMPARE(ZetoGui::featureText(&params, "Text"), QString::fromUtf8("K\xc3\xa4mera"));
    QCOMPARE(ZetoGui::featureText(&params, "Empty"), "");
    QCOMPARE(ZetoGui::featureText(&params, "Entry"), "BayerRG");
    QCOMPARE(ZetoGui::featureText(&params, "Number"), "-9223372036854775808");
    for (const char* lacking : {"Hidden", "Switch", "Nowhere"})
        QCOMPARE(ZetoGui::featureText(&params, lacking), "N/A");
    QCOMPARE(ZetoGui::featureText(nullptr, "Text"), "N/A");
    QCOMPARE(ZetoGui::modelName(params), "Unknown");
}

ZETO_TEST_MAIN(TestCameraInformation)
#include "tst_camerainformation.moc"
