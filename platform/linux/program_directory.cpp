#include "platform/linux/program_directory.h"

#include "platform/failure.h"

#include <filesystem>
#include <system_error>

#include <sys/auxv.h>

namespace orvane {

namespace {

namespace fs = std::filesystem;

/// The path of the program file.
fs::path ProgramFile() {
    std::error_code error;
    fs::path file = fs::read_symlink("/proc/self/exe", error);
    if (!error)
        return file;
    // Without /proc: the path with which the program was started.
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system gives an address as a number
    const auto* const started = reinterpret_cast<const char*>(::getauxval(AT_EXECFN));
    fs::path absolute = fs::canonical(started == nullptr ? "" : started, error);
    if (!error)
        return absolute;
    throw Failure("The system does not tell in which folder the program lies: " + error.message(),
                  error.value(), "ProgramDirectory");
}

} // namespace

std::string ProgramDirectory() {
    const std::string folder = ProgramFile().parent_path().string();
    return folder == "/" ? "/." : folder;
}

} // namespace orvane
