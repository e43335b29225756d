// The time from the start of a program until its window is painted: this program, an empty window, and a
// window with a line of text.
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {
namespace {

struct Start {
    double seconds;
    double peakBytes;
    double cpuSeconds;
};

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// Reads from `end` until the writer closes it.
std::string ReadAll(int end) {
    std::string text;
    std::array<char, 100> buffer{};
    for (ssize_t count = 0; (count = read(end, buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return text;
}

/// Starts a program with the plugin that ends it after its first painting.
Start StartOnce(std::vector<std::string> command) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);

    pid_t child = 0;
    const auto begin = std::chrono::steady_clock::now().time_since_epoch();
    const int failed = posix_spawn(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    const std::string answer = ReadAll(ends[0]);
    close(ends[0]);
    rusage used{};
    if (failed == 0)
        wait4(child, nullptr, 0, &used);

    std::istringstream figures(answer);
    std::int64_t painted = 0;
    std::int64_t kilobytes = 0;
    if (!(figures >> painted >> kilobytes))
        throw std::runtime_error(command.front() + " showed no window");
    const auto started = std::chrono::nanoseconds(begin).count();
    return {static_cast<double>(painted - started) * 1e-9, static_cast<double>(kilobytes) * 1024,
            Seconds(used.ru_utime) + Seconds(used.ru_stime)};
}

void MeasureStart(benchmark::State& state, const std::vector<std::string>& command) {
    setenv("QT_PLUGIN_PATH", ORVANE_PAINT_WATCH, 1);
    setenv("QT_QPA_GENERIC_PLUGINS", "paint_watch", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    double peak = 0;
    double cpu = 0;
    try {
        while (state.KeepRunning()) {
            const Start start = StartOnce(command);
            state.SetIterationTime(start.seconds);
            peak = start.peakBytes;
            cpu += start.cpuSeconds;
        }
    } catch (const std::exception& failure) {
        state.SkipWithError(failure.what());
    }
    state.counters[PeakMemory] = peak;
    state.counters["cpu_seconds"] = benchmark::Counter(cpu, benchmark::Counter::kAvgIterations);
}

void Program(benchmark::State& state) {
    MeasureStart(state, {ORVANE_PROGRAM});
}

void EmptyWindow(benchmark::State& state) {
    MeasureStart(state, {ORVANE_EMPTY_WINDOW});
}

void WindowWithText(benchmark::State& state) {
    MeasureStart(state, {ORVANE_EMPTY_WINDOW, "Number of groups"});
}

BENCHMARK(Program)->Name(ProgramStart)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(EmptyWindow)->Name(EmptyWindowStart)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(WindowWithText)
    ->Name(TextWindowStart)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
