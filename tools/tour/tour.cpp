// The guided tour: uses every function of the program on a separate display.
//
// tour APP_FOLDER OUTPUT_FOLDER
//
// Saves the lists and a picture of every window in OUTPUT_FOLDER. The exit code is 0 only if
// everything seen was right. Start it with tools/on_display.
#include "tools/driving/user.h"

#include <iostream>
#include <utility>

namespace orvane::driving {

namespace fs = std::filesystem;

namespace {

void Demand(bool right, const std::string& what) {
    if (!right)
        throw Fault("wrong: " + what);
}

/// Empties the folder of the pictures and lists, and returns its absolute path. By the file "tour.txt" the
/// next tour recognises the folder before it deletes the old content.
fs::path NewAlbum(const fs::path& folder) {
    const fs::path mark = fs::absolute(folder) / "tour.txt";
    if (fs::exists(folder) && !fs::is_empty(folder) && !fs::exists(mark))
        throw Fault(folder.string() + " holds other things than a tour; please name another folder");
    fs::remove_all(folder);
    WriteFile(mark, "Pictures and lists of the guided tour\n");
    return mark.parent_path();
}

const SettingsText Trial{.Groups = {"Drug A", "Drug B", "Placebo"},
                         .SampleSize = "60",
                         .CodeAlphaNum = 2,
                         .CodeSeqRandom = 1,
                         .CodeLength = 4,
                         .BlockOption = 2,
                         .UnEqBlockSize = "6,12",
                         .OutputOption = 2};

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// Demands that every group occurs equally often, and that the last block was needed.
void Judge(const std::string& list) {
    const std::size_t count = Count(list, Trial.Groups.front());
    Demand(count >= 20 && count < 24, "a list with " + std::to_string(count) + " subjects of each group");
    for (const std::string& group : Trial.Groups)
        Demand(Count(list, group) == count, "groups of different sizes");
}

class Tour {
  public:
    Tour(Desktop& desktop, const fs::path& programFolder, fs::path album)
        : desktop_(desktop), user_(desktop, programFolder), album_(std::move(album)) {}

    void Walk() {
        Start();
        NameTheGroups();
        SetOptions();
        WebPage();
        TextFile();
        OutputWindow();
        Clipboard();
        SettingsFiles();
        SavedList();
        Help();
        Demand(user_.Exit() == 0, "the exit code of the program");
        Demand(ReadFile(user_.SavedSettings()) == BytesOf(Trial), "the settings kept at the end");
    }

  private:
    void Take(const Window& window, const std::string& picture) {
        const fs::path file = album_ / (picture + ".png");
        desktop_.Picture(window, file);
        std::cout << file.string() << std::endl;
    }

    /// Waits for the prompt, saves a picture of it and types the name of a file of the album into it. Returns
    /// the path of the file.
    fs::path Answer(const char* title, const std::string& picture, const std::string& file) {
        const Window prompt = desktop_.Await(title);
        Take(prompt, picture);
        user_.Answer(prompt, (album_ / file).string());
        return album_ / file;
    }

    /// Waits for a message with this text, saves a picture of it and confirms it.
    void Meet(const std::string& text, const std::string& picture) {
        const Message message = user_.AwaitMessage();
        Demand(message.Text == text, "the message \"" + message.Text + "\" instead of \"" + text + "\"");
        Take(message.Box, picture);
        user_.Confirm(message);
    }

    /// Waits for the message about the Runs test, the last step of every list, and judges the list.
    void MeetRunsTest(const fs::path& list) {
        const Message message = user_.AwaitMessage();
        Demand(message.Text.starts_with("Runs test:\nMinimum P value = 0.") ||
                   message.Text.starts_with("P value of Runs test = 0."),
               "the Runs test message \"" + message.Text + "\"");
        if (!fs::exists(album_ / "runs-test.png"))
            Take(message.Box, "runs-test");
        user_.Confirm(message);
        Judge(ReadFile(list));
    }

    void Start() {
        user_.StartProgram();
        user_.Find(MainTitle, "table cell", "Group 2");
        Demand(user_.Find(MainTitle, "check box", "Save settings on exit").Checked, "the box is not checked");
        Take(user_.AwaitMain(), "main-window");
        const std::vector<Words> menus = {{"File", "Load Settings"},
                                          {"View", "Random File..."},
                                          {"Sequence", "Output", "To File"},
                                          {"Help", "Content"}};
        for (const Words& items : menus) {
            user_.OpenMenu(items);
            Take(Window{"root", ""}, "menu-" + items.front());
            desktop_.Press(Words(4, "Escape"));
        }
        user_.Press(MainTitle, "Generate Random List", {"Return"});
        Meet("please specify the sample size", "refusal");
    }

    void NameTheGroups() {
        user_.Press(MainTitle, "Number of Groups", {"Right"});
        user_.Find(MainTitle, "label", "3");
        user_.Fill(MainTitle, "Sample Size", Trial.SampleSize);
        user_.NameGroups(Trial.Groups);
        Take(user_.AwaitMain(), "main-window-filled-in");
    }

