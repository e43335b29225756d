// What can be done in the program with keys alone.
#pragma once

#include "tools/tour/user.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// Works with keys and looks only: the mouse is not touched, and no control is asked to take the focus.
class Keyboard {
  public:
    Keyboard(driving::Desktop& desktop, driving::User& user) : desktop_(desktop), user_(user) {}

    /// Opens the menus of the main window with Alt, goes to the last item with the arrows, and chooses it.
    void Choose(const std::vector<std::string>& items);
    /// Makes the option button of this name the chosen one of its group, which has these names.
    void Select(const std::vector<std::string>& group, const std::string& name);
    /// Checks a check box, or clears it.
    void Check(const std::string& name, bool checked);
    /// Moves a bar of the options window to a position, counted from its lower limit.
    void MoveBar(const std::string& title, const std::string& name, int stepsFromTheLeast);
    /// Replaces the text of a text box.
    void Fill(const std::string& title, const std::string& name, const std::string& text);

  private:
    /// The menu item that Enter would choose; empty when no menu is open.
    [[nodiscard]] std::string CurrentItem() const;
    /// Presses a key that moves on in a menu, and waits for the move.
    void Move(const std::string& key);

    driving::Desktop& desktop_;
    driving::User& user_;
};

/// The name of the chosen option button among these; empty if none is.
std::string Chosen(const driving::Desktop& desktop, const std::vector<std::string>& group);
bool IsChecked(driving::User& user, const std::string& name);

} // namespace orvane::validation
