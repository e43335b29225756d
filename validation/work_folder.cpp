#include "validation/work_folder.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

/// The signal handler may call almost no functions, so it passes the signal to a thread through this pipe.
int signalPipe = -1;

extern "C" void HandOver(int signal) {
    const auto number = static_cast<unsigned char>(signal);
    const ssize_t written = ::write(signalPipe, &number, 1);
    (void)written; // if the pipe is full, a signal is already in it
}

void Remove(const fs::path& path) {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

[[noreturn]] void EndAtSignal(int pipe, const fs::path& path) {
    unsigned char number = 0;
    while (::read(pipe, &number, 1) != 1) {
    }
    Remove(path);
    constexpr int signalExit = 128; // as shells do
    ::_exit(signalExit + number);
}

} // namespace

WorkFolder::WorkFolder() {
    std::string name = (fs::temp_directory_path() / "orvane-validation-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr)
        throw std::runtime_error(name + " cannot be made: " + std::generic_category().message(errno));
    path_ = name;
}

WorkFolder::~WorkFolder() {
    Remove(path_);
}

void WorkFolder::RemoveOnSignals() const {
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("No pipe can be made: " + std::generic_category().message(errno));
    signalPipe = pipe[1];
    std::thread(EndAtSignal, pipe[0], path_).detach();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, HandOver);
}

} // namespace orvane::validation
