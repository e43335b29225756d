// The shuffle of a block in nanoseconds an exchange: straightforward code, the program's code, and the
// exchanges alone.
#include "engine/block_shuffle.h"
#include "engine/list_settings.h"
#include "engine/random_draws.h"
#include "engine/random_source.h"
#include "platform/linux/linux_entropy.h"
#include "ratios.h"
#include "straightforward.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {
namespace {

constexpr std::int16_t Groups = 4;

std::int64_t ExchangesOf(std::int64_t N) {
    return 10 * N * N;
}

/// Reports the time of one exchange in nanoseconds.
/// Requires: each iteration makes `exchanges` exchanges.
void CountExchanges(benchmark::State& state, std::int64_t exchanges) {
    state.counters[NanosecondsAnExchange] =
        benchmark::Counter(static_cast<double>(exchanges) * 1e-9,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Straightforward(benchmark::State& state) {
    LinuxEntropy entropy;
    straightforward::Source source(entropy);
    const std::int64_t N = state.range(0);
    std::vector<std::string> names;
    for (std::int64_t i = 0; i < N; ++i)
        names.push_back("Group " + std::to_string(i % Groups + 1));
    // The time of one exchange is the same throughout a shuffle: a part of it is enough for large blocks.
    const std::int64_t exchanges = std::min<std::int64_t>(ExchangesOf(N), 200'000);
    while (state.KeepRunning())
        straightforward::Shuffle(source, names, exchanges);
    CountExchanges(state, exchanges);
}

void ShuffleBy(benchmark::State& state, const VectorKernels& kernels) {
    LinuxEntropy entropy;
    RandomSource source(entropy, kernels);
    const std::int64_t N = state.range(0);
    std::vector<std::uint8_t> groups = DealGroups(static_cast<std::size_t>(N), Groups);
    while (state.KeepRunning())
        ShuffleBlock(source, groups, kernels);
    CountExchanges(state, ExchangesOf(N));
}

void Program(benchmark::State& state) {
    ShuffleBy(state, BestKernels());
    state.SetLabel(BestKernels().Name);
}

void ExchangesAlone(benchmark::State& state) {
    LinuxEntropy entropy;
    RandomSource source(entropy);
    const std::int64_t N = state.range(0);
    std::vector<std::uint8_t> groups = DealGroups(static_cast<std::size_t>(N), Groups);
    std::vector<std::int16_t> positions(5120);
    DrawRandomInts(source, 0, static_cast<std::int16_t>(N - 1), positions);
    while (state.KeepRunning())
        ExchangePositions(groups, positions);
    CountExchanges(state, static_cast<std::int64_t>(positions.size()) / 2);
}

void EverySize(benchmark::internal::Benchmark* benchmark) {
    for (const std::int64_t size : ShuffledSizes)
        benchmark->Arg(size);
}

BENCHMARK(Straightforward)->Name(StraightforwardShuffle)->Apply(EverySize);
BENCHMARK(Program)->Name(ProgramShuffle)->Apply(EverySize);
BENCHMARK(ExchangesAlone)->Name(BareExchanges)->Apply(EverySize);

/// The other versions of the loops that this machine can run: estimates for machines with older processors.
const bool otherVersions = [] {
    for (const VectorKernels& kernels : RunnableKernels())
        if (&kernels != &BestKernels())
            benchmark::RegisterBenchmark((std::string("shuffle by the version ") + kernels.Name).c_str(),
                                         [&kernels](benchmark::State& state) { ShuffleBy(state, kernels); })
                ->Arg(1000);
    return true;
}();

} // namespace
} // namespace orvane
