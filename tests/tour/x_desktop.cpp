#include "x_desktop.h"

#include "files.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <thread>
#include <utility>

namespace orvane::tour {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds Glance{40};

// One line of tab-separated words a start; the arguments in their order.
constexpr const char* ViewerScript = "#!/bin/sh\n"
                                     "line=$(printf '%s' \"${0##*/}\"; printf '\\t%s' \"$@\")\n"
                                     "printf '%s\\n' \"$line\" >>\"$(dirname \"$0\")/viewed\"\n";

constexpr const char* ManagerRules =
    "<?xml version=\"1.0\"?>\n"
    "<openbox_config xmlns=\"http://openbox.org/3.4/rc\">\n"
    "<focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>\n"
    "<placement><policy>Smart</policy><center>yes</center></placement>\n"
    "<desktops><number>1</number><popupTime>0</popupTime></desktops>\n"
    "<keyboard><keybind key=\"A-F4\"><action name=\"Close\"/></keybind></keyboard>\n"
    "<mouse><context name=\"Client\"><mousebind button=\"Left\" action=\"Press\">"
    "<action name=\"Focus\"/><action name=\"Raise\"/></mousebind></context></mouse>\n"
    "</openbox_config>\n";

Words Split(const std::string& text, char separator) {
    Words words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, separator);)
        words.push_back(word);
    return words;
}

/// The window ids, such as 0x60000a, in a line of xprop's output; none with its zero.
Words WindowIds(const std::string& line) {
    Words ids;
    for (std::size_t at = line.find("0x"); at != std::string::npos; at = line.find("0x", at + 1)) {
        const std::string id = line.substr(at, line.find_first_not_of("0123456789abcdefx", at) - at);
        if (id != "0x0")
            ids.push_back(id);
    }
    return ids;
}

} // namespace

