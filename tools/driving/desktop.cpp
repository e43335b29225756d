#include "tools/driving/desktop.h"

#include <cstdlib>
#include <fstream>
#include <thread>
#include <utility>

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

/// The text without its line end.
std::string Line(std::string text) {
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

fs::path FolderOfDisplay() {
    const char* folder = std::getenv("ORVANE_DISPLAY_FOLDER");
    if (folder == nullptr)
        throw Fault("there is no display to work on; please start this through tools/on_display");
    return folder;
}

std::shared_ptr<GSubprocess> Spawn(GSubprocessLauncher* launcher, const Words& words) {
    std::vector<const char*> pointers;
    for (const std::string& word : words)
        pointers.push_back(word.c_str());
    pointers.push_back(nullptr);
    g_autoptr(GError) error = nullptr;
    GSubprocess* started = g_subprocess_launcher_spawnv(launcher, pointers.data(), &error);
    if (started == nullptr)
        throw Fault(words.front() + " does not start: " + error->message);
    return {started, g_object_unref};
}

std::shared_ptr<GSubprocessLauncher> Launcher(int flags) {
    return {g_subprocess_launcher_new(static_cast<GSubprocessFlags>(flags)), g_object_unref};
}

} // namespace

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush())
        throw Fault("cannot write " + path.string());
}

Desktop::Desktop() : folder_(FolderOfDisplay()) {}

Desktop::~Desktop() {
    if (!Running())
        return;
    g_subprocess_force_exit(program_.get());
    g_subprocess_wait(program_.get(), nullptr, nullptr);
}

void Desktop::Start(const fs::path& program, const Environment& variables) {
    const auto launcher = Launcher(G_SUBPROCESS_FLAGS_STDERR_MERGE);
    g_subprocess_launcher_set_stdout_file_path(launcher.get(), Log().c_str());
    for (const auto& [name, value] : variables)
        g_subprocess_launcher_setenv(launcher.get(), name.c_str(), value.c_str(), TRUE);
    program_ = Spawn(launcher.get(), {program.string()});
}

bool Desktop::Running() const {
    return program_ && g_subprocess_get_identifier(program_.get()) != nullptr;
}

int Desktop::AwaitEnd() {
    const auto program = program_;
    AwaitThat("the end of the program", [&] { return !Running(); });
    program_.reset();
    g_subprocess_wait(program.get(), nullptr, nullptr);
    return g_subprocess_get_if_exited(program.get()) != FALSE
               ? g_subprocess_get_exit_status(program.get())
               : 128 + g_subprocess_get_term_sig(program.get());
}

std::optional<Window> Desktop::Active() {
    const auto id = TryRun({"xdotool", "getactivewindow"});
    // The window may have closed in the meantime.
    const auto title = id ? TryRun({"xdotool", "getwindowname", Line(*id)}) : std::nullopt;
    if (!title)
        return std::nullopt;
    return Window{Line(*id), Line(*title)};
}

Window Desktop::Await(const std::string& title) {
    std::optional<Window> found;
    AwaitThat("the window \"" + title + "\"", [&] {
        found = Active();
        return found && found->Title == title;
    });
    return *found;
}

Window Desktop::AwaitGone(const Window& window) {
    std::optional<Window> next;
    AwaitThat("the end of the window \"" + window.Title + "\"", [&] {
        next = Active();
        return !Running() || (next && next->Id != window.Id);
    });
    return next.value_or(Window{});
}

void Desktop::AwaitThat(const std::string& what, const std::function<bool()>& come) {
    Deadline deadline;
    while (!come()) {
        const bool ended = program_ && !Running();
        if (!ended && !deadline.Passed()) {
            std::this_thread::sleep_for(Glance);
            continue;
        }
        std::string text = "awaited: " + what + (ended ? "; the program has ended" : "; it did not come");
        if (const auto active = Active())
            text += "\nactive: \"" + active->Title + "\"";
        for (const std::string& title : Titles())
            text += "\nshown: \"" + title + "\"";
        throw Fault(text + "\n" + Complaints());
    }
}

std::string Desktop::Do(const Words& words) const {
    if (program_ && !Running())
        throw Fault("the program has ended\n" + Complaints());
    return Run(words);
}

void Desktop::Press(const Words& keys) const {
    Words words = {"xdotool", "key", "--delay", "15"};
    words.insert(words.end(), keys.begin(), keys.end());
    Do(words);
}

void Desktop::Type(const std::string& text) const {
    Do({"xdotool", "type", "--delay", "4", "--", text});
}

void Desktop::Point(const AtspiRect& place) const {
    Do({"xdotool", "mousemove", std::to_string(place.x + place.width / 2),
        std::to_string(place.y + place.height / 2)});
}

void Desktop::Click(int times) const {
    Do({"xdotool", "click", "--repeat", std::to_string(times), "--delay", "60", "1"});
}

void Desktop::Picture(const Window& window, const fs::path& file) const {
    constexpr int mostLooks = 20; // a blinking caret never stops changing the picture
    const auto grab = [&] { return Run({"import", "-frame", "-window", window.Id, "-trim", "ppm:-"}); };
    std::string before;
    std::string now = grab();
    for (int look = 0; now != before && look < mostLooks; ++look) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        before = std::exchange(now, grab());
    }
    const fs::path raw = folder_ / "picture.ppm";
    WriteFile(raw, now);
    Run({"convert", raw.string(), file.string()});
    if (fs::file_size(file) < 1000)
        throw Fault("there is nothing to be seen in " + file.string());
}

std::string Desktop::LastViewed() const {
    const std::string starts = Line(ReadFile(folder_ / "viewed"));
    return starts.substr(starts.rfind('\n') + 1);
}

std::optional<std::string> Desktop::TryRun(Words words) {
    words.insert(words.begin(), {"timeout", "--foreground", "60"});
    const auto launcher = Launcher(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_SILENCE);
    const auto child = Spawn(launcher.get(), words);
    g_autoptr(GBytes) output = nullptr;
    g_subprocess_communicate(child.get(), nullptr, nullptr, &output, nullptr, nullptr);
    std::string text;
    if (output != nullptr) {
        gsize size = 0;
        const void* bytes = g_bytes_get_data(output, &size);
        text.assign(static_cast<const char*>(bytes), size);
    }
    return g_subprocess_get_successful(child.get()) != FALSE ? std::optional(text) : std::nullopt;
}

std::string Desktop::Run(const Words& words) {
    auto text = TryRun(words);
    if (!text)
        throw Fault(words.front() + " failed; its last word was " + words.back());
    return *std::move(text);
}

} // namespace orvane::driving
