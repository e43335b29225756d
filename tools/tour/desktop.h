// The display that this process runs on, with a person's hands and eyes: windows, keys, the mouse, pictures,
// the clipboard.
#pragma once

#include "screen_reader.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gio/gio.h>

namespace orvane::driving {

/// What was awaited did not come, or came out wrong.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

/// The end of a wait: the time is over, and there was a number of looks within it. So nothing is given up
/// only because the machine itself stood still.
class Deadline {
  public:
    explicit Deadline(std::chrono::milliseconds patience = std::chrono::seconds(60))
        : end_(std::chrono::steady_clock::now() + patience) {}

    /// To be asked after each look.
    bool Passed() { return ++looks_ > Fewest && std::chrono::steady_clock::now() > end_; }

  private:
    static constexpr int Fewest = 50;
    std::chrono::steady_clock::time_point end_;
    int looks_ = 0;
};

/// The bytes of a file; empty if it cannot be read.
std::string ReadFile(const std::filesystem::path& path);
/// Writes a file, and its folder if need be. Throws Fault.
void WriteFile(const std::filesystem::path& path, const std::string& bytes);

/// A window that had the keys when it was seen.
struct Window {
    std::string Id;
    std::string Title;
};

/// One program at a time runs here. Every wait ends with a Fault, which says what was awaited, when the
/// program has ended or the patience is over.
class Desktop {
  public:
    /// Requires: this process was started by tools/on_display. Throws Fault otherwise.
    Desktop();
    /// Stops the program, if it still runs.
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// A folder for whatever should vanish with the display.
    [[nodiscard]] std::filesystem::path Folder() const { return folder_; }

    /// Starts a program. It believes to be on the desktop `kind`, such as "GNOME" or "KDE", unless that is
    /// empty.
    void Start(const std::filesystem::path& program, const std::string& kind = "");
    [[nodiscard]] bool Running() const;
    void Signal(int number) const { g_subprocess_send_signal(program_.get(), number); }
    /// The exit code of the program, which is expected to end by itself; 128 + the signal that ended it.
    int AwaitEnd();

    /// The window that has the keys.
    [[nodiscard]] std::optional<Window> Active() const;
    [[nodiscard]] std::vector<std::string> Titles() const { return reader_.Titles(); }
    /// Waits until a window of exactly this title takes the keys.
    Window Await(const std::string& title);
    /// Waits until any other window than this one takes the keys.
    Window AwaitOther(const Window& window);
    /// Waits until a window that had the keys has given them to another one, or is closed.
    void AwaitGone(const Window& window);
    /// Waits until `come` is true; `what` names it in the Fault.
    void AwaitThat(const std::string& what, const std::function<bool()>& come);

    /// Keys by their names, such as "ctrl+Tab", one after the other to the window that has the focus.
    void Press(const Words& keys);
    void Type(const std::string& text) const;
    /// Clicks in the middle of a place; the pointer stays there.
    void Click(const Box& box, int times = 1) const;

    [[nodiscard]] const ScreenReader& Reader() const { return reader_; }

    /// Takes a picture of the part of the display that shows anything.
    void Picture(const std::filesystem::path& file) const;
    /// Takes a picture of a window with its frame, as soon as it is painted.
    void Picture(const Window& window, const std::filesystem::path& file) const;

    /// The text of the clipboard, fetched as another program does.
    [[nodiscard]] std::string Pasted() const { return Run({"xclip", "-selection", "clipboard", "-out"}); }
    /// The arguments of every start of a viewer so far, first its name: "browser" or "reader".
    [[nodiscard]] std::vector<Words> Viewed() const;
    /// What the program has written to its standard output and error output.
    [[nodiscard]] std::string Complaints() const { return ReadFile(Log()); }

    /// The output of a command; nothing if it ended with another code than 0, or not within a minute.
    [[nodiscard]] static std::optional<std::string> TryRun(Words words);
    /// The same, but a command that fails is a Fault.
    static std::string Run(const Words& words);

  private:
    [[nodiscard]] std::filesystem::path Log() const { return folder_ / "log"; }
    void SettleAndWrite(const Words& from, const std::filesystem::path& file) const;

    std::filesystem::path folder_; // set first: without it there is nothing to read
    ScreenReader reader_;
    std::shared_ptr<GSubprocess> program_;
};

} // namespace orvane::driving
