// The windows of programs, read through the accessibility tree as a screen reader does.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <atspi/atspi.h>

namespace orvane::driving {

/// A visible control, in the state at the time of the look.
struct Control {
    std::string Role; ///< such as "push button" or "label"
    std::string Name; ///< the accessible name, often the caption
    std::string Text; ///< the content of a text box
    bool Focused = false;
    bool Checked = false;
    std::shared_ptr<AtspiAccessible> Node;
};

/// Reads the accessibility tree of this display.
class ScreenReader {
  public:
    ScreenReader();

    /// The titles of the visible windows.
    [[nodiscard]] std::vector<std::string> Titles() const;
    /// Calls `look` for the controls of all windows with this title, parents before children, until it
    /// returns true. Returns whether it returned true.
    bool Any(const std::string& title, const std::function<bool(const Control&)>& look) const;

    /// The rectangle of a control on the display, in pixels; empty if the control no longer exists.
    [[nodiscard]] static AtspiRect PlaceOf(const Control& control);
    /// Asks a control to take the focus. Returns false if this kind of control refuses.
    static bool Focus(const Control& control);

  private:
    std::shared_ptr<AtspiAccessible> root_; ///< its children are the programs
};

} // namespace orvane::driving
