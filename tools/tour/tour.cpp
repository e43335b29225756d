// The guided tour: uses every function of the program on a separate display.
//
// tour APP_FOLDER OUTPUT_FOLDER
//
// Saves the lists and a picture of every window in OUTPUT_FOLDER and prints the name of each. The exit code
// is 0 only if everything seen was right. Start it with tools/on_display.
#include "platform/application.h"
#include "user.h"
#include "written_lists.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

void Demand(bool right, const std::string& what) {
    if (!right)
        throw Fault("wrong: " + what);
}

std::string Version() {
    const VersionRecord& version = ApplicationVersion;
    return "Version " + std::to_string(version.Major) + "." + std::to_string(version.Minor) + "." +
           std::to_string(version.Revision);
}

/// The folder of the pictures and lists. It contains an index file, by which the next tour recognises the
/// folder before it deletes the old content.
class Album {
  public:
    explicit Album(const fs::path& folder) : folder_(folder), index_(folder / "tour.txt") {
        if (fs::exists(folder) && !fs::is_empty(folder) && !fs::exists(index_))
            throw Fault(folder.string() + " holds other things than a tour; please name another folder");
        fs::remove_all(folder);
        WriteFile(index_, "");
    }

    /// Adds a line to the index and to standard output, and returns the path for the new file.
    fs::path Add(const std::string& what, const std::string& file) {
        const std::string line = what + ": " + (folder_ / file).string() + "\n";
        std::cout << line << std::flush;
        WriteFile(index_, ReadFile(index_) + line);
        return folder_ / file;
    }

    [[nodiscard]] fs::path Path(const std::string& file) const { return fs::absolute(folder_ / file); }

  private:
    fs::path folder_;
    fs::path index_;
};

const SettingsText Trial{.Groups = {"Drug A", "Drug B", "Placebo"},
                         .SampleSize = "60",
                         .CodeAlphaNum = 2,
                         .CodeSeqRandom = 1,
                         .CodeLength = 4,
                         .BlockOption = 2,
                         .EqBlockSize = "",
                         .UnEqBlockSize = "6,12",
                         .OutputOption = 2};

