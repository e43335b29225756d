// Runs the benchmarks and prints the ratios given in docs/performance.md at the end.
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace orvane;

/// Prints the medians and stores them: the time of one exchange where exchanges are counted, otherwise the
/// time of one iteration. CPU time, because other processes on the machine disturb it less; elapsed time
/// only for the start of a program.
class MedianKeeper : public benchmark::ConsoleReporter {
  public:
    MedianKeeper() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& reports) override {
        std::vector<Run> shown;
        for (const Run& run : reports)
            if (run.error_occurred || run.aggregate_name == "median")
                shown.push_back(run);
        for (Run& run : shown)
            Keep(run);
        ConsoleReporter::ReportRuns(shown);
    }

    /// The ratio of two medians; none when one of them was not measured.
    [[nodiscard]] std::optional<double> Ratio(const std::string& upper, const std::string& lower) const {
        const auto over = medians_.find(upper);
        const auto under = medians_.find(lower);
        if (over == medians_.end() || under == medians_.end())
            return std::nullopt;
        return over->second / under->second;
    }

  private:
    void Keep(Run& run) {
        if (run.error_occurred)
            return;
        double& kept = medians_[run.run_name.function_name + "/" + run.run_name.args];
        kept = run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
        const auto peak = run.counters.find(PeakMemory);
        if (peak != run.counters.end())
            medians_[run.run_name.function_name + "/" + PeakMemory] = peak->second.value;
        const auto exchange = run.counters.find(NanosecondsAnExchange);
        if (exchange != run.counters.end()) {
            kept = exchange->second.value;
            exchange->second.value *= 1e-9; // the reporter prints it in seconds
        }
    }

    std::map<std::string, double> medians_;
};

void PrintRatios(const MedianKeeper& medians) {
    const auto print = [&](const char* format, const std::string& upper, const std::string& lower) {
        if (const auto ratio = medians.Ratio(upper, lower))
            std::printf(format, *ratio);
    };
    const std::string program = ProgramStart;
    for (const std::string window : {EmptyWindowStart, TextWindowStart}) {
        const std::string compared = "start: program/" + window.substr(window.find(' ') + 1);
        print((compared + "=%.2f").c_str(), program + "/", window + "/");
        print(", peak memory %.2f\n", program + "/" + PeakMemory, window + "/" + PeakMemory);
    }
    print("list of 32764: straightforward/program=%.0f\n", StraightforwardList + std::string("/"),
          ProgramList + std::string("/"));
    for (const std::int64_t size : ShuffledSizes) {
        const std::string N = std::to_string(size);
        const std::string b = std::string(ProgramShuffle) + "/" + N;
        print(("N=" + N + " a/b=%.1f").c_str(), std::string(StraightforwardShuffle) + "/" + N, b);
        print(" b/c=%.1f\n", b, std::string(BareExchanges) + "/" + N);
    }
}

} // namespace

int main(int argc, char* argv[]) {
    // In random order, so that a slow moment of the machine affects all compared measurements alike.
    std::string repeat = "--benchmark_repetitions=7";
    std::string inTurns = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments{argv[0], repeat.data(), inTurns.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;

    MedianKeeper medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    PrintRatios(medians);
    return 0;
}
