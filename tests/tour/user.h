// A person who works with the program by its keyboard, and reads what its windows show.
#pragma once

#include "fakes/settings_text.h"
#include "files.h"
#include "x_desktop.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tour {

using fakes::BytesOf;
using Settings = fakes::SettingsText;

constexpr const char* MainTitle = "Randomization Main";
constexpr const char* OptionsTitle = "Options";
constexpr const char* OutputTitle = "Output";
constexpr const char* MessageTitle = "Orvane Software";
constexpr const char* SaveListTitle = "Save Orvane File As...";
constexpr const char* SaveSettingsTitle = "Save Settings As...";
constexpr const char* LoadSettingsTitle = "Select the Settings file";

/// A message box that waits for its button.
struct Message {
    Window Box;
    std::string Text;
};

/// Works in a copy of the program's folder, so that the settings of its last run are this person's own.
class User {
  public:
    User(XDesktop& desktop, const std::filesystem::path& programFolder);
    /// Removes the settings of the last run, so that the next start finds none.
    void ForgetSettings() const { std::filesystem::remove(SavedSettings()); }
    void KeepSettings(const Settings& settings) const { WriteFile(SavedSettings(), BytesOf(settings)); }

    /// The copy of the program's folder. A blank stands in its name.
    [[nodiscard]] std::filesystem::path Folder() const { return desktop_.Folder() / "Orvane program"; }
    [[nodiscard]] std::filesystem::path SavedSettings() const { return Folder() / "saved.stg"; }

    /// Starts the program; a message of the start is for the caller.
    void StartProgram() { desktop_.Start(Folder() / "orvane"); }
    /// Ends the program from its main window, and returns its exit code.
    int Exit();
    int CloseFrame();

    /// Steps with the Tab key until the control of this name has the focus.
    void FocusOn(const std::string& title, const std::string& name);
    /// Opens the menus up to the item, which is highlighted then, and shows it without choosing it.
    void OpenMenu(const Words& items);
    void LeaveMenu();
    void Choose(const Words& items);
    /// Gives a file prompt a path, or any other answer than the name that it offers.
    void Answer(const Window& prompt, const std::string& path);

    /// Waits for a message. It stays until Confirm.
    Message AwaitMessage();
    void Confirm(const Message& message);
    /// Waits for the main window to take the keys.
    Window AwaitMain() { return desktop_.Await(MainTitle); }
    /// Fails if any other window than the main one is there, now or within the next second.
    void ExpectQuiet();

    /// The first control with this role and name; a Fault if none comes.
    Control Find(const std::string& title, const std::string& role, const std::string& name);
    /// Waits until there is such a control, and it is as `fits` wants it.
    void AwaitControl(const std::string& title, const std::string& what,
                      const std::function<bool(const Control&)>& fits);

  private:
    /// The names of the controls that get the keys: of a menu bar, the items on the way too.
    Words Focused(const std::string& title);
    bool IsFocused(const std::string& title, const std::string& name);
    /// Presses a key that moves the focus, and sees it moved.
    void Step(const std::string& title, const std::string& key);

    XDesktop& desktop_;
};

} // namespace orvane::tour
