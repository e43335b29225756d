#include "tools/driving/desktop.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <thread>
#include <utility>

extern "C" {
#include <X11/Xutil.h>
#include <xdo.h>
}

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

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

Desktop::Desktop() : folder_(FolderOfDisplay()), input_(xdo_new(nullptr), xdo_free) {
    if (!input_)
        throw Fault("the display does not answer");
    input_->quiet = 1;
    // A window may close while it is asked for its title. That would end this process.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
}

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
    AwaitThat("the end of its windows", [&] { return !Active(); });
    awaited_.clear(); // the next program may get the same numbers for its windows
    g_subprocess_wait(program.get(), nullptr, nullptr);
    return g_subprocess_get_if_exited(program.get()) != FALSE
               ? g_subprocess_get_exit_status(program.get())
               : 128 + g_subprocess_get_term_sig(program.get());
}

std::optional<Window> Desktop::Active() const {
    static const Atom name = XInternAtom(input_->xdpy, "_NET_WM_NAME", False);
    ::Window id = 0;
    XTextProperty title{};
    // A window that has just closed has no title any more.
    if (xdo_get_active_window(input_.get(), &id) != XDO_SUCCESS ||
        XGetTextProperty(input_->xdpy, id, &title, name) == 0)
        return std::nullopt;
    const std::unique_ptr<unsigned char, decltype(&XFree)> text(title.value, XFree);
    return Window{std::to_string(id), std::string(text.get(), text.get() + title.nitems)};
}

Window Desktop::Await(const std::string& title) {
    std::optional<Window> found;
    AwaitThat("the window \"" + title + "\"", [&] {
        found = Active();
        // The program drops what is pressed while it works. It answers a screen reader when it has done.
        return found && found->Title == title &&
               (found->Id == awaited_ || std::ranges::count(Titles(), title) > 0);
    });
    if (std::exchange(awaited_, found->Id) != found->Id)
        std::this_thread::sleep_for(Reaction);
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

void Desktop::Press(const Words& keys) const {
    for (const std::string& key : keys)
        xdo_send_keysequence_window(input_.get(), CURRENTWINDOW, key.c_str(), 15'000);
}

void Desktop::Type(const std::string& text) const {
    xdo_enter_text_window(input_.get(), CURRENTWINDOW, text.c_str(), 4'000);
}

void Desktop::Point(const AtspiRect& place) const {
    xdo_move_mouse(input_.get(), place.x + place.width / 2, place.y + place.height / 2, 0);
}

void Desktop::Click(int times) const {
    xdo_click_window_multiple(input_.get(), CURRENTWINDOW, 1, times, 60'000);
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
    std::string starts = ReadFile(folder_ / "viewed");
    if (!starts.empty())
        starts.pop_back(); // the end of its last line
    return starts.substr(starts.rfind('\n') + 1);
}

std::string Desktop::Run(Words words) {
    words.insert(words.begin(), {"timeout", "--foreground", "60"});
    const auto launcher = Launcher(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_SILENCE);
    const auto child = Spawn(launcher.get(), words);
    g_autoptr(GBytes) output = nullptr;
    g_subprocess_communicate(child.get(), nullptr, nullptr, &output, nullptr, nullptr);
    if (g_subprocess_get_successful(child.get()) == FALSE)
        throw Fault(words[3] + " failed; its last word was " + words.back());
    gsize size = 0;
    const auto* const bytes = static_cast<const char*>(g_bytes_get_data(output, &size));
    return {bytes, size};
}

} // namespace orvane::driving
