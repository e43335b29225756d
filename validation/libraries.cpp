#include "validation/libraries.h"

#include "validation/other_program.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string>

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

/// Name and file of each library of the answer's lines "name => file (address)".
std::map<std::string, std::string> FilesOf(const std::string& answer) {
    std::map<std::string, std::string> files;
    std::istringstream lines(answer);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        std::string arrow;
        std::string file;
        if (words >> name >> arrow >> file && arrow == "=>" && file.front() == '/')
            files[name] = file;
    }
    return files;
}

/// The paths under which the package database may list a file: on systems that merged /lib into /usr/lib it
/// contains the old paths.
std::vector<std::string> NamesOf(const std::string& file) {
    std::vector<std::string> names{file};
    std::error_code error;
    const std::string whole = fs::canonical(file, error).string();
    if (error)
        return names;
    names.push_back(whole);
    const std::string usr = "/usr";
    if (whole.compare(0, usr.size() + 1, usr + "/") == 0)
        names.push_back(whole.substr(usr.size()));
    return names;
}

/// The package of each file that belongs to one.
std::map<std::string, std::string> PackagesOf(const std::vector<std::string>& files) {
    std::vector<std::string> command{"dpkg-query", "-S"};
    command.insert(command.end(), files.begin(), files.end());
    std::map<std::string, std::string> packages;
    std::istringstream lines(Ask(command).Output);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(": /");
        if (colon != std::string::npos)
            packages[line.substr(colon + 2)] = line.substr(0, colon);
    }
    return packages;
}

std::string VersionOf(const std::string& package) {
    return Ask({"dpkg-query", "-W", "-f=${binary:Package} ${Version}", package}).Output;
}

std::string Version(const std::string& file, const std::map<std::string, std::string>& packages) {
    for (const std::string& name : NamesOf(file)) {
        const auto found = packages.find(name);
        if (found == packages.end())
            continue;
        std::string version = VersionOf(found->second);
        if (!version.empty())
            return version;
    }
    std::error_code error;
    return "no package: " + fs::canonical(file, error).filename().string();
}

} // namespace

std::vector<Row> LoadedLibraries(const fs::path& program) {
    const std::map<std::string, std::string> files = FilesOf(Ask({"ldd", program.string()}).Output);
    std::vector<std::string> all;
    for (const auto& [name, file] : files)
        for (const std::string& known : NamesOf(file))
            all.push_back(known);
    const std::map<std::string, std::string> packages = PackagesOf(all);
    std::vector<Row> rows;
    for (const auto& [name, file] : files)
        rows.push_back({name, Version(file, packages), file});
    return rows;
}

} // namespace orvane::validation
