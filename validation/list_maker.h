// Makes lists with the real program, through its windows.
#pragma once

#include "tools/tour/user.h"
#include "validation/made_list.h"
#include "validation/set_up.h"

#include <filesystem>

namespace orvane::validation {

class ListMaker {
  public:
    /// Works with a copy of the program's folder. Requires: tools/on_display started this process.
    ListMaker(const std::filesystem::path& program, const std::filesystem::path& evidence);

    /// Sets up, generates, saves and reads back one list; its file stays in the evidence. Throws nothing: a
    /// list that was not made says why, and the program is started anew for the next one.
    MadeList Make(const ListSetup& setup);

    driving::Desktop& Display() { return desktop_; }
    driving::User& Person() { return user_; }
    SetUp& Settings() { return setUp_; }
    /// Starts the program with these settings beside it, ending one that still runs.
    void Restart(const ListSetup& setup);

  private:
    /// Ends the program if it still runs.
    void Kill();
    void Generate(MadeList& list);
    void TakeFile(MadeList& list);
    void TakeFromWindow(MadeList& list);
    void TakeFromClipboard(MadeList& list);
    void TakeRunsMessage(MadeList& list);
    /// The temporary lists beside the program.
    [[nodiscard]] std::vector<std::filesystem::path> TemporaryFiles() const;

    driving::Desktop desktop_;
    driving::User user_;
    SetUp setUp_;
    std::filesystem::path evidence_;
};

} // namespace orvane::validation
