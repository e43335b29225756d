// A whole list: 32,764 subjects in blocks of 4, random mixed codes of 6 characters, to a text file.
#include "engine/random_source.h"
#include "engine/subject_codes.h"
#include "lists/reports.h"
#include "platform/linux/code_page_iconv.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_entropy.h"
#include "platform/linux/linux_files.h"
#include "quiet_desktop.h"
#include "ratios.h"
#include "straightforward.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

namespace orvane {
namespace {

constexpr std::size_t Blocks = 8191;

ListSettings Settings() {
    ListSettings settings;
    settings.CodeAlphaNum = Mixed;
    settings.CodeSeqRandom = Random;
    settings.CodeLength = 6;
    settings.GroupNames = {"Group 1", "Group 2"};
    return settings;
}

std::vector<std::int16_t> BlockSizes() {
    std::vector<std::int16_t> sizes(Blocks + 1, 4);
    sizes.front() = 0;
    return sizes;
}

std::string TemporaryFile(const char* name) {
    return (std::filesystem::temp_directory_path() / name).string();
}

/// The path of a list file; the destructor deletes the file.
struct ListFile {
    explicit ListFile(const char* name) : path(TemporaryFile(name)) {}
    ListFile(const ListFile&) = delete;
    ListFile& operator=(const ListFile&) = delete;
    ~ListFile() { std::filesystem::remove(path); }
    std::string path;
};

/// Makes the list with the program's routines and the clock and entropy of this machine.
void MakeList(benchmark::State& state, QuietDesktop& desk, Files& files, bool report) {
    const ListSettings settings = Settings();
    ListResults results;
    results.BlockSizes = BlockSizes();
    LinuxEntropy entropy;
    LinuxClock clock;
    const CodePage page = WesternCodePage();
    RandomSource random(entropy);
    Platform platform{desk.messages, desk.pointer,   files,         page, clock, random,
                      desk.shell,    desk.clipboard, desk.registry, "",   '/'};
    const ReportContext context{settings, results, platform};
    const ListFile file("orvane-benchmark-program.txt");
    while (state.KeepRunning()) {
        CreateCodeArr(settings, results, random, clock);
        if (report)
            GenerateText(context, file.path);
    }
    if (!desk.messages.Text.empty())
        state.SkipWithError(desk.messages.Text.c_str());
    if (std::filesystem::exists(file.path))
        state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(file.path));
}

void Program(benchmark::State& state) {
    QuietDesktop desk;
    LinuxFiles files;
    MakeList(state, desk, files, true);
}

void ToMemory(benchmark::State& state) {
    QuietDesktop desk;
    MakeList(state, desk, desk.files, true);
}

void CodesAlone(benchmark::State& state) {
    QuietDesktop desk;
    MakeList(state, desk, desk.files, false);
}

void Straightforward(benchmark::State& state) {
    const ListSettings settings = Settings();
    std::vector<std::int16_t> sizes = BlockSizes();
    sizes.erase(sizes.begin());
    LinuxEntropy entropy;
    LinuxClock clock;
    straightforward::Source source(entropy);
    const ListFile file("orvane-benchmark-straightforward.txt");
    while (state.KeepRunning())
        straightforward::WriteList(settings, sizes, settings.GroupNames, source, clock, file.path);
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(file.path));
}

BENCHMARK(Straightforward)->Name(StraightforwardList)->Unit(benchmark::kMillisecond);
BENCHMARK(Program)->Name(ProgramList)->Unit(benchmark::kMillisecond);
BENCHMARK(ToMemory)->Name("list: program, to memory")->Unit(benchmark::kMillisecond);
BENCHMARK(CodesAlone)->Name("list: program, codes alone")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane
