#include "validation/keyboard.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace orvane::validation {

using driving::Control;
using driving::Deadline;
using driving::Fault;
using driving::MainTitle;
using driving::OptionsTitle;

namespace {

constexpr int MostSteps = 20;

} // namespace

std::string Keyboard::CurrentItem() const {
    std::string current;
    desktop_.Reader().Any(MainTitle, [&](const Control& control) {
        if (control.Focused && control.Role.ends_with("menu item"))
            current = control.Name;
        return false; // the innermost menu comes last
    });
    return current;
}

void Keyboard::Move(const std::string& key) {
    const std::string before = CurrentItem();
    desktop_.Press({key});
    for (Deadline deadline(std::chrono::milliseconds(700)); CurrentItem() == before && !deadline.Passed();)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void Keyboard::Choose(const std::vector<std::string>& items) {
    user_.AwaitMain();
    Move("Alt_L");
    std::string key = "Right"; // along the menu bar; Down within a menu
    for (std::size_t level = 0; level < items.size(); ++level) {
        for (int left = MostSteps; CurrentItem() != items[level]; --left) {
            if (left == 0)
                throw Fault("no key reaches the menu item \"" + items[level] + "\"");
            Move(key);
        }
        if (level + 1 < items.size())
            Move(level == 0 ? "Down" : "Right");
        key = "Down";
    }
    desktop_.Press({"Return"});
}

void Keyboard::Select(const std::vector<std::string>& group, const std::string& name) {
    const auto index = [&](const std::string& button) {
        return std::find(group.begin(), group.end(), button) - group.begin();
    };
    for (int left = MostSteps; left > 0; --left) {
        const std::string chosen = Chosen(desktop_, group);
        if (chosen == name)
            return;
        user_.TabTo(OptionsTitle, chosen);
        desktop_.Press({index(chosen) < index(name) ? "Down" : "Up"});
        desktop_.AwaitThat("another choice than \"" + chosen + "\"",
                           [&] { return Chosen(desktop_, group) != chosen; });
    }
    throw Fault("no key reaches the option button \"" + name + "\"");
}

void Keyboard::Check(const std::string& name, bool checked) {
    if (IsChecked(user_, name) == checked)
        return;
    user_.TabTo(OptionsTitle, name);
    desktop_.Press({"space"});
    desktop_.AwaitThat("the change of \"" + name + "\"", [&] { return IsChecked(user_, name) == checked; });
}

void Keyboard::MoveBar(const std::string& title, const std::string& name, int stepsFromTheLeast) {
    user_.TabTo(title, name);
    std::vector<std::string> keys = {"Home"};
    keys.insert(keys.end(), static_cast<std::size_t>(stepsFromTheLeast), "Right");
    desktop_.Press(keys);
}

void Keyboard::Fill(const std::string& title, const std::string& name, const std::string& text) {
    user_.TabTo(title, name);
    desktop_.Press({"ctrl+a"});
    desktop_.Type(text);
    user_.AwaitText(title, name, text);
}

std::string Chosen(const driving::Desktop& desktop, const std::vector<std::string>& group) {
    std::string chosen;
    desktop.Reader().Any(OptionsTitle, [&](const Control& control) {
        const bool found = control.Role == "radio button" && control.Checked &&
                           std::find(group.begin(), group.end(), control.Name) != group.end();
        if (found)
            chosen = control.Name;
        return found;
    });
    return chosen;
}

bool IsChecked(driving::User& user, const std::string& name) {
    return user.Find(OptionsTitle, "check box", name).Checked;
}

} // namespace orvane::validation
