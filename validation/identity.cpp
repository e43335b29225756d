#include "validation/identity.h"

#include "platform/application.h"
#include "validation/libraries.h"
#include "validation/output_folder.h"

#include <glib.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <thread>

#include <sys/utsname.h>

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

constexpr const char* ProgramFile = "orvane";

/// The value after `key` and `separator` in the first line that starts with the key.
std::string ValueIn(const fs::path& file, const std::string& key, char separator) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, key.size(), key) != 0)
            continue;
        const std::size_t at = line.find(separator);
        if (at == std::string::npos)
            continue;
        std::string value = line.substr(at + 1);
        value.erase(0, value.find_first_not_of(" \t\""));
        value.erase(value.find_last_not_of(" \t\"") + 1);
        return value;
    }
    return "unknown";
}

std::string Now() {
    const std::unique_ptr<GDateTime, decltype(&g_date_time_unref)> now(g_date_time_new_now_local(),
                                                                       g_date_time_unref);
    const std::unique_ptr<char, decltype(&g_free)> text(
        g_date_time_format(now.get(), "%Y-%m-%d %H:%M:%S, time zone %Z (%:z)"), g_free);
    return text.get();
}

std::string OperatingSystem() {
    utsname kernel{};
    ::uname(&kernel);
    return ValueIn("/etc/os-release", "PRETTY_NAME", '=') + ", kernel " + kernel.sysname + " " +
           kernel.release + " " + kernel.machine;
}

std::string Machine() {
    return std::string(g_get_host_name()) + ", " + std::to_string(std::thread::hardware_concurrency()) +
           " x " + ValueIn("/proc/cpuinfo", "model name", ':') + ", memory " +
           ValueIn("/proc/meminfo", "MemTotal", ':');
}

std::string Operator() {
    return std::string(g_get_user_name()) + " (" + g_get_real_name() + ")";
}

/// The SHA-256 of bytes in hexadecimal digits.
std::string Sha256(const std::string& bytes) {
    const std::unique_ptr<char, decltype(&g_free)> digits(
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(bytes.data()),
                                    bytes.size()),
        g_free);
    return digits.get();
}

/// Where the delivered program comes from: whether it is the one built together with this validation.
std::string Origin(const fs::path& program, const fs::path& built) {
    if (built.empty() || !fs::exists(built))
        return "not known; there was no program built from these sources to compare it with";
    if (ReadWhole(program) == ReadWhole(built))
        return "built from this commit on this machine (the files are identical)";
    return "delivered from elsewhere: the file differs from the program built from this commit on this "
           "machine";
}

} // namespace

std::vector<Row> FilesBelow(const fs::path& folder) {
    std::vector<Row> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink()) {
            files.push_back({name, "link to " + fs::read_symlink(entry.path()).string(), ""});
        } else if (entry.is_regular_file()) {
            const std::string bytes = ReadWhole(entry.path());
            files.push_back({name, std::to_string(bytes.size()), Sha256(bytes)});
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void RequireProgram(const fs::path& appFolder) {
    if (!fs::is_regular_file(appFolder / ProgramFile))
        throw std::runtime_error(appFolder.string() + " contains no program named " + ProgramFile + ".");
}

Identity Identify(const fs::path& appFolder, const SourceState& sources) {
    RequireProgram(appFolder);
    const fs::path folder = fs::canonical(appFolder);
    const fs::path program = folder / ProgramFile;
    Identity identity;
    identity.Program = ApplicationTitle;
    identity.Version = std::to_string(ApplicationVersion.Major) + "." +
                       std::to_string(ApplicationVersion.Minor) + "." +
                       std::to_string(ApplicationVersion.Revision);
    identity.Commit = sources.Commit;
    identity.Tree = sources.Tree;
    identity.Started = Now();
    identity.Facts = {{"Program", identity.Program},
                      {"Version", identity.Version},
                      {"Folder of the program", folder.string()},
                      {"Commit of the sources", identity.Commit},
                      {"Tree of the sources", identity.Tree},
                      {"Program file", Origin(program, sources.Built)},
                      {"Machine", Machine()},
                      {"Operating system", OperatingSystem()},
                      {"Date", identity.Started},
                      {"Run by", Operator()}};
    identity.Files = FilesBelow(folder);
    identity.Libraries = LoadedLibraries(program);
    return identity;
}

} // namespace orvane::validation
