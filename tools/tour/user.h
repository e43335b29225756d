// A person who works with the program, and reads what its windows show.
//
// A program that drives it this way links the library `driving` and is started by tools/on_display:
//
//     Desktop desktop;
//     User user(desktop, folderOfTheProgram);
//     user.KeepSettings({.Groups = {"A", "B"}, .SampleSize = "20"});
//     user.StartProgram();
//     user.Generate();                                         // the options as they are
//     user.Answer(desktop.Await(SaveListTitle), "/tmp/list.txt");
//     ...
//     user.Exit();
#pragma once

#include "desktop.h"
#include "settings_text.h"

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

/// A message box that waits for its button.
struct Message {
    Window Box;
    std::string Text;
};

/// Works in a copy of the program's folder, so that the settings of its last run are this person's own.
class User {
  public:
    /// Copies the program's folder; a copy that is there already is deleted before.
    User(Desktop& desktop, const std::filesystem::path& programFolder);

    /// Removes the settings of the last run, so that the next start finds none.
    void ForgetSettings() const { std::filesystem::remove(SavedSettings()); }
    void KeepSettings(const SettingsText& settings) const { WriteFile(SavedSettings(), BytesOf(settings)); }

    /// The copy of the program's folder. Blanks and letters outside ASCII stand in its name.
    [[nodiscard]] std::filesystem::path Folder() const { return desktop_.Folder() / "Orvane für Prüfungen"; }
    [[nodiscard]] std::filesystem::path SavedSettings() const { return Folder() / "saved.stg"; }

    /// Starts the program as on the desktop `kind`; a message of the start is for the caller.
    void StartProgram(const std::string& kind = "") { desktop_.Start(Folder() / "orvane", kind); }
    /// Ends the program from its main window, and returns its exit code.
    int Exit();
    int CloseFrame();

    /// The first control with this role and name. Awaits it.
    Control Find(const std::string& title, const std::string& role, const std::string& name);
    /// Waits until there is such a control, and it is as `fits` wants it.
    void AwaitControl(const std::string& title, const std::string& what,
                      const std::function<bool(const Control&)>& fits);
    /// Waits until the text box of this name holds `text`.
    void AwaitText(const std::string& title, const std::string& name, const std::string& text);

    /// Gives the control of this name the focus. Only a window that takes the keys can have it.
    void FocusOn(const std::string& title, const std::string& name);
    /// Steps with the Tab key until the control of this name has the focus.
    void TabTo(const std::string& title, const std::string& name);
    /// Replaces the text of the text box of this name.
    void Fill(const std::string& title, const std::string& name, const std::string& text);
    void Click(const std::string& title, const std::string& role, const std::string& name);

    /// Opens the menus up to the last item, which is shown and not chosen.
    void OpenMenu(const Words& items);
    void LeaveMenu();
    void Choose(const Words& items);

    /// Opens the options from the main window by the Enter key.
    Window OpenOptions();
    /// Starts a generation with the options as they are.
    void Generate();
    /// Gives a file prompt a path, or any other answer than the name that it offers.
    void Answer(const Window& prompt, const std::string& path);

    /// Waits for a message. It stays until Confirm.
    Message AwaitMessage();
    void Confirm(const Message& message);
    /// Waits for the main window to take the keys.
    Window AwaitMain() { return desktop_.Await(MainTitle); }
    /// Waits until a viewer was started last, with this file.
    void AwaitViewer(const std::string& viewer, const std::filesystem::path& file);
    /// Fails if any other window than the main one is there, now or within the next second.
    void ExpectQuiet();

  private:
    Desktop& desktop_;
};

} // namespace orvane::driving
