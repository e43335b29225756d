#include "child.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::tour {

namespace {

constexpr std::chrono::milliseconds Pause{5};

std::vector<char*> Pointers(Words& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The list of what happens to the open files of a new process.
class FileActions {
  public:
    FileActions() { posix_spawn_file_actions_init(&actions_); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void Open(int as, const char* path, int flags) {
        posix_spawn_file_actions_addopen(&actions_, as, path, flags, 0600);
    }
    void Copy(int from, int as) { posix_spawn_file_actions_adddup2(&actions_, from, as); }
    [[nodiscard]] const posix_spawn_file_actions_t* Get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

pid_t Spawn(Words words, Words environment, const FileActions& actions) {
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&attributes, 0);
    pid_t id = -1;
    const int fault = posix_spawnp(&id, words.front().c_str(), actions.Get(), &attributes,
                                   Pointers(words).data(), Pointers(environment).data());
    posix_spawnattr_destroy(&attributes);
    if (fault != 0)
        throw Fault(words.front() + " does not start: " + std::strerror(fault));
    return id;
}

} // namespace

Child::Child(const Words& words, const Words& environment, const std::filesystem::path& log, Output output)
    : name_(words.front()) {
    FileActions actions;
    actions.Open(STDIN_FILENO, "/dev/null", O_RDONLY);
    actions.Open(STDERR_FILENO, log.c_str(), O_WRONLY | O_CREAT | O_APPEND);
    std::array<int, 2> pipe = {-1, -1};
    if (output == Output::ToReader) {
        if (pipe2(pipe.data(), O_CLOEXEC) != 0)
            throw Fault("no pipe");
        actions.Copy(pipe[1], STDOUT_FILENO);
    } else {
        actions.Copy(STDERR_FILENO, STDOUT_FILENO);
    }
    reader_ = pipe[0];
    try {
        id_ = Spawn(words, environment, actions);
    } catch (...) {
        close(pipe[0]);
        close(pipe[1]);
        throw;
    }
    if (pipe[1] >= 0)
        close(pipe[1]);
}

Child::~Child() {
    if (Running()) {
        kill(-id_, SIGTERM);
        if (!AwaitEnd(Deadline(std::chrono::seconds(5)))) {
            kill(-id_, SIGKILL);
            AwaitEnd(Deadline(std::chrono::seconds(5)));
        }
    }
    if (reader_ >= 0)
        close(reader_);
}

bool Child::Running() {
    if (code_)
        return false;
    int status = 0;
    if (waitpid(id_, &status, WNOHANG) == 0)
        return true;
    code_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return false;
}

std::optional<int> Child::AwaitEnd(Deadline deadline) {
    while (Running() && !deadline.Passed())
        std::this_thread::sleep_for(Pause);
    return code_;
}

std::string Child::Read(int stop, Deadline deadline) {
    std::string text;
    std::array<char, 65536> buffer{};
    const std::size_t atOnce = stop < 0 ? buffer.size() : 1;
    for (;;) {
        pollfd waiting{reader_, POLLIN, 0};
        if (poll(&waiting, 1, 20) <= 0) {
            if (deadline.Passed())
                throw Fault(name_ + " says nothing more");
            continue;
        }
        const ssize_t count = read(reader_, buffer.data(), atOnce);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
        if (stop >= 0 && text.back() == static_cast<char>(stop))
            return text;
    }
}

std::optional<std::string> TryOutputOf(const Words& words, const Words& environment,
                                       const std::filesystem::path& log) {
    Child child(words, environment, log, Child::Output::ToReader);
    std::string text = child.Read(-1);
    const auto code = child.AwaitEnd(Deadline());
    if (!code)
        throw Fault(words.front() + " does not end");
    if (*code != 0)
        return std::nullopt;
    return text;
}

std::string OutputOf(const Words& words, const Words& environment, const std::filesystem::path& log) {
    auto text = TryOutputOf(words, environment, log);
    if (!text) {
        std::string line;
        for (const std::string& word : words)
            line += word + " ";
        throw Fault(line + "failed");
    }
    return *std::move(text);
}

} // namespace orvane::tour