XDesktop::XDesktop() {
    MakeHome();
    // The server ends with this process however that ends, and all on the display ends with the server.
    server_ =
        std::make_unique<Child>(Words{"setpriv", "--pdeathsig", "KILL", "Xvfb", "-displayfd", "1", "-noreset",
                                      "-screen", "0", "1280x1024x24", "-dpi", "96", "-nolisten", "tcp"},
                                environment_, Log(), Child::Output::ToReader);
    const std::string display = server_->Read('\n');
    if (display.empty())
        throw Fault("the display server does not start:\n" + Complaints());
    environment_.push_back("DISPLAY=:" + display.substr(0, display.find('\n')));

    bus_ = std::make_unique<Child>(
        Words{"setpriv", "--pdeathsig", "KILL", "dbus-daemon", "--session", "--nofork", "--print-address=1"},
        environment_, Log(), Child::Output::ToReader);
    const std::string address = bus_->Read('\n');
    if (address.empty())
        throw Fault("the bus does not start:\n" + Complaints());
    const std::string bus = address.substr(0, address.find('\n'));
    environment_.push_back("DBUS_SESSION_BUS_ADDRESS=" + bus);

    const fs::path rules = Folder() / "openbox.xml";
    WriteFile(rules, ManagerRules);
    manager_ = std::make_unique<Child>(Words{"openbox", "--sm-disable", "--config-file", rules.string()},
                                       environment_, Log(), Child::Output::ToLog);
    AwaitThat("a window manager", [&] {
        return !WindowIds(Run({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"})).empty();
    });
    reader_.emplace(bus);
}

XDesktop::~XDesktop() {
    reader_.reset();
    program_.reset();
    manager_.reset();
    bus_.reset();
    server_.reset();
}

void XDesktop::MakeHome() {
    const char* path = std::getenv("PATH");
    environment_ = {std::string("PATH=") + (path == nullptr ? "/usr/bin:/bin" : path),
                    "LANG=C.UTF-8",
                    "QT_QPA_PLATFORM=xcb",
                    "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1",
                    "GSETTINGS_BACKEND=memory",
                    "ASAN_OPTIONS=detect_leaks=0",
                    "UBSAN_OPTIONS=print_stacktrace=1"};
    const auto folder = [&](const char* name, const char* under) {
        fs::path made = Folder() / under;
        fs::create_directories(made);
        environment_.push_back(std::string(name) + "=" + made.string());
        return made;
    };
    folder("HOME", "home");
    folder("XDG_CONFIG_HOME", "config");
    folder("XDG_DATA_HOME", "data");
    folder("XDG_CACHE_HOME", "cache");
    fs::permissions(folder("XDG_RUNTIME_DIR", "runtime"), fs::perms::owner_all);
    RegisterViewer("browser", "text/html");
    RegisterViewer("reader", "text/plain");
    WriteFile(Folder() / "config/mimeapps.list",
              "[Default Applications]\ntext/html=browser.desktop\ntext/plain=reader.desktop\n");
}

void XDesktop::RegisterViewer(const std::string& name, const std::string& type) const {
    const fs::path script = Folder() / name;
    WriteFile(script, ViewerScript);
    fs::permissions(script, fs::perms::owner_all);
    std::ostringstream entry;
    entry << "[Desktop Entry]\nType=Application\nName=" << name << "\nExec=" << script.string()
          << " %f\nMimeType=" << type << ";\n";
    WriteFile(Folder() / "data/applications" / (name + ".desktop"), entry.str());
}

void XDesktop::Start(const fs::path& program) {
    program_ = std::make_unique<Child>(Words{program.string()}, environment_, Log(), Child::Output::ToLog);
}

int XDesktop::AwaitEnd() {
    const auto code = program_->AwaitEnd(Deadline());
    if (!code)
        throw Fault("the program does not end");
    program_.reset();
    return *code;
}

std::vector<Window> XDesktop::Windows() const {
    const Words lines = Split(Run({"xprop", "-root", "_NET_CLIENT_LIST", "_NET_ACTIVE_WINDOW"}), '\n');
    std::vector<Window> windows;
    if (lines.size() < 2)
        return windows;
    const Words active = WindowIds(lines[1]);
    for (const std::string& id : WindowIds(lines[0])) {
        // A window may be gone meanwhile.
        const auto name = TryOutputOf({"xdotool", "getwindowname", id}, environment_, Log());
        if (name && !name->empty())
            windows.push_back(
                {id, name->substr(0, name->size() - 1), std::ranges::find(active, id) != active.end()});
    }
    return windows;
}

Window XDesktop::Await(const std::string& title, std::string_view except) {
    Window found;
    AwaitThat("the window \"" + title + "\"", [&] {
        for (const Window& window : Windows())
            if (window.Title == title && window.Active && window.Id != except) {
                found = window;
                return true;
            }
        return false;
    });
    return found;
}

void XDesktop::AwaitGone(const Window& window) {
    AwaitThat("the end of the window \"" + window.Title + "\"", [&] {
        return std::ranges::none_of(Windows(), [&](const Window& other) { return other.Id == window.Id; });
    });
}

void XDesktop::AwaitThat(const std::string& what, const std::function<bool()>& come) {
    Deadline deadline;
    while (!come()) {
        const bool ended = program_ && !program_->Running();
        if (!ended && !deadline.Passed()) {
            std::this_thread::sleep_for(Glance);
            continue;
        }
        std::string text = "awaited: " + what + (ended ? "; the program has ended" : "; it did not come");
        for (const Window& window : Windows())
            text += "\nshown: \"" + window.Title + "\"" + (window.Active ? ", active" : "");
        throw Fault(text + "\n" + Complaints());
    }
}

void XDesktop::Press(const Words& keys) {
    if (program_ && !program_->Running())
        throw Fault("the program has ended");
    Words words = {"xdotool", "key", "--delay", "15"};
    words.insert(words.end(), keys.begin(), keys.end());
    Do(words);
}

void XDesktop::Type(const std::string& text) const {
    Do({"xdotool", "type", "--delay", "5", text});
}

void XDesktop::Click(const Box& box, int times) const {
    Do({"xdotool", "mousemove", std::to_string(box.X + box.Width / 2), std::to_string(box.Y + box.Height / 2),
        "click", "--repeat", std::to_string(times), "--delay", "60", "1"});
}

std::vector<Control> XDesktop::Controls(const std::string& title) {
    return reader_->Controls(title);
}

std::string XDesktop::Grab(const Words& from) const {
    Words words = {"import"};
    words.insert(words.end(), from.begin(), from.end());
    words.push_back("ppm:-");
    return Run(words);
}

void XDesktop::SettleAndWrite(const Words& from, const fs::path& file) const {
    constexpr int mostLooks = 20; // a caret goes on blinking
    std::string before;
    std::string now = Grab(from);
    for (int look = 0; now != before && look < mostLooks; ++look) {
        std::this_thread::sleep_for(std::chrono::milliseconds(120));
        before = std::exchange(now, Grab(from));
    }
    const fs::path raw = Folder() / "picture.ppm";
    WriteFile(raw, now);
    Do({"convert", raw.string(), file.string()});
    if (fs::file_size(file) < 1000)
        throw Fault("there is nothing to be seen in " + file.string());
}

void XDesktop::Picture(const fs::path& file) const {
    SettleAndWrite({"-window", "root", "-trim"}, file);
}

void XDesktop::Picture(const Window& window, const fs::path& file) const {
    SettleAndWrite({"-frame", "-window", window.Id}, file);
}

std::string XDesktop::Pasted() const {
    return Run({"xclip", "-selection", "clipboard", "-out"});
}

std::vector<Words> XDesktop::Viewed() const {
    std::vector<Words> starts;
    for (const std::string& line : Split(ReadFile(Folder() / "viewed"), '\n'))
        starts.push_back(Split(line, '\t'));
    return starts;
}

std::string XDesktop::Complaints() const {
    return ReadFile(Log());
}

} // namespace orvane::tour