const ListDemands Demands{.Groups = Trial.Groups,
                          .Sizes = {6, 12},
                          .Least = 60,
                          .CodeLength = 4,
                          .Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"};

class Tour {
  public:
    Tour(Desktop& desktop, const fs::path& programFolder, Album& album)
        : desktop_(desktop), user_(desktop, programFolder), album_(album) {}

    void Walk() {
        Start();
        Menus();
        Refusal();
        NameTheGroups();
        WebPage();
        TextFile();
        OutputWindow();
        Clipboard();
        SettingsFiles();
        SavedList();
        AboutBox();
        HelpPage();
        End();
    }

  private:
    void Take(const Window& window, const std::string& what, const std::string& file) {
        desktop_.Picture(window, album_.Add(what, file + ".png"));
    }

    /// Waits for a message with this text, saves a picture of it and confirms it.
    void Meet(const std::string& text, const std::string& what, const std::string& file) {
        const Message message = user_.AwaitMessage();
        Demand(message.Text == text, "the message \"" + message.Text + "\" instead of \"" + text + "\"");
        Take(message.Box, what, file);
        user_.Confirm(message);
    }

    void MeetRunsTest() {
        const Message message = user_.AwaitMessage();
        Demand(message.Text.starts_with("Runs test:\nMinimum P value = 0.") ||
                   message.Text.starts_with("P value of Runs test = 0."),
               "the Runs test message \"" + message.Text + "\"");
        if (!fs::exists(album_.Path("runs-test.png")))
            Take(message.Box, "Runs test message", "runs-test");
        user_.Confirm(message);
    }

    void Start() {
        user_.StartProgram();
        const Window main = user_.AwaitMain();
        user_.Find(MainTitle, "label", "2");
        user_.Find(MainTitle, "table cell", "Group 1");
        user_.Find(MainTitle, "table cell", "Group 2");
        Demand(user_.Find(MainTitle, "check box", "Save settings on exit").Checked, "the box is not checked");
        Take(main, "main window", "main-window");
    }

    void Menus() {
        const std::vector<Words> menus = {{"File", "Load Settings"},
                                          {"View", "Random File..."},
                                          {"Sequence", "Output", "To File"},
                                          {"Help", "Content"}};
        for (const Words& items : menus) {
            user_.OpenMenu(items);
            desktop_.Picture(album_.Add("menu " + items.front(), "menu-" + items.front() + ".png"));
            user_.LeaveMenu();
        }
    }

    void Refusal() {
        user_.TabTo(MainTitle, "Generate Random List");
        desktop_.Press({"Return"});
        Meet("please specify the sample size", "refusal without a sample size", "refusal");
    }

    void NameTheGroups() {
        user_.FocusOn(MainTitle, "Number of Groups");
        desktop_.Press({"Right"});
        user_.Find(MainTitle, "label", "3");
        user_.FocusOn(MainTitle, "Sample Size");
        desktop_.Type(Trial.SampleSize);
        user_.FocusOn(MainTitle, "Group Names");
        desktop_.Press({"Up", "Up", "Up"});
        for (const std::string& group : Trial.Groups) {
            user_.FocusOn(MainTitle, "Group Name");
            desktop_.Type(group);
            user_.Find(MainTitle, "table cell", group);
            user_.FocusOn(MainTitle, "Group Names");
            desktop_.Press({"Down"});
        }
        Take(user_.AwaitMain(), "main window, filled in", "main-window-filled-in");
    }

    /// Starts a generation and sets options in all four tabs.
    void SetOptions() {
        const Window options = user_.OpenOptions();
        user_.FocusOn(OptionsTitle, "Only one block");
        desktop_.Press({"Down", "shift+Tab", "Down"});
        desktop_.Type(Trial.UnEqBlockSize);
        Take(options, "options, tab Blocks", "options-blocks");

        desktop_.Press({"ctrl+Tab"});
        user_.FocusOn(OptionsTitle, "Numeric");
        desktop_.Press({"Down"});
        user_.FocusOn(OptionsTitle, "Sequential");
        desktop_.Press({"Down"});
        user_.FocusOn(OptionsTitle, "Length");
        desktop_.Press({"Right"});
        user_.Find(OptionsTitle, "label", "4");
        Take(options, "options, tab Code", "options-code");

        desktop_.Press({"ctrl+Tab"});
        user_.Find(OptionsTitle, "label", "Columns");
        Take(options, "options, tab Format", "options-format");

        desktop_.Press({"ctrl+Tab"});
        user_.FocusOn(OptionsTitle, "Runs test on generated sequence");
        desktop_.Press({"space"});
        Take(options, "options, tab Statistics", "options-statistics");
        desktop_.Press({"Return"});
        desktop_.AwaitGone(options);
    }

    /// Starts a generation and confirms the options unchanged.
    void Generate() {
        const Window options = user_.OpenOptions();
        Demand(user_.Find(OptionsTitle, "radio button", "Random sizes of").Checked,
               "the block option is lost");
        desktop_.Press({"Return"});
        desktop_.AwaitGone(options);
    }

    void WebPage() {
        SetOptions();
        const Window prompt = desktop_.Await(SaveListTitle);
        Take(prompt, "save prompt", "save-prompt");
        const fs::path page = album_.Path("list.htm");
        user_.Answer(prompt, page.string());
        MeetRunsTest();
        album_.Add("list as a web page", "list.htm");
        Judge(BlocksOfPage(ReadFile(page)), Demands);
        user_.AwaitViewer("browser", page);
        TakePage(page, "the web page in a browser", "list-page.png");
    }

    void TextFile() {
        Generate();
        const Window prompt = desktop_.Await(SaveListTitle);
        const std::string before = ReadFile(album_.Path("list.htm"));
        user_.Answer(prompt, album_.Path("list.htm").string());
        const Window question = desktop_.AwaitOther(prompt);
        Take(question, "overwrite question", "overwrite-question");
        desktop_.Press({"Escape"});
        desktop_.AwaitGone(question);
        const fs::path text = album_.Path("list.txt");
        user_.Answer(desktop_.Await(SaveListTitle), text.string());
        MeetRunsTest();
        album_.Add("list as a text file", "list.txt");
        Judge(BlocksOfText(ReadFile(text)), Demands);
        Demand(before == ReadFile(album_.Path("list.htm")), "the list that was kept has changed");
        user_.AwaitViewer("reader", text);
    }

    void OutputWindow() {
        user_.Choose({"Sequence", "Output", "To Window"});
        Generate();
        const Window output = desktop_.Await(OutputTitle);
        Take(output, "output window", "output-window");
        user_.FocusOn(OutputTitle, "Save");
        desktop_.Press({"space"});
        const Window prompt = desktop_.Await(SaveOutputTitle);
        Take(prompt, "save prompt of the output window", "output-save-prompt");
        const fs::path copy = album_.Path("window.txt");
        user_.Answer(prompt, copy.string());
        desktop_.AwaitGone(prompt);
        user_.FocusOn(OutputTitle, "Close");
        desktop_.Press({"space"});
        desktop_.AwaitGone(output);
        album_.Add("list of the output window", "window.txt");
        Judge(BlocksOfText(ReadFile(copy)), Demands);
        MeetRunsTest();
        for (const auto& entry : fs::directory_iterator(user_.Folder()))
            Demand(entry.path().extension() != ".tmp", entry.path().string() + " was left behind");
    }

    void Clipboard() {
        user_.Choose({"Sequence", "Output", "To Clipboard"});
        Generate();
        Meet("Data were copied into clipboard successfuly!", "clipboard message", "clipboard-message");
        const std::string pasted = desktop_.Pasted();
        WriteFile(album_.Add("list pasted from the clipboard", "clipboard.txt"), pasted);
        Judge(BlocksOfText(pasted), Demands);
        MeetRunsTest();
    }

    void SettingsFiles() {
        user_.Choose({"File", "Save Settings"});
        const Window saving = desktop_.Await(SaveSettingsTitle);
        Take(saving, "prompt of Save Settings", "save-settings-prompt");
        const fs::path file = album_.Path("trial.stg");
        user_.Answer(saving, file.string());
        Meet("Settings were saved successfully!", "success of Save Settings", "settings-saved");
        album_.Add("settings file", "trial.stg");
        Demand(ReadFile(file) == BytesOf(Trial), "the content of trial.stg");

        user_.Choose({"File", "Load Settings"});
        const Window loading = desktop_.Await(LoadSettingsTitle);
        Take(loading, "prompt of Load Settings", "load-settings-prompt");
        user_.Answer(loading, file.string());
        Meet("Settings were loaded successfully!", "success of Load Settings", "settings-loaded");
    }

    void SavedList() {
        user_.Choose({"View", "Random File..."});
        const Window prompt = desktop_.Await(RandomFileTitle);
        Take(prompt, "prompt of Random File", "random-file-prompt");
        user_.Answer(prompt, album_.Path("list.txt").string());
        const Window output = desktop_.Await(OutputTitle);
        Take(output, "output window with a saved list", "saved-list");
        user_.FocusOn(OutputTitle, "Close");
        desktop_.Press({"space"});
        desktop_.AwaitGone(output);
        Demand(fs::exists(album_.Path("list.txt")), "list.txt is gone after the look at it");
    }

    void AboutBox() {
        user_.Choose({"Help", "About..."});
        const Window about = desktop_.Await("About Orvane Software");
        user_.Find(about.Title, "label", "Orvane Software");
        user_.Find(about.Title, "label", Version());
        Take(about, "About box", "about");
        desktop_.Press({"Escape"});
        desktop_.AwaitGone(about);
    }

    void HelpPage() {
        user_.Choose({"Help", "Content"});
        const fs::path page = user_.Folder() / "randomization.htm";
        user_.AwaitViewer("browser", page);
        TakePage(page, "help page", "help-page.png");
    }

    /// Saves a picture of a web page in a browser.
    void TakePage(const fs::path& page, const std::string& what, const std::string& file) {
        const fs::path picture = desktop_.Folder() / file;
        Desktop::Run({"chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                      "--window-size=1000,1400", "--screenshot=" + picture.string(),
                      "file://" + page.string()});
        fs::copy_file(picture, album_.Add(what, file));
    }

    void End() {
        Demand(user_.Exit() == 0, "the exit code of the program");
        Demand(ReadFile(user_.SavedSettings()) == BytesOf(Trial), "the settings kept at the end");
    }

    Desktop& desktop_;
    User user_;
    Album& album_;
};

int Run(const fs::path& programFolder, const fs::path& folder) {
    Album album(folder);
    Desktop desktop;
    try {
        Tour(desktop, programFolder, album).Walk();
    } catch (const std::exception& fault) {
        std::cerr << "The tour ends early. " << fault.what() << "\n" << desktop.Complaints();
        desktop.Picture(album.Add("the display at the fault", "fault.png"));
        return 1;
    }
    std::cout << "The tour is complete; all it saw was right.\n";
    return 0;
}

} // namespace

} // namespace orvane::driving

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments, arguments + count);
    if (words.size() != 3) {
        std::cerr << "usage: tour APP_FOLDER OUTPUT_FOLDER\n";
        return 2;
    }
    try {
        return orvane::driving::Run(words[1], words[2]);
    } catch (const std::exception& fault) {
        std::cerr << "The tour ends early. " << fault.what() << "\n";
        return 1;
    }
}
