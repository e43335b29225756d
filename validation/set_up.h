// Enters the set-up of a list through the windows of the program.
#pragma once

#include "tools/tour/user.h"
#include "validation/keyboard.h"
#include "validation/list_setup.h"

namespace orvane::validation {

/// Enters set-ups, up to "OK" in the options window. After a Fault the program is left as it is.
class SetUp {
  public:
    SetUp(driving::Desktop& desktop, driving::User& user)
        : desktop_(desktop), user_(user), keys_(desktop, user) {}

    /// Requires: the main window has the keyboard focus.
    void Give(const ListSetup& setup);
    /// Loads a settings file.
    void Load(const std::filesystem::path& file);
    /// Saves a settings file. An existing file is deleted first.
    void Save(const std::filesystem::path& file);

  private:
    void TypeMainWindow(const ListSetup& setup);
    void TypeOptions(const ListSetup& setup);
    void ClickOptions(const ListSetup& setup);
    /// Sets what is not in a settings file.
    void SetFormatAndStatistics(const ListSetup& setup);

    driving::Desktop& desktop_;
    driving::User& user_;
    Keyboard keys_;
};

} // namespace orvane::validation
