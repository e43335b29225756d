#include "platform/linux/gio_shell.h"

#include "platform/failure.h"
#include "platform/linux/glib_pointers.h"
#include "platform/linux/program_file.h"

#include <string_view>
#include <vector>

#include <gio/gdesktopappinfo.h>

namespace orvane {

namespace {

constexpr std::int32_t FileNotFound = 2;
constexpr std::int32_t AccessDenied = 5;
constexpr std::int32_t NoAssociation = 31;
constexpr std::int32_t Done = 42;

constexpr std::string_view DesktopEntry = ".desktop";

/// What FindExecutableA tells of a program so that ShellExecuteA finds it again.
std::string ProgramOf(GAppInfo* app) {
    const char* text = nullptr;
    if (G_IS_DESKTOP_APP_INFO(app) != FALSE)
        text = g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app));
    if (text == nullptr)
        text = g_app_info_get_id(app);
    if (text == nullptr)
        text = g_app_info_get_executable(app);
    return text == nullptr ? std::string() : std::string(text);
}

GLibPointer<GDesktopAppInfo> LoadEntry(const std::string& program) {
    const bool isPath = program.find(G_DIR_SEPARATOR) != std::string::npos;
    return GLibPointer<GDesktopAppInfo>(isPath ? g_desktop_app_info_new_from_filename(program.c_str())
                                               : g_desktop_app_info_new(program.c_str()));
}

bool Launch(GAppInfo* app, const std::string& path) {
    const char* const executable = g_app_info_get_executable(app);
    if (executable != nullptr && !CanStart(executable))
        return false;
    const GLibPointer<GFile> file(g_file_new_for_path(path.c_str()));
    const GLibPointer<GList> files(g_list_append(nullptr, file.get()));
    return g_app_info_launch(app, files.get(), nullptr, nullptr) != FALSE;
}

/// Starts a program file and leaves it to itself. The error, null when it was started.
GLibPointer<GError> Spawn(std::vector<std::string> arguments) {
    std::vector<gchar*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    GError* error = nullptr;
    // Without further flags GLib collects the exit of the program itself.
    g_spawn_async(nullptr, pointers.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, &error);
    return GLibPointer<GError>(error);
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
    program = ProgramOf(app.get());
    return program.empty() ? NoAssociation : Done;
}

std::int32_t GioShell::ShellExecuteA(std::intptr_t /*owner*/, const std::string& program,
                                     const std::string& path) {
    if (!program.ends_with(DesktopEntry))
        return Spawn({program, path}) ? AccessDenied : Done;
    const GLibPointer<GDesktopAppInfo> app = LoadEntry(program);
    return app && Launch(G_APP_INFO(app.get()), path) ? Done : AccessDenied;
}

void GioShell::StartProgram(const std::string& path) {
    if (const GLibPointer<GError> error = Spawn({path}))
        throw Failure("The program " + path + " could not be started: " + error->message,
                      failure_number::CannotStart, "GioShell");
}

} // namespace orvane
