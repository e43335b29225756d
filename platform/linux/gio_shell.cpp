#include "platform/linux/gio_shell.h"

#include "platform/failure.h"
#include "platform/linux/glib_pointers.h"
#include "platform/linux/program_file.h"

#include <array>

#include <gio/gdesktopappinfo.h>

namespace orvane {

namespace {

constexpr std::int32_t FileNotFound = 2;
constexpr std::int32_t AccessDenied = 5;
constexpr std::int32_t NoAssociation = 31;
constexpr std::int32_t Done = 42;

/// Whether the program in the command line of the entry can be started. An entry without a command line is
/// started by a D-Bus message, and GIO reports whether that worked.
bool CanStartEntry(GAppInfo* app) {
    const char* const commandLine = g_app_info_get_commandline(app);
    if (commandLine == nullptr)
        return true;
    gchar** words = nullptr;
    if (g_shell_parse_argv(commandLine, nullptr, &words, nullptr) == FALSE)
        return false;
    const GLibPointer<gchar*> owner(words);
    return CanStart(words[0]);
}

bool Launch(GAppInfo* app, const std::string& path) {
    if (!CanStartEntry(app))
        return false;
    const GLibPointer<GFile> file(g_file_new_for_path(path.c_str()));
    const GLibPointer<GList> files(g_list_append(nullptr, file.get()));
    return g_app_info_launch(app, files.get(), nullptr, nullptr) != FALSE;
}

} // namespace

std::int32_t GioShell::FindExecutableA(const std::string& path, std::string& program) {
    const GLibPointer<GFile> file(g_file_new_for_path(path.c_str()));
    const GLibPointer<GFileInfo> info(g_file_query_info(file.get(), G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                        G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    if (!info)
        return FileNotFound;
    const char* const type =
        g_file_info_get_attribute_string(info.get(), G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE);
    if (type == nullptr)
        return NoAssociation;
    const GLibPointer<GAppInfo> app(g_app_info_get_default_for_type(type, FALSE));
    if (!app)
        return NoAssociation;
    program = g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app.get()));
    return Done;
}

std::int32_t GioShell::ShellExecuteA(std::intptr_t /*owner*/, const std::string& program,
                                     const std::string& path) {
    const GLibPointer<GDesktopAppInfo> app(g_desktop_app_info_new_from_filename(program.c_str()));
    return app && Launch(G_APP_INFO(app.get()), path) ? Done : AccessDenied;
}

void GioShell::StartProgram(const std::string& path) {
    std::string program = path;
    std::array<gchar*, 2> arguments{program.data(), nullptr};
    GError* found = nullptr;
    // Without G_SPAWN_DO_NOT_REAP_CHILD GLib itself removes the ended process.
    g_spawn_async(nullptr, arguments.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, &found);
    if (const GLibPointer<GError> error{found})
        throw Failure("The program " + path + " could not be started: " + error->message,
                      failure_number::CannotStart, "GioShell");
}

} // namespace orvane
