// Operates the program with the keyboard only.
#pragma once

#include "tools/tour/user.h"

#include <string>
#include <vector>

namespace orvane::validation {

/// Sends keys and reads the state of controls: never uses the mouse, and never sets the focus through the
/// accessibility interface.
class Keyboard {
  public:
    Keyboard(driving::Desktop& desktop, driving::User& user) : desktop_(desktop), user_(user) {}

    /// Opens the menus of the main window with Alt, moves to the last item with the arrow keys, and chooses
    /// it.
    void Choose(const std::vector<std::string>& items);
    /// Selects the option button `name`. `group` holds the names of all option buttons of its group.
    void Select(const std::vector<std::string>& group, const std::string& name);
    /// Checks or clears a check box.
    void Check(const std::string& name, bool checked);
    /// Moves a bar of the options window to a position, counted from its lower limit.
    void MoveBar(const std::string& title, const std::string& name, int stepsFromTheLeast);
    /// Replaces the text of a text box.
    void Fill(const std::string& title, const std::string& name, const std::string& text);

  private:
    /// The menu item that Enter would choose; empty when no menu is open.
    [[nodiscard]] std::string CurrentItem() const;
    /// Presses a key that moves within a menu, and waits until it has moved.
    void Move(const std::string& key);

    driving::Desktop& desktop_;
    driving::User& user_;
};

/// The name of the chosen option button among these; empty if none is.
std::string Chosen(const driving::Desktop& desktop, const std::vector<std::string>& group);
bool IsChecked(driving::User& user, const std::string& name);

} // namespace orvane::validation
