// Makes lists with the delivered program, through its windows.
#pragma once

#include "tools/tour/user.h"
#include "validation/made_list.h"
#include "validation/set_up.h"

#include <filesystem>

namespace orvane::validation {

class ListMaker {
  public:
    /// Works with a copy of the program's folder.
    /// Requires: this process was started by tools/on_display.
    ListMaker(const std::filesystem::path& program, const std::filesystem::path& evidence);

    /// Sets up, generates, saves and reads back one list; its file is kept as evidence. Never throws: if the
    /// list was not made, NotMade gives the reason, and the program is restarted for the next list.
    MadeList Make(const ListSetup& setup);

    driving::Desktop& Display() { return desktop_; }
    driving::User& Person() { return user_; }
    SetUp& Settings() { return setUp_; }
    /// Starts the program with these settings as its saved ones, after ending one that is still running.
    void Restart(const ListSetup& setup);

  private:
    /// Ends the program if it is still running.
    void Kill();
    void Generate(MadeList& list);
    void TakeFile(MadeList& list);
    void TakeFromWindow(MadeList& list);
    void TakeFromClipboard(MadeList& list);
    void TakeRunsMessage(MadeList& list);
    /// The temporary lists in the program's folder.
    [[nodiscard]] std::vector<std::filesystem::path> TemporaryFiles() const;

    driving::Desktop desktop_;
    driving::User user_;
    SetUp setUp_;
    std::filesystem::path evidence_;
};

} // namespace orvane::validation
