#include "platform/linux/program_file.h"

#include "platform/linux/glib_pointers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <string_view>

namespace orvane {

namespace {

/// The interpreter in the first line of a script; empty if the file is not a script or cannot be read.
std::string InterpreterOf(const std::string& path) {
    constexpr std::size_t systemReads = 256;
    constexpr std::string_view blanks = " \t";
    std::array<char, systemReads> start{};
    std::ifstream file(path, std::ios::binary);
    file.read(start.data(), start.size());
    std::string_view line(start.data(), static_cast<std::size_t>(file.gcount()));
    if (!line.starts_with("#!"))
        return {};
    line.remove_prefix(2);
    line = line.substr(0, line.find('\n'));
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    return std::string(line.substr(0, line.find_first_of(blanks)));
}

} // namespace

bool CanStart(const std::string& program) {
    constexpr int systemFollows = 5;
    const GLibPointer<gchar> found(g_find_program_in_path(program.c_str()));
    if (!found)
        return false;
    std::string path = found.get();
    for (int i = 0; i < systemFollows; ++i) {
        if (g_file_test(path.c_str(), G_FILE_TEST_IS_REGULAR) == FALSE ||
            g_file_test(path.c_str(), G_FILE_TEST_IS_EXECUTABLE) == FALSE)
            return false;
        path = InterpreterOf(path);
        if (path.empty())
            return true;
    }
    return false;
}

} // namespace orvane
