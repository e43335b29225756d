// The display on which this process runs, used as a person uses it: windows, keys, mouse, pictures,
// clipboard.
#pragma once

#include "tools/driving/screen_reader.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gio/gio.h>

struct xdo;

namespace orvane::driving {

/// Something awaited did not happen, or a result is wrong.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr std::chrono::milliseconds Glance{10};   ///< between two looks of a wait
constexpr std::chrono::milliseconds Reaction{20}; ///< from the sight of a new window to the next key

using Words = std::vector<std::string>;
/// Variables of a program's environment and their values.
using Environment = std::map<std::string, std::string>;

/// The end of a wait: the time is over and at least 50 looks were taken. So a wait does not end only because
/// the machine was busy.
class Deadline {
  public:
    explicit Deadline(std::chrono::milliseconds patience = std::chrono::seconds(60))
        : end_(std::chrono::steady_clock::now() + patience) {}

    /// Requires: called once after each look.
    bool Passed() { return ++looks_ > Fewest && std::chrono::steady_clock::now() > end_; }

  private:
    static constexpr int Fewest = 50;
    std::chrono::steady_clock::time_point end_;
    int looks_ = 0;
};

/// The bytes of a file; empty if it cannot be read.
std::string ReadFile(const std::filesystem::path& path);
/// Writes a file and creates its folder if necessary. Throws Fault.
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// A window that was active: the one that gets the keys.
struct Window {
    std::string Id;
    std::string Title;
};

/// Runs one program at a time. A wait throws a Fault that says what was awaited, if the program has ended or
/// the time is over.
class Desktop {
  public:
    /// Throws Fault if this process was not started by tools/on_display.
    Desktop();
    /// Stops the program if it is still running.
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// A folder for temporary files: it is deleted when the display ends.
    [[nodiscard]] std::filesystem::path Folder() const { return folder_; }

    /// Starts a program with these variables besides the ones of this process.
    void Start(const std::filesystem::path& program, const Environment& variables = {});
    [[nodiscard]] bool Running() const;
    /// The number of the running program's process.
    [[nodiscard]] std::string Process() const { return g_subprocess_get_identifier(program_.get()); }
    void Signal(int number) const { g_subprocess_send_signal(program_.get(), number); }
    /// Waits for the end of the program. Returns its exit code, or 128 + the number of the signal that ended
    /// it.
    /// Requires: the program is ending by itself.
    int AwaitEnd();

    /// The active window.
    [[nodiscard]] std::optional<Window> Active() const;
    [[nodiscard]] std::vector<std::string> Titles() const { return reader_.Titles(); }
    /// Waits until a window with exactly this title is active.
    Window Await(const std::string& title);
    /// Waits until another window is active, and returns it, or until the program has ended.
    Window AwaitGone(const Window& window);
    /// Waits until `come` returns true; `what` is its description in the Fault.
    void AwaitThat(const std::string& what, const std::function<bool()>& come);

    /// Presses keys, given by names such as "ctrl+Tab", one after the other in the control with the focus.
    void Press(const Words& keys) const;
    void Type(const std::string& text) const;
    /// Moves the mouse pointer to the middle of `place`.
    void Point(const AtspiRect& place) const;
    /// Clicks where the mouse pointer is.
    void Click(int times = 1) const;

    [[nodiscard]] const ScreenReader& Reader() const { return reader_; }

    /// Saves a picture of a window with its frame, as soon as its content no longer changes. The window with
    /// the Id "root" is the whole display.
    void Picture(const Window& window, const std::filesystem::path& file) const;

    /// The text that another program gets from the clipboard.
    [[nodiscard]] std::string Pasted() const { return Run({"xclip", "-selection", "clipboard", "-out"}); }
    /// The last start of a viewer: its name, "browser" or "reader", and its arguments, separated by tabs.
    [[nodiscard]] std::string LastViewed() const;
    /// What the program has written to standard output and standard error.
    [[nodiscard]] std::string Complaints() const { return ReadFile(Log()); }

    /// The output of a command. Throws Fault if its exit code is not 0 or it takes more than a minute.
    static std::string Run(Words words);

  private:
    [[nodiscard]] std::filesystem::path Log() const { return folder_ / "log"; }

    std::filesystem::path folder_; // first: throws without a display
    ScreenReader reader_;
    std::shared_ptr<xdo> input_; ///< the keyboard and the mouse
    std::string awaited_;        ///< the number of the last window that was awaited
    std::shared_ptr<GSubprocess> program_;
};

} // namespace orvane::driving
