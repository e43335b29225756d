// Ways to give the program the set-up of a list through its windows.
#pragma once

#include "tools/tour/user.h"
#include "validation/keyboard.h"
#include "validation/list_setup.h"

namespace orvane::validation {

/// Gives the program set-ups, up to the "OK" of the options window. A Fault leaves the program as it stands.
class SetUp {
  public:
    SetUp(driving::Desktop& desktop, driving::User& user)
        : desktop_(desktop), user_(user), keys_(desktop, user) {}

    /// Requires: the main window has the keys.
    void Give(const ListSetup& setup);
    /// Reads a settings file into the program.
    void Load(const std::filesystem::path& file);
    /// Writes a settings file from the program; one that is there already is deleted before.
    void Save(const std::filesystem::path& file);

  private:
    void TypeMainWindow(const ListSetup& setup);
    void TypeOptions(const ListSetup& setup);
    void ClickOptions(const ListSetup& setup);
    /// What no settings file holds.
    void SetFormatAndStatistics(const ListSetup& setup);

    driving::Desktop& desktop_;
    driving::User& user_;
    Keyboard keys_;
};

} // namespace orvane::validation
