// Other programs, started without a shell and never waited for without an end.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/types.h>

namespace orvane::tour {

/// What was awaited did not come, or came out wrong.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

/// The end of a wait: the time is over, and there was a number of looks within it. So nothing is given up
/// only because the machine itself stood still.
class Deadline {
  public:
    explicit Deadline(std::chrono::seconds patience = std::chrono::seconds(100))
        : end_(std::chrono::steady_clock::now() + patience) {}

    /// To be asked after each look.
    bool Passed() { return ++looks_ > Fewest && std::chrono::steady_clock::now() > end_; }

  private:
    static constexpr int Fewest = 100;
    std::chrono::steady_clock::time_point end_;
    int looks_ = 0;
};

/// One running program. At the end of its object it is stopped, with all that it started in its process
/// group.
class Child {
  public:
    enum class Output { ToLog, ToReader };

    /// Starts words[0], looked up on the PATH. Its error output, and its output unless there is a reader, is
    /// appended to the file `log`. Throws Fault if it cannot be started.
    Child(const Words& words, const Words& environment, const std::filesystem::path& log, Output output);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    [[nodiscard]] bool Running();
    /// The exit code, 128 + the signal of a killed one; nothing when it still runs at the deadline.
    std::optional<int> AwaitEnd(Deadline deadline);
    /// The output up to and with `stop`, or to its end for a negative one. Throws Fault at the deadline.
    std::string Read(int stop, Deadline deadline = Deadline());

  private:
    std::string name_;
    pid_t id_ = -1;
    int reader_ = -1;
    std::optional<int> code_;
};

/// Runs a program to its end and returns its output; nothing if it ended with another code than 0.
std::optional<std::string> TryOutputOf(const Words& words, const Words& environment,
                                       const std::filesystem::path& log);
/// The same, but any other code than 0 is a Fault.
std::string OutputOf(const Words& words, const Words& environment, const std::filesystem::path& log);

} // namespace orvane::tour
