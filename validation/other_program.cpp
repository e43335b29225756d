#include "validation/other_program.h"

#include <glib.h>

#include <memory>

#include <sys/wait.h>

namespace orvane::validation {
namespace {

using Text = std::unique_ptr<char, decltype(&g_free)>;

} // namespace

ProgramAnswer Ask(const std::vector<std::string>& command, int seconds) {
    std::vector<std::string> words{"env", "LC_ALL=C.UTF-8", "timeout", "--kill-after=5",
                                   std::to_string(seconds)};
    words.insert(words.end(), command.begin(), command.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    char* output = nullptr;
    char* errors = nullptr;
    int status = 0;
    ProgramAnswer answer;
    answer.Started = g_spawn_sync(nullptr, arguments.data(), nullptr, G_SPAWN_SEARCH_PATH, nullptr, nullptr,
                                  &output, &errors, &status, nullptr) != FALSE;
    const Text keepOutput(output, g_free);
    const Text keepErrors(errors, g_free);
    if (!answer.Started)
        return answer;
    answer.Output = output;
    answer.Errors = errors;
    if (WIFEXITED(status))
        answer.ExitCode = WEXITSTATUS(status);
    constexpr int noSuchProgram = 127;
    answer.Started = answer.ExitCode != noSuchProgram;
    return answer;
}

} // namespace orvane::validation