    /// Starts a generation and sets options in all four tabs.
    void SetOptions() {
        const Window options = user_.OpenOptions();
        user_.Press(OptionsTitle, "Only one block", {"Down", "shift+Tab", "Down"});
        desktop_.Type(Trial.UnEqBlockSize);
        Take(options, "options-blocks");
        desktop_.Press({"ctrl+Tab"});
        user_.Press(OptionsTitle, "Numeric", {"Down"});
        user_.Press(OptionsTitle, "Sequential", {"Down"});
        user_.Press(OptionsTitle, "Length", {"Right"});
        user_.Find(OptionsTitle, "label", "4");
        Take(options, "options-code");
        desktop_.Press({"ctrl+Tab"});
        user_.Find(OptionsTitle, "label", "Columns");
        Take(options, "options-format");
        desktop_.Press({"ctrl+Tab"});
        user_.Press(OptionsTitle, "Runs test on generated sequence", {"space"});
        Take(options, "options-statistics");
        desktop_.Press({"Return"});
        desktop_.AwaitGone(options);
    }

    void WebPage() {
        const fs::path page = Answer(SaveListTitle, "save-prompt", "list.htm");
        MeetRunsTest(page);
        user_.AwaitViewer("browser", page);
        TakePage(page, "list-page.png");
    }

    void TextFile() {
        user_.Generate();
        const Window prompt = desktop_.Await(SaveListTitle);
        const fs::path page = album_ / "list.htm";
        const std::string before = ReadFile(page);
        user_.Answer(prompt, page.string());
        const Window question = desktop_.AwaitGone(prompt);
        Take(question, "overwrite-question");
        desktop_.Press({"Escape"});
        desktop_.AwaitGone(question);
        const fs::path text = album_ / "list.txt";
        user_.Answer(desktop_.Await(SaveListTitle), text.string());
        MeetRunsTest(text);
        Demand(before == ReadFile(page), "the list that was kept has changed");
        user_.AwaitViewer("reader", text);
    }

    void OutputWindow() {
        user_.Choose({"Sequence", "Output", "To Window"});
        user_.Generate();
        const Window output = desktop_.Await(OutputTitle);
        Take(output, "output-window");
        user_.Press(OutputTitle, "Save");
        const fs::path copy = Answer(SaveOutputTitle, "output-save-prompt", "window.txt");
        user_.Press(OutputTitle, "Close");
        desktop_.AwaitGone(output);
        MeetRunsTest(copy);
    }

    void Clipboard() {
        user_.Choose({"Sequence", "Output", "To Clipboard"});
        user_.Generate();
        Meet("Data were copied into clipboard successfuly!", "clipboard-message");
        const fs::path list = album_ / "clipboard.txt";
        WriteFile(list, desktop_.Pasted());
        MeetRunsTest(list);
    }

    void SettingsFiles() {
        user_.Choose({"File", "Save Settings"});
        const fs::path file = Answer(SaveSettingsTitle, "save-settings-prompt", "trial.stg");
        Meet("Settings were saved successfully!", "settings-saved");
        Demand(ReadFile(file) == BytesOf(Trial), "the content of trial.stg");
        user_.Choose({"File", "Load Settings"});
        Answer(LoadSettingsTitle, "load-settings-prompt", "trial.stg");
        Meet("Settings were loaded successfully!", "settings-loaded");
    }

    void SavedList() {
        user_.Choose({"View", "Random File..."});
        const fs::path list = Answer(RandomFileTitle, "random-file-prompt", "list.txt");
        const Window output = desktop_.Await(OutputTitle);
        Take(output, "saved-list");
        user_.Press(OutputTitle, "Close");
        desktop_.AwaitGone(output);
        Demand(fs::exists(list), "list.txt is gone after the look at it");
    }

    void Help() {
        user_.Choose({"Help", "About..."});
        const Window about = desktop_.Await("About Orvane Software");
        user_.Find(about.Title, "label", "Version " PROGRAM_VERSION);
        Take(about, "about");
        desktop_.Press({"Escape"});
        desktop_.AwaitGone(about);
        user_.Choose({"Help", "Content"});
        const fs::path page = user_.Folder() / "randomization.htm";
        user_.AwaitViewer("browser", page);
        TakePage(page, "help-page.png");
    }

    /// Saves a picture of a web page in a browser.
    void TakePage(const fs::path& page, const std::string& file) {
        Desktop::Run({"chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                      "--window-size=1000,1400", "--screenshot=" + (album_ / file).string(),
                      "file://" + page.string()});
    }

    Desktop& desktop_;
    User user_;
    fs::path album_;
};

} // namespace

} // namespace orvane::driving

int main(int count, char** arguments) {
    using namespace orvane::driving;
    if (count != 3) {
        std::cerr << "usage: tour APP_FOLDER OUTPUT_FOLDER\n";
        return 2;
    }
    try {
        const fs::path album = NewAlbum(arguments[2]);
        Desktop desktop;
        try {
            Tour(desktop, arguments[1], album).Walk();
        } catch (const std::exception&) {
            std::cerr << desktop.Complaints();
            desktop.Picture(Window{"root", ""}, album / "fault.png");
            throw;
        }
    } catch (const std::exception& fault) {
        std::cerr << "The tour ends early. " << fault.what() << "\n";
        return 1;
    }
    std::cout << "The tour is complete; all it saw was right. Lists and pictures are in " << arguments[2]
              << "\n";
    return 0;
}
