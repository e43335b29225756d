#include "platform/linux/program_directory.h"

#include <cstddef>
#include <limits>
#include <unistd.h>

namespace orvane {

namespace {

/// The path of the program file; empty if the system does not tell it.
std::string ProgramFile() {
    constexpr std::size_t longest = std::size_t{1} << 20U;
    for (std::size_t room = 256; room <= longest; room *= 2) {
        std::string path(room, '\0');
        const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
        if (length < 0)
            return {};
        if (static_cast<std::size_t>(length) < room) {
            path.resize(static_cast<std::size_t>(length));
            return path;
        }
    }
    return {};
}

} // namespace

std::string ProgramDirectory() {
    const std::string path = ProgramFile();
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos)
        return ".";
    return separator == 0 ? "/." : path.substr(0, separator);
}

} // namespace orvane
