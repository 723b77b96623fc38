// The camera selector over 16 interfaces with 32 cameras each.

#include "comparison.h"
#include "devicetreemodel.h"
#include "heartbeat.h"
#include "selectorbench.h"

#include <QAbstractButton>
#include <QApplication>

#include <algorithm>
#include <cstring>

namespace {

constexpr int scanTimeMs = 1000;
constexpr int measuredTimeMs = 2500; // a scan, the pause after it, and the start of another scan
constexpr int runs = 3;
constexpr double frameMs = 16;

using Bench = std::shared_ptr<SelectorBench>;

void compareScanning(const Bench& bench)
{
    compare(
        "a scan", 1.5,
        [bench](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(scanCameras(&bench->cameras().system()));
        },
        [bench](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(walkLibrary(bench->cameras().system()));
        });
}

/// The ids of two scans, compared in turn.
bool haveSameIds(const std::vector<ZetoCam::DeviceInfo*>& one, const std::vector<ZetoCam::DeviceInfo*>& other)
{
    for (std::size_t i = 0; i < one.size(); ++i) {
        if (std::strcmp(one[i]->GetID(), other[i]->GetID()) != 0)
            return false;
    }
    return true;
}

void compareChangeCheck(const Bench& bench)
{
    const CameraSnapshot found = scanCameras(&bench->cameras().system());
    std::vector<ZetoCam::DeviceInfo*> all;
    for (const auto& [id, cameras] : found.cameras)
        all.insert(all.end(), cameras.begin(), cameras.end());
    compare(
        "the change check alone", 2.5,
        [bench, found](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(listSameCameras(found, found));
        },
        [bench, all](benchmark::State& state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(haveSameIds(all, all));
        });
}

void compareApplying(const Bench& bench)
{
    bench->model().hasChanged();
    compare(
        "applyChanges() until painted, all open", 2,
        [bench](benchmark::State& state) {
            for (auto _ : state) {
                bench->model().applyChanges();
                SelectorBench::settle();
            }
        },
        [bench](benchmark::State& state) {
            for (auto _ : state) {
                bench->showConstantsAnew();
                SelectorBench::settle();
            }
        });
}

/// The best of several runs: what is left when nothing else disturbs the machine.
double longestPause(bool poll, bool unplug)
{
    double best = measuredTimeMs;
    for (int run = 0; run < runs; ++run) {
        ManyCameras cameras;
        ZetoGui::ZetoCameraSelectorDialog selector(&cameras.system(), nullptr, false);
        selector.show();
        SelectorBench::settle();
        cameras.setScanTime(scanTimeMs);
        cameras.control().setCameraPlugged("sim.interface0.camera0", !unplug);
        Heartbeat heartbeat;
        heartbeat.longestPause(100); // what comes with the first time on screen
        if (poll)
            selector.findChild<QAbstractButton*>(QStringLiteral("chPoll"))->click();
        best = std::min(best, heartbeat.longestPause(measuredTimeMs));
    }
    return best;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    count("longest silence of the window, polling off", longestPause(false, false), frameMs, "ms");
    count("longest silence during a scan of 1 s", longestPause(true, false), frameMs, "ms");
    count("longest silence during a scan of 1 s that finds a change", longestPause(true, true), frameMs,
          "ms");
    const auto bench = std::make_shared<SelectorBench>();
    compareScanning(bench);
    compareChangeCheck(bench);
    compareApplying(bench);
    return runComparisons(argc, argv);
}
