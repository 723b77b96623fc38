#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <string>

/// A timed piece of work, in the form that Google Benchmark runs.
using Work = std::function<void(benchmark::State&)>;

/// Has \a ours and \a peer timed in the same run, in turns, and reports the ratio of their best times.
/// \param what what is measured, with its size, such as "building the model, 1000 features"
/// \param limit the ratio that ours may reach
void compare(const std::string& what, double limit, const Work& ours, const Work& peer);

/// Reports a figure that is counted, not timed, beside the most that it may be.
void count(const std::string& what, double figure, double limit, const std::string& unit);

/// Runs what was registered and prints one line for each, in the order of registration.
/// Understands the options of Google Benchmark, such as --benchmark_filter.
/// \return the exit code for main(); a limit that is exceeded is printed as such and is no error.
int runComparisons(int argc, char** argv);
