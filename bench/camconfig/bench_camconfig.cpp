// The feature dialogs on the full simulated camera.

#include "bareparams.h"
#include "comparison.h"
#include "devicepointer.h"
#include "dialogtable.h"
#include "qtzetospinbox.h"
#include "recordingdevice.h"
#include "simulatorfixture.h"
#include "zetocamconfigmapper.h"

#include <QApplication>
#include <QComboBox>

namespace {

struct Camera
{
    SimulatorFixture simulator;
    const DevicePointer device{simulator.open("sim.gev0.dual")};
    ZetoGenParam::Array& array = *device->GetParameters(nullptr);
};

using Names = std::vector<std::string>;

Names featuresOf(const DialogRow& row, Camera& camera)
{
    RecordingDevice recorder(*camera.device);
    row.make(&recorder);
    return recorder.names();
}

void showAndLeave(QDialog& dialog)
{
    dialog.show();
    QApplication::processEvents();
}

/// Until it is painted, beside the same window without a camera and the bare calls.
void compareOpening(const DialogRow& row, Camera& camera, const Names& names)
{
    compare(
        std::string("opening and closing the dialog, ") + row.name, 3,
        [&row, &camera](benchmark::State& state) {
            for (auto _ : state)
                showAndLeave(*row.make(camera.device.get()));
        },
        [&row, &camera, names](benchmark::State& state) {
            for (auto _ : state) {
                showAndLeave(*row.make(nullptr));
                bindBarely(camera.array, names);
            }
        });
}

/// Changes \a param back and forth while someone is told.
template <typename Param, typename Value>
void change(benchmark::State& state, Param& param, Value first, Value second)
{
    for (auto _ : state) {
        param.SetValue(first);
        param.SetValue(second);
    }
}

/// Beside a sink that makes the bare calls; the rest is the widget's own work.
template <typename Param, typename Widget, typename Map>
void compareChange(const std::string& what, double limit, Param& param, int64_t first, int64_t second,
                   Map map)
{
    struct Bound
    {
        Widget widget;
        ZetoGui::ZetoCamConfigMapper mapper;
    };
    compare(
        "two changes arriving at a " + what, limit,
        [&param, first, second, map](benchmark::State& state) {
            Bound bound;
            map(bound.mapper, param, bound.widget);
            bound.widget.show();
            change(state, param, first, second);
            param.UnregisterEventSink(&bound.mapper);
        },
        [&param, first, second](benchmark::State& state) {
            BareSink sink;
            param.RegisterEventSink(&sink);
            change(state, param, first, second);
            param.UnregisterEventSink(&sink);
        });
}

void compareChanges(Camera& camera)
{
    const auto mapInt = [](ZetoGui::ZetoCamConfigMapper& mapper, ZetoGenParam::Int& param,
                           QtZetoSpinBox& widget) { mapper.MapInt(&param, &widget); };
    const auto mapEnum = [](ZetoGui::ZetoCamConfigMapper& mapper, ZetoGenParam::Enum& param,
                            QComboBox& widget) { mapper.MapEnum(&param, &widget); };
    compareChange<ZetoGenParam::Int, QtZetoSpinBox>(
        "popup spin box", 12, *camera.array.GetInt("PulseGenPeriod", nullptr), 5000, 6000, mapInt);
    compareChange<ZetoGenParam::Enum, QComboBox>(
        "combo box", 4, *camera.array.GetEnum("TriggerSource", nullptr), 0, 1, mapEnum);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    Camera camera;
    for (const DialogRow& row : dialogTable)
        compareOpening(row, camera, featuresOf(row, camera));
    compareChanges(camera);
    return runComparisons(argc, argv);
}
