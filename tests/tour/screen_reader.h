// The windows of a program as a screen reader finds them.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace orvane::tour {

/// A place on the display, in pixels.
struct Box {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
};

/// A control that is shown.
struct Control {
    std::string Role; ///< such as "push button" or "label"
    std::string Name; ///< the caption, or the accessible name
    std::string Text; ///< the content of a text box
    bool Focused = false;
    bool Checked = false;
    bool Enabled = false;
    Box Place;
};

/// Reads the accessibility tree of the programs on a desktop.
class ScreenReader {
  public:
    /// Connects through the session bus of the desktop. Throws Fault.
    explicit ScreenReader(const std::string& sessionBus);

    /// The shown controls of all windows of this title, outer ones before inner ones. Empty while there are
    /// none, or while the program does not answer.
    [[nodiscard]] std::vector<Control> Controls(const std::string& title) const;

  private:
    class Tree;
    std::shared_ptr<Tree> tree_;
};

} // namespace orvane::tour
