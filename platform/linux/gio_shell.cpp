#include "platform/linux/gio_shell.h"

#include "platform/failure.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <string_view>

#include <gio/gdesktopappinfo.h>

namespace orvane {

namespace {

constexpr std::int32_t FileNotFound = 2;
constexpr std::int32_t AccessDenied = 5;
constexpr std::int32_t NoAssociation = 31;
constexpr std::int32_t Done = 42;

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

/// Whether `program`, a path or a name to be searched in PATH, is an executable file and, if it is a script,
/// whether its interpreter is one too. Needed because GIO starts programs through a helper process, and so
/// reports success for a program that the system refuses to start.
bool CanStart(const std::string& program) {
    constexpr int systemFollows = 5;
    const g_autofree gchar* found = g_find_program_in_path(program.c_str());
    if (found == nullptr)
        return false;
    std::string path = found;
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

/// Whether the program in the command line of the entry can be started. An entry without a command line is
/// started by a D-Bus message, and GIO reports whether that worked.
bool CanStartEntry(GAppInfo* app) {
    const char* const commandLine = g_app_info_get_commandline(app);
    if (commandLine == nullptr)
        return true;
    g_auto(GStrv) words = nullptr;
    return g_shell_parse_argv(commandLine, nullptr, &words, nullptr) != FALSE && CanStart(words[0]);
}

bool Launch(GAppInfo* app, const std::string& path) {
    if (!CanStartEntry(app))
        return false;
    g_autoptr(GFile) file = g_file_new_for_path(path.c_str());
    g_autoptr(GList) files = g_list_append(nullptr, file);
    return g_app_info_launch(app, files, nullptr, nullptr) != FALSE;
}

} // namespace

std::int32_t GioShell::FindExecutableA(const std::string& path, std::string& program) {
    g_autoptr(GFile) file = g_file_new_for_path(path.c_str());
    g_autoptr(GFileInfo) info = g_file_query_info(file, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                  G_FILE_QUERY_INFO_NONE, nullptr, nullptr);
    if (info == nullptr)
        return FileNotFound;
    const char* const type = g_file_info_get_attribute_string(info, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE);
    if (type == nullptr)
        return NoAssociation;
    g_autoptr(GAppInfo) app = g_app_info_get_default_for_type(type, FALSE);
    if (app == nullptr)
        return NoAssociation;
    program = g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app));
    return Done;
}

std::int32_t GioShell::ShellExecuteA(std::intptr_t /*owner*/, const std::string& program,
                                     const std::string& path) {
    g_autoptr(GDesktopAppInfo) app = g_desktop_app_info_new_from_filename(program.c_str());
    return app != nullptr && Launch(G_APP_INFO(app), path) ? Done : AccessDenied;
}

void GioShell::StartProgram(const std::string& path) {
    std::string program = path;
    std::array<gchar*, 2> arguments{program.data(), nullptr};
    g_autoptr(GError) error = nullptr;
    // Without G_SPAWN_DO_NOT_REAP_CHILD GLib itself removes the ended process.
    g_spawn_async(nullptr, arguments.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, &error);
    if (error != nullptr)
        throw Failure("The program " + path + " could not be started: " + error->message,
                      failure_number::CannotStart, "GioShell");
}

} // namespace orvane
