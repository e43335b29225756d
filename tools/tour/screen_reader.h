// The windows of programs as a screen reader finds them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <atspi/atspi.h>

namespace orvane::driving {

/// A place on the display, in pixels.
struct Box {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
};

/// A control that is shown, as it was at the look.
struct Control {
    std::string Role; ///< such as "push button" or "label"
    std::string Name; ///< the caption, or the accessible name
    std::string Text; ///< the content of a text box
    bool Focused = false;
    bool Checked = false;
    bool Enabled = false;
    std::shared_ptr<AtspiAccessible> Node;
};

/// Reads the accessibility tree of this display.
class ScreenReader {
  public:
    ScreenReader();

    /// The titles of the windows that are shown.
    [[nodiscard]] std::vector<std::string> Titles() const;
    /// Shows the controls of all windows of this title to `look`, outer ones before inner ones, until it
    /// returns true. Returns whether it did.
    bool Any(const std::string& title, const std::function<bool(const Control&)>& look) const;

    /// Where a control is on the display; an empty box if it is gone.
    [[nodiscard]] static Box PlaceOf(const Control& control);
    /// Asks a control to take the focus; false if its kind does not take it in this way.
    static bool Focus(const Control& control);
};

} // namespace orvane::driving
