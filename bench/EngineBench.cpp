// Measures the engine, the bridge and the pipeline: engine_bench [Google Benchmark's options]
//
// A row's time is the mean of its measurements, its counters are made of the fastest one.

#include "bench/Measure.h"
#include "bench/Photo.h"
#include "bench/Rows.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

namespace {

struct Size {
    int width, height;

    std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
};
constexpr Size small{1200, 800}, large{6000, 4000};

Subject& subjectOf(const Size& size)
{
    static std::map<std::string, std::unique_ptr<Subject>> subjects;
    auto& subject = subjects[size.name()];
    if (!subject)
        subject = std::make_unique<Subject>(size.width, size.height);
    return *subject;
}

/// Measured once, on the small photo, as the twins are slow. Their time per pixel hardly depends on the size, but for
/// the looks whose blur grows with the photo: at the large size these stand worse beside their twin than they are.
double twinNanoseconds(const Row& row)
{
    static std::map<std::string, double> known;
    if (const auto found = known.find(row.name); found != known.end())
        return found->second;
    Picture picture = benchPhoto(small.width, small.height);
    const double seconds = secondsOf([&] { row.twin(picture); });
    return known[row.name] = seconds * 1e9 / (double(small.width) * small.height);
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

void measure(benchmark::State& state, const Row& row, const Size& size)
{
    Subject& subject = subjectOf(size);
    double fastest = 1e9;
    for (auto _ : state) {
        subject.restore();
        subject.made.reset();
        subject.rendered = {};
        if (row.prepare)
            row.prepare(subject);
        const double seconds = secondsOf([&] { row.operation(subject); });
        state.SetIterationTime(seconds);
        fastest = std::min(fastest, seconds);
    }
    subject.made.reset();
    subject.rendered = {};
    const double nanoseconds = fastest * 1e9 / (double(size.width) * size.height);
    state.counters["ns/pixel"] = nanoseconds;
    state.counters["memcpys"] = fastest / subject.copySeconds;
    if (!row.twin)
        return;
    const double twin = twinNanoseconds(row);
    state.counters["twin ns/pixel"] = twin;
    state.counters["twin/this"] = twin / nanoseconds;
    if (row.isLook) {
        looksOfSize[size.name()][row.name] = {nanoseconds, twin / nanoseconds}; // the last run of a row is its longest
    }
}

} // namespace

int main(int argc, char** argv)
{
    // A row is measured this long, and a slower one once; the user's own options come later and win.
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
