// A display of one's own, with a person's hands and eyes: windows, keys, the mouse, pictures, the clipboard.
#pragma once

#include "child.h"
#include "fakes/temporary_folder.h"
#include "screen_reader.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::tour {

struct Window {
    std::string Id;
    std::string Title;
    bool Active = false; ///< keys go to it
};

/// A desktop without a screen: a display server, a window manager, the bus of the accessibility tree, and a
/// home with viewers for web pages and text files that only note what they were asked to show. One program at
/// a time runs on it. Every wait ends with a Fault when the program has ended or the patience is over.
class XDesktop {
  public:
    XDesktop();
    ~XDesktop();
    XDesktop(const XDesktop&) = delete;
    XDesktop& operator=(const XDesktop&) = delete;

    /// A folder for whatever should vanish with the desktop.
    [[nodiscard]] std::filesystem::path Folder() const { return folder_.Path(); }

    void Start(const std::filesystem::path& program);
    /// The exit code of the program, which is expected to end by itself.
    int AwaitEnd();

    [[nodiscard]] std::vector<Window> Windows() const;
    /// Waits until a window of exactly this title takes the keys, other than the one of the id `except`.
    Window Await(const std::string& title, std::string_view except = {});
    void AwaitGone(const Window& window);
    /// Waits until `come` is true; `what` names it in the Fault.
    void AwaitThat(const std::string& what, const std::function<bool()>& come);

    /// Keys by their names, such as "ctrl+Tab", one after the other to the window that has the focus.
    void Press(const Words& keys);
    void Type(const std::string& text) const;
    void Click(const Box& box, int times = 1) const;

    /// What the accessibility tree tells of the shown controls of the program's windows of this title.
    [[nodiscard]] std::vector<Control> Controls(const std::string& title);

    /// Takes a picture of the part of the display that shows anything.
    void Picture(const std::filesystem::path& file) const;
    /// Takes a picture of a window with its frame, as soon as it is painted.
    void Picture(const Window& window, const std::filesystem::path& file) const;

    /// The text of the clipboard, fetched as another program does.
    [[nodiscard]] std::string Pasted() const;
    /// The arguments of every start of a viewer so far, first its name.
    [[nodiscard]] std::vector<Words> Viewed() const;
    /// What the program, and all others, complained about.
    [[nodiscard]] std::string Complaints() const;

    /// The output of another program run on this desktop.
    [[nodiscard]] std::string Run(const Words& words) const { return OutputOf(words, environment_, Log()); }
    void Do(const Words& words) const { static_cast<void>(Run(words)); }

  private:
    [[nodiscard]] std::filesystem::path Log() const { return Folder() / "log"; }
    [[nodiscard]] std::string Grab(const Words& from) const;
    void SettleAndWrite(const Words& from, const std::filesystem::path& file) const;
    void MakeHome();
    void RegisterViewer(const std::string& name, const std::string& type) const;

    fakes::TemporaryFolder folder_;
    Words environment_;
    std::unique_ptr<Child> server_;
    std::unique_ptr<Child> manager_;
    std::unique_ptr<Child> bus_;
    std::unique_ptr<Child> program_;
    std::optional<ScreenReader> reader_;
};

} // namespace orvane::tour
