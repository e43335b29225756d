#include "validation/run.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QSysInfo>

#include <algorithm>
#include <fstream>
#include <set>
#include <stdexcept>

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

/// The version that the About box shows.
std::string ShownVersion(Session& session) {
    const std::string word = "Version ";
    driving::User& user = session.Person();
    user.Choose({"Help", "About..."});
    const driving::Window about = session.Display().Await("About Orvane Software");
    std::string version;
    user.AwaitControl(about.Title, "a version", [&](const driving::Control& control) {
        if (control.Role == "label" && control.Name.starts_with(word))
            version = control.Name.substr(word.size());
        return !version.empty();
    });
    session.Display().Press({"Escape"});
    session.Display().AwaitGone(about);
    return version;
}

/// The libraries and fonts that the running program has mapped into its memory: name, folder, SHA-256.
std::vector<Row> MappedFiles(Session& session) {
    std::set<fs::path> files;
    std::ifstream maps("/proc/" + session.Display().Process() + "/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.find(".so") != std::string::npos || line.find("/fonts/") != std::string::npos)
            files.insert(line.substr(line.find('/')));
    std::vector<Row> rows;
    for (const fs::path& file : files) {
        const bool isDelivered = file.string().starts_with(session.Person().Folder().string());
        if (fs::exists(file))
            rows.push_back({file.filename().string(), isDelivered ? "delivered" : file.parent_path().string(),
                            Sha256(file)});
    }
    return rows;
}

std::string Origin(const fs::path& program, const std::string& commit) {
    const bool isBuilt = fs::exists(BUILT_PROGRAM) && Sha256(program) == Sha256(BUILT_PROGRAM);
    return isBuilt ? "built from commit " + commit : "not built from the sources of this validation";
}

} // namespace

std::string Sha256(const fs::path& file) {
    QFile bytes(QString::fromStdString(file.string()));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!bytes.open(QIODevice::ReadOnly) || !hash.addData(&bytes))
        throw std::runtime_error(file.string() + " cannot be read");
    return hash.result().toHex().toStdString();
}

std::vector<Row> FilesBelow(const fs::path& folder) {
    std::vector<Row> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink())
            files.push_back({name, "link", "to " + fs::read_symlink(entry.path()).string()});
        else if (entry.is_regular_file())
            files.push_back({name, std::to_string(entry.file_size()), Sha256(entry.path())});
    }
    std::ranges::sort(files);
    return files;
}

Run Identify(const fs::path& folder, Session& session, const std::string& commit) {
    const ListSetup setup{.SampleSize = 20};
    session.Restart(setup);
    Run what;
    what.Version = ShownVersion(session);
    if (const MadeList list = session.Make(setup); !list.NotMade.empty())
        throw std::runtime_error("The program makes no list: " + list.NotMade);
    what.Started = QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm:ss t").toStdString();
    what.Files = FilesBelow(folder);
    what.Mapped = MappedFiles(session);
    what.Facts = {
        {"Program", "Orvane Software, version " + what.Version + " as its About box shows"},
        {"Folder", fs::canonical(folder).string()},
        {"Origin", Origin(folder / "orvane", commit)},
        {"Operating system", QSysInfo::prettyProductName().toStdString() + ", kernel " +
                                 QSysInfo::kernelVersion().toStdString() + ", " +
                                 QSysInfo::currentCpuArchitecture().toStdString()},
        {"Machine", QSysInfo::machineHostName().toStdString()},
        {"Desktop (XDG_CURRENT_DESKTOP)",
         qEnvironmentVariable("XDG_CURRENT_DESKTOP", "not set").toStdString() + ", on a display of its own"},
        {"Locale (LANG)", qEnvironmentVariable("LANG", "not set").toStdString()},
    };
    return what;
}

} // namespace orvane::validation
