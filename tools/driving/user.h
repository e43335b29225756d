// Uses the program as a person does: presses keys, clicks, and reads the windows. To be started with
// tools/on_display.
#pragma once

#include "tools/driving/desktop.h"
#include "tools/driving/settings_text.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::driving {

constexpr const char* MainTitle = "Randomization Main";
constexpr const char* OptionsTitle = "Options";
constexpr const char* OutputTitle = "Output";
constexpr const char* MessageTitle = "Orvane Software";
constexpr const char* SaveListTitle = "Save Orvane File As...";
constexpr const char* SaveOutputTitle = "Save to File As...";
constexpr const char* RandomFileTitle = "Select the random file";
constexpr const char* SaveSettingsTitle = "Save Settings As...";
constexpr const char* LoadSettingsTitle = "Select the Settings file";

/// An open message box.
struct Message {
    Window Box;
    std::string Text;
};

/// Works in a copy of the program's folder, so that the original settings of the last run are not changed.
class User {
  public:
    /// Copies the program's folder; an existing copy is deleted first.
    User(Desktop& desktop, const std::filesystem::path& programFolder);

    void KeepSettings(const SettingsText& settings) const { WriteFile(SavedSettings(), BytesOf(settings)); }

    /// The copy of the program's folder. Its name contains spaces and letters outside ASCII.
    [[nodiscard]] std::filesystem::path Folder() const { return desktop_.Folder() / "Orvane für Prüfungen"; }
    [[nodiscard]] std::filesystem::path SavedSettings() const { return Folder() / "saved.stg"; }

    /// Starts the program. A message that it shows at the start is left open.
    void StartProgram(const Environment& variables = {}) { desktop_.Start(Folder() / "orvane", variables); }
    /// Ends the program with the menu of its main window and returns its exit code.
    int Exit();

    /// Waits for a control with this role and name and returns the first one.
    Control Find(const std::string& title, const std::string& role, const std::string& name);
    /// Waits until `fits` returns true for a control of the window; `what` is its description in the Fault.
    void AwaitControl(const std::string& title, const std::string& what,
                      const std::function<bool(const Control&)>& fits);
    /// Waits until the text box with this name contains `text`.
    void AwaitText(const std::string& title, const std::string& name, const std::string& text);

    /// Gives the focus to the control with this name.
    /// Requires: the window is active or becomes active.
    void FocusOn(const std::string& title, const std::string& name);
    /// Gives the focus to the control with this name, and presses keys.
    void Press(const std::string& title, const std::string& name, const Words& keys = {"space"});
    /// Replaces the text of the text box with this name.
    void Fill(const std::string& title, const std::string& name, const std::string& text);
    /// Types the names into the group name grid.
    /// Requires: the number of groups is that of the names.
    void NameGroups(const std::vector<std::string>& names);
    /// Clicks in the middle of a control.
    void Click(const std::string& title, const std::string& role, const std::string& name, int times = 1);

    /// Opens the menus down to the last item, which is highlighted but not chosen.
    void OpenMenu(const Words& items);
    void Choose(const Words& items);

    /// Opens the options window with the Enter key in the main window.
    Window OpenOptions();
    /// Starts a generation with the options unchanged.
    void Generate();
    /// Types a path into a file prompt and confirms it.
    /// Requires: the path is not the name that the prompt offers.
    void Answer(const Window& prompt, const std::string& path);

    /// Waits for a message box, which stays open until Confirm.
    Message AwaitMessage();
    void Confirm(const Message& message);
    /// Waits until the main window is active.
    Window AwaitMain() { return desktop_.Await(MainTitle); }
    /// Waits until the last start of a viewer is `viewer` with this file.
    void AwaitViewer(const std::string& viewer, const std::filesystem::path& file);
    /// Throws Fault if another window than the main window is open, now or within the next second.
    void ExpectQuiet();

  private:
    Desktop& desktop_;
};

} // namespace orvane::driving
