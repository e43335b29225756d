#include "user.h"

#include <algorithm>
#include <thread>

namespace orvane::tour {

namespace fs = std::filesystem;

namespace {

constexpr int MostSteps = 40;

/// Cells and tabs keep a focus of their own within a control that has lost the keyboard's.
bool HasKeys(const Control& control) {
    return control.Focused && control.Role != "table cell" && control.Role != "cell" &&
           control.Role != "page tab" && control.Role != "panel";
}

} // namespace

User::User(XDesktop& desktop, const fs::path& programFolder) : desktop_(desktop) {
    fs::copy(programFolder, Folder());
    KeepSettings({});
}

int User::Exit() {
    Choose({"File", "Exit"});
    return desktop_.AwaitEnd();
}

int User::CloseFrame() {
    AwaitMain();
    desktop_.Press({"alt+F4"});
    return desktop_.AwaitEnd();
}

Control User::Find(const std::string& title, const std::string& role, const std::string& name) {
    Control found;
    AwaitControl(title, "the " + role + " \"" + name + "\"", [&](const Control& control) {
        found = control;
        return control.Role == role && control.Name == name;
    });
    return found;
}

void User::AwaitControl(const std::string& title, const std::string& what,
                        const std::function<bool(const Control&)>& fits) {
    desktop_.AwaitThat(what + " in \"" + title + "\"",
                       [&] { return std::ranges::any_of(desktop_.Controls(title), fits); });
}

void User::FocusOn(const std::string& title, const std::string& name) {
    desktop_.Await(title);
    for (int left = MostSteps; !IsFocused(title, name); --left) {
        if (left == 0)
            throw Fault("no Tab reaches " + name);
        Step(title, "Tab");
    }
}

bool User::IsFocused(const std::string& title, const std::string& name) {
    const Words focused = Focused(title);
    return std::ranges::find(focused, name) != focused.end();
}

Words User::Focused(const std::string& title) {
    Words names;
    for (const Control& control : desktop_.Controls(title))
        if (HasKeys(control))
            names.push_back(control.Name);
    return names;
}

void User::Step(const std::string& title, const std::string& key) {
    const Words before = Focused(title);
    desktop_.Press({key});
    Deadline deadline(std::chrono::seconds(1));
    while (Focused(title) == before && !deadline.Passed())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void User::OpenMenu(const Words& items) {
    AwaitMain();
    Step(MainTitle, "Alt_L");
    std::string key = "Right"; // along the bar; down within a menu
    for (std::size_t level = 0; level < items.size(); ++level) {
        for (int left = MostSteps; !IsFocused(MainTitle, items[level]); --left) {
            if (left == 0)
                throw Fault("no key reaches the menu item \"" + items[level] + "\"");
            Step(MainTitle, key);
        }
        if (level + 1 < items.size())
            Step(MainTitle, level == 0 ? "Down" : "Right");
        key = "Down";
    }
}

void User::LeaveMenu() {
    const auto isOpen = [&] {
        return std::ranges::any_of(desktop_.Controls(MainTitle), [](const Control& control) {
            return control.Role == "popup menu" || (control.Role == "menu bar" && control.Focused);
        });
    };
    // Between the end of a menu and the return to the bar neither shows, so it is the second look that
    // counts.
    desktop_.AwaitThat("the end of the menu", [&] {
        if (isOpen())
            Step(MainTitle, "Escape");
        else if (std::this_thread::sleep_for(std::chrono::milliseconds(100)); !isOpen())
            return true;
        return false;
    });
}

void User::Choose(const Words& items) {
    OpenMenu(items);
    desktop_.Press({"Return"});
}

void User::Answer(const Window& prompt, const std::string& path) {
    desktop_.Press({"ctrl+a"});
    desktop_.Type(path);
    AwaitControl(prompt.Title, "the name " + path,
                 [&](const Control& control) { return control.Role == "text" && control.Text == path; });
    desktop_.Press({"Return"});
}

Message User::AwaitMessage() {
    Message message{desktop_.Await(MessageTitle), ""};
    AwaitControl(MessageTitle, "a text", [&](const Control& control) {
        message.Text = control.Name;
        return control.Role == "label" && !control.Name.empty();
    });
    return message;
}

void User::Confirm(const Message& message) {
    desktop_.Press({"Return"});
    desktop_.AwaitGone(message.Box);
}

void User::ExpectQuiet() {
    AwaitMain();
    for (int look = 0; look < 20; ++look) {
        for (const Window& window : desktop_.Windows())
            if (window.Title != MainTitle)
                throw Fault("an unexpected window: " + window.Title);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

} // namespace orvane::tour
