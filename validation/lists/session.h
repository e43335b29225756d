// Operates a copy of the delivered program through its windows: makes lists, saves and loads settings.
#pragma once

#include "tools/driving/user.h"
#include "validation/lists/list.h"

#include <filesystem>
#include <string>

namespace orvane::validation {

class Session {
  public:
    /// Copies the folder of the program. Lists are written into the folder `lists`, which is created.
    /// Requires: this process was started by tools/on_display.
    Session(const std::filesystem::path& program, const std::filesystem::path& lists);

    /// Ends the program if it is running, and starts it with the set-up as its settings of the last run, and
    /// with these variables in its environment, such as LD_PRELOAD. Throws driving::Fault.
    void Restart(const ListSetup& setup, const driving::Environment& variables = {});

    /// Enters the set-up, makes one list, and reads it back. A set-up with Way::Started must be that of the
    /// last Restart; only what no settings file holds is entered, so that lists follow quickly upon each
    /// other. Never throws: if the list was not made, NotMade gives the reason and the program is stopped.
    MadeList Make(const ListSetup& setup);

    /// Enters the set-up, up to the press of OK in the options window. Throws driving::Fault.
    void Enter(const ListSetup& setup);
    /// Load or save a settings file and return the message, which is closed. Throw driving::Fault.
    std::string Load(const std::filesystem::path& file);
    std::string Save(const std::filesystem::path& file);

    /// The text of the next message, which is closed; lines ended by LF. Throws driving::Fault.
    std::string Told();
    /// Ends the program at once if it is running.
    void Stop();
    /// The temporary lists in the program's folder.
    [[nodiscard]] std::vector<std::filesystem::path> TemporaryFiles() const;

    driving::Desktop& Display() { return desktop_; }
    driving::User& Person() { return user_; }

  private:
    std::string Answer(const std::string& prompt, const std::filesystem::path& file);
    void TypeMainWindow(const ListSetup& setup);
    void TypeOptions(const ListSetup& setup);
    void EnterFormat(const ListSetup& setup);
    void MoveBar(const std::string& title, const std::string& name, int least, int value);
    void Take(MadeList& list, const std::filesystem::path& file);
    void SaveFromWindow(MadeList& list, const std::filesystem::path& file);

    driving::Desktop desktop_;
    driving::User user_;
    std::filesystem::path lists_;
    ListSetup format_; ///< what the tabs Format and Statistics hold
};

} // namespace orvane::validation
