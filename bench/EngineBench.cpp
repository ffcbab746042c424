// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the engine, the bridge and the pipeline: engine_bench [Google Benchmark's options]
//
// All in processor time, as the engine has one thread and waits for nothing. A row's time is the mean of its
// measurements, its counters are made of the fastest one.

#include "bench/Measure.h"
#include "bench/Rows.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

using namespace lumora;

namespace {

struct Size {
    int width, height;

    std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
};
constexpr Size small{1200, 800}, large{6000, 4000};
constexpr int rounds = 3; ///< measurements of a row and of a twin, at least
constexpr double slow = 3; ///< seconds; what takes longer is measured once

Subject& subjectOf(const Size& size)
{
    static std::map<std::string, std::unique_ptr<Subject>> subjects;
    auto& subject = subjects[size.name()];
    if (!subject)
        subject = std::make_unique<Subject>(size.width, size.height);
    return *subject;
}

/// The twins are slow, so that they are measured on the small photo alone, and compared with the engine at both sizes.
/// That is fair where a twin's time per pixel is the same at any size. The blur of some looks grows with the photo:
/// their twins would be slower on the large one, and the gain that is shown for it is too small.
double twinNanoseconds(const Row& row)
{
    static std::map<std::string, double> known;
    if (const auto found = known.find(row.name); found != known.end())
        return found->second;
    double fastest = 1e9;
    for (int i = 0; i < rounds; i++) {
        Picture picture = subjectOf(small).photo;
        fastest = std::min(fastest, processorSecondsOf([&] { row.twin(picture); }));
    }
    return known[row.name] = fastest * 1e9 / (double(small.width) * small.height);
}

struct LookResult {
    double nanoseconds, gain;
};
using LookResults = std::map<std::string, LookResult>; ///< by the look's name
std::map<std::string, LookResults> looksOfSize;

void printMean(const std::string& size, const LookResults& looks)
{
    double logOfTime = 0, logOfGain = 0;
    for (const auto& [name, look] : looks) {
        logOfTime += std::log(look.nanoseconds) / double(looks.size());
        logOfGain += std::log(look.gain) / double(looks.size());
    }
    std::printf("Geometric mean of %zu looks at %s: %.2f ns/pixel, %.1f times as fast as the twins\n", looks.size(),
        size.c_str(), std::exp(logOfTime), std::exp(logOfGain));
}

double secondsOnce(const Row& row, Subject& subject)
{
    subject.restore();
    if (row.prepare)
        row.prepare(subject);
    return processorSecondsOf([&] { row.operation(subject); });
}

void measure(benchmark::State& state, const Row& row, const Size& size)
{
    Subject& subject = subjectOf(size);
    double fastest = 1e9;
    for (auto _ : state) {
        const double seconds = secondsOnce(row, subject);
        state.SetIterationTime(seconds);
        fastest = std::min(fastest, seconds);
    }
    for (int i = 1; i < rounds && fastest < slow; i++)
        fastest = std::min(fastest, secondsOnce(row, subject));
    subject.restore();
    const double nanoseconds = fastest * 1e9 / (double(size.width) * size.height);
    state.counters["ns/pixel"] = nanoseconds;
    state.counters["memcpys"] = fastest / subject.copySeconds;
    if (!row.twin)
        return;
    const double twin = twinNanoseconds(row);
    state.counters["twin ns/pixel"] = twin;
    state.counters["twin/this"] = twin / nanoseconds;
    if (row.isLook)
        looksOfSize[size.name()][row.name] = {nanoseconds, twin / nanoseconds}; // the last run of a row is its longest
}

} // namespace

int main(int argc, char** argv)
{
    // A row is measured this long at least; the user's own options come later and win.
    char leastSeconds[] = "--benchmark_min_time=0.4";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, leastSeconds);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    stayOnOneCore();
    CharImage::useRandom = 0;
    const std::vector<Row> rows = allRows();
    for (const Size& size : {small, large})
        for (const Row& row : rows)
            benchmark::RegisterBenchmark((row.name + "/" + size.name()).c_str(),
                [&row, size](benchmark::State& state) { measure(state, row, size); })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
    benchmark::ConsoleReporter table(benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&table);
    for (const auto& [size, looks] : looksOfSize)
        printMean(size, looks);
    std::printf("Peak memory: %.0f MiB\n", peakMemory());
}
