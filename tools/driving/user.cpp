#include "tools/driving/user.h"

#include <algorithm>
#include <thread>

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

constexpr int MostSteps = 40;

/// Does something until it shows its effect, a few times at most. Returns whether it did.
bool Repeat(const std::function<void()>& act, const std::function<bool()>& effect) {
    constexpr int mostTries = 4;
    for (int left = mostTries; left > 0; --left) {
        act();
        for (Deadline deadline(std::chrono::seconds(5)); !deadline.Passed();) {
            if (effect())
                return true;
            std::this_thread::sleep_for(Glance);
        }
    }
    return false;
}

} // namespace

User::User(Desktop& desktop, const fs::path& programFolder) : desktop_(desktop) {
    fs::remove_all(Folder());
    fs::copy(programFolder, Folder(), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    KeepSettings({});
}

int User::Exit() {
    Choose({"File", "Exit"});
    return desktop_.AwaitEnd();
}

Control User::Find(const std::string& title, const std::string& role, const std::string& name) {
    Control found;
    AwaitControl(title, "the " + role + " \"" + name + "\"", [&](const Control& control) {
        if (control.Role != role || control.Name != name)
            return false;
        found = control;
        return true;
    });
    return found;
}

void User::AwaitControl(const std::string& title, const std::string& what,
                        const std::function<bool(const Control&)>& fits) {
    desktop_.AwaitThat(what + " in \"" + title + "\"", [&] { return desktop_.Reader().Any(title, fits); });
}

void User::AwaitText(const std::string& title, const std::string& name, const std::string& text) {
    AwaitControl(title, "\"" + text + "\" in the box \"" + name + "\"", [&](const Control& control) {
        return control.Role == "text" && control.Name == name && control.Text == text;
    });
}

void User::FocusOn(const std::string& title, const std::string& name) {
    desktop_.Await(title);
    bool isTaken = false;
    AwaitControl(title, "the control \"" + name + "\"", [&](const Control& control) {
        const bool isThis = control.Name == name && control.Role != "label";
        isTaken = isThis && ScreenReader::Focus(control);
        return isThis;
    });
    // Table cells and tabs are left out: they report a focus even when their table or tab bar has lost it.
    const auto hasKeys = [&](const Control& control) {
        return control.Focused && control.Name == name && control.Role != "table cell" &&
               control.Role != "page tab" && control.Role != "panel";
    };
    // A table does not take the focus; the Tab key reaches it.
    for (int left = MostSteps; !isTaken && left > 0 && !desktop_.Reader().Any(title, hasKeys); --left)
        desktop_.Press({"Tab"});
    AwaitControl(title, "the focus on \"" + name + "\"", hasKeys);
}

void User::Fill(const std::string& title, const std::string& name, const std::string& text) {
    FocusOn(title, name);
    desktop_.Press({"ctrl+a", "Delete"});
    if (!text.empty())
        desktop_.Type(text);
    AwaitText(title, name, text);
}

void User::Press(const std::string& title, const std::string& name, const Words& keys) {
    FocusOn(title, name);
    desktop_.Press(keys);
}

void User::NameGroups(const std::vector<std::string>& names) {
    Press(MainTitle, "Group Names", Words(names.size(), "Up"));
    for (const std::string& name : names) {
        Fill(MainTitle, "Group Name", name);
        Find(MainTitle, "table cell", name);
        Press(MainTitle, "Group Names", {"Down"});
    }
}

void User::Click(const std::string& title, const std::string& role, const std::string& name, int times) {
    desktop_.Await(title);
    desktop_.Point(ScreenReader::PlaceOf(Find(title, role, name)));
    desktop_.Click(times);
}

void User::OpenMenu(const Words& items) {
    AwaitMain();
    for (const std::string& item : items) {
        desktop_.Point(ScreenReader::PlaceOf(Find(MainTitle, "menu item", item)));
        if (&item != &items.back())
            desktop_.Click();
    }
}

void User::Choose(const Words& items) {
    OpenMenu(items);
    desktop_.Click();
}

Window User::OpenOptions() {
    AwaitMain();
    desktop_.Press({"Return"});
    return desktop_.Await(OptionsTitle);
}

void User::Generate() {
    const Window options = OpenOptions();
    desktop_.Press({"Return"});
    desktop_.AwaitGone(options);
}

void User::Answer(const Window& prompt, const std::string& path) {
    const auto holds = [&] {
        return desktop_.Reader().Any(prompt.Title, [&](const Control& control) {
            return control.Role == "text" && control.Text == path;
        });
    };
    // GTK loses letters on the way to a box that opens for them, and Enter while it reads a folder.
    const auto type = [&] {
        desktop_.Press({"ctrl+a"});
        desktop_.Type(path);
    };
    const auto enter = [&] {
        if (holds())
            desktop_.Press({"Return"});
    };
    const auto taken = [&] {
        const auto active = desktop_.Active();
        return active && active->Id != prompt.Id;
    };
    if (!Repeat(type, holds) || !Repeat(enter, taken))
        throw Fault("the prompt \"" + prompt.Title + "\" does not take the name " + path);
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

void User::AwaitViewer(const std::string& viewer, const fs::path& file) {
    desktop_.AwaitThat("the " + viewer + " with " + file.string(),
                       [&] { return desktop_.LastViewed() == viewer + "\t" + file.string(); });
}

void User::ExpectQuiet() {
    AwaitMain();
    for (int look = 0; look < 20; ++look) {
        for (const std::string& title : desktop_.Titles())
            if (title != MainTitle)
                throw Fault("an unexpected window: " + title);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

} // namespace orvane::driving
