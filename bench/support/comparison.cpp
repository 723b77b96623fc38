#include "comparison.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <vector>

namespace {

constexpr int repetitions = 7;
constexpr double secondsPerRepetition = 0.05;
constexpr const char* oursSuffix = " [ours]";
constexpr const char* peerSuffix = " [peer]";

struct Line
{
    std::string what;
    double limit = 0;
    bool timed = false;
    double figure = 0;
    std::string unit;
};

std::vector<Line>& lines()
{
    static std::vector<Line> all;
    return all;
}

/// Keeps the best time of each benchmark: what the work costs when nothing else disturbs it.
class BestTimes final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
            double& best = m_best.try_emplace(run.run_name.function_name, seconds).first->second;
            best = std::min(best, seconds);
        }
    }

    /// In microseconds; NaN for a benchmark that was filtered out.
    double microseconds(const std::string& name) const
    {
        const auto found = m_best.find(name);
        return found == m_best.end() ? std::numeric_limits<double>::quiet_NaN() : found->second * 1e6;
    }

private:
    std::map<std::string, double> m_best;
};

const char* verdict(double value, double limit)
{
    return value <= limit ? "" : "  EXCEEDED";
}

void print(const Line& line, const BestTimes& times)
{
    if (!line.timed) {
        std::printf("%-62s %10.1f %-8s %10s %8s %8.1f%s\n", line.what.c_str(), line.figure, line.unit.c_str(),
                    "", "", line.limit, verdict(line.figure, line.limit));
        return;
    }
    const double ours = times.microseconds(line.what + oursSuffix);
    const double peer = times.microseconds(line.what + peerSuffix);
    if (ours != ours || peer != peer)
        return;
    std::printf("%-62s %10.1f %-8s %10.1f %8.2f %8.2f%s\n", line.what.c_str(), ours, "us", peer, ours / peer,
                line.limit, verdict(ours / peer, line.limit));
}

void registerWork(const std::string& name, const Work& work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)->Repetitions(repetitions)->MinTime(secondsPerRepetition);
}

} // namespace

void compare(const std::string& what, double limit, const Work& ours, const Work& peer)
{
    registerWork(what + oursSuffix, ours);
    registerWork(what + peerSuffix, peer);
    lines().push_back({what, limit, true, 0, {}});
}

void count(const std::string& what, double figure, double limit, const std::string& unit)
{
    lines().push_back({what, limit, false, figure, unit});
}

int runComparisons(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    BestTimes times;
    const auto isTimed = [](const Line& line) { return line.timed; };
    if (std::any_of(lines().begin(), lines().end(), isTimed)) // else it says that nothing matches
        benchmark::RunSpecifiedBenchmarks(&times);
    std::printf("%-62s %10s %-8s %10s %8s %8s\n", "", "figure", "", "peer us", "ratio", "at most");
    for (const Line& line : lines())
        print(line, times);
    benchmark::ClearRegisteredBenchmarks(); // what they captured must not outlive the application
    return EXIT_SUCCESS;
}
