#include "validation/lists/session.h"

#include <array>
#include <csignal>

namespace orvane::validation {

namespace fs = std::filesystem;

using driving::MainTitle;
using driving::OptionsTitle;

namespace {

void Expect(const std::string& expected, const std::string& message) {
    if (message != expected)
        throw driving::Fault("the message \"" + message + "\" instead of \"" + expected + "\"");
}

std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
}

} // namespace

Session::Session(const fs::path& program, const fs::path& lists)
    : user_(desktop_, program), lists_(fs::absolute(lists)) {
    fs::create_directories(lists);
}

void Session::Restart(const ListSetup& setup, const driving::Environment& variables) {
    Stop();
    user_.KeepSettings(SettingsOf(setup));
    user_.StartProgram(variables);
    user_.AwaitMain();
    format_ = {};
}

MadeList Session::Make(const ListSetup& setup) {
    MadeList list;
    list.Setup = setup;
    const fs::path file = lists_ / FileName(setup);
    fs::remove(file);
    try {
        Enter(setup);
        Take(list, file);
        list.Bytes = driving::ReadFile(file);
        ReadBack(list);
    } catch (const std::exception& error) {
        const std::string text = error.what();
        list.NotMade = text.substr(0, text.find('\n'));
        Stop();
    }
    return list;
}

void Session::Stop() {
    if (!desktop_.Running())
        return;
    desktop_.Signal(SIGKILL);
    desktop_.AwaitEnd();
}

void Session::Enter(const ListSetup& setup) {
    if (setup.Input == Way::Loaded) {
        const fs::path file = desktop_.Folder() / "set-up.stg";
        driving::WriteFile(file, driving::BytesOf(SettingsOf(setup)));
        Expect("Settings were loaded successfully!", Load(file));
    }
    if (setup.Input == Way::Typed)
        TypeMainWindow(setup);
    const driving::Window options = user_.OpenOptions();
    if (setup.Input == Way::Typed)
        TypeOptions(setup);
    EnterFormat(setup);
    desktop_.Press({"Return"});
    desktop_.AwaitGone(options);
}

std::string Session::Load(const fs::path& file) {
    user_.Choose({"File", "Load Settings"});
    return Answer(driving::LoadSettingsTitle, file);
}

std::string Session::Save(const fs::path& file) {
    fs::remove(file);
    user_.Choose({"File", "Save Settings"});
    return Answer(driving::SaveSettingsTitle, file);
}

std::string Session::Answer(const std::string& prompt, const fs::path& file) {
    user_.Answer(desktop_.Await(prompt), file.string());
    std::string told = Told();
    user_.AwaitMain();
    return told;
}

std::string Session::Told() {
    const driving::Message message = user_.AwaitMessage();
    user_.Confirm(message);
    return WithoutReturns(message.Text);
}

void Session::TypeMainWindow(const ListSetup& setup) {
    constexpr std::array<const char*, 4> items = {"To File", "To File", "To Window", "To Clipboard"};
    user_.Choose({"Sequence", "Output", items.at(static_cast<std::size_t>(setup.Output))});
    MoveBar(MainTitle, "Number of Groups", 2, setup.GroupCount());
    user_.Fill(MainTitle, "Sample Size", std::to_string(setup.SampleSize));
    user_.FocusOn(MainTitle, "Group Names");
    desktop_.Press(driving::Words(setup.Groups.size(), "Up"));
    for (const std::string& group : setup.Groups) {
        user_.Fill(MainTitle, "Group Name", group);
        user_.FocusOn(MainTitle, "Group Names");
        desktop_.Press({"Down"});
    }
    user_.FocusOn(MainTitle, "Sample Size");
}

void Session::TypeOptions(const ListSetup& setup) {
    constexpr std::array<const char*, 4> blockButtons = {"Only one block", "Equal size", "Random sizes of",
                                                         "Random Block Size"};
    constexpr std::array<const char*, 3> alphabetButtons = {"Alpha", "Numeric", "Mixed"};
    Check(blockButtons.at(static_cast<std::size_t>(setup.Blocks)));
    if (setup.Blocks == BlockOption::Equal)
        user_.Fill(OptionsTitle, "Size of Equal Blocks", std::to_string(setup.EqualSize));
    if (setup.Blocks == BlockOption::Listed)
        user_.Fill(OptionsTitle, "Random Block Sizes", setup.ListedSizesText);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Length");
    Check(alphabetButtons.at(static_cast<std::size_t>(setup.Characters)));
    Check(setup.RandomCodes ? "Random" : "Sequential");
    MoveBar(OptionsTitle, "Length", ShortestCode(setup.SampleSize), setup.CodeLength);
    desktop_.Press({"ctrl+Tab", "ctrl+Tab", "ctrl+Tab"});
}

void Session::EnterFormat(const ListSetup& setup) {
    const bool sameFormat = setup.Columns == format_.Columns && setup.Border == format_.Border &&
                            setup.Spacing == format_.Spacing;
    if (sameFormat && !setup.RunsTest() && !format_.RunsTest())
        return;
    desktop_.Press({"ctrl+Tab", "ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Columns");
    MoveBar(OptionsTitle, "Columns", 1, setup.Columns);
    Check("Table Border (Web Page only)", setup.Border);
    MoveBar(OptionsTitle, "Cell Spacing", 0, setup.Spacing);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Level of significance");
    Check("Runs test on generated sequence", setup.RunsTest());
    if (setup.RunsTest())
        user_.Fill(OptionsTitle, "Level of significance", setup.Level);
    format_ = setup;
}

void Session::Check(const std::string& button, bool checked) {
    bool isChecked = false;
    const auto isButton = [&](const driving::Control& control) {
        isChecked = control.Checked;
        return control.Name == button && (control.Role == "radio button" || control.Role == "check box");
    };
    user_.AwaitControl(OptionsTitle, "the button \"" + button + "\"", isButton);
    if (isChecked == checked)
        return;
    user_.FocusOn(OptionsTitle, button);
    desktop_.Press({"space"});
    user_.AwaitControl(OptionsTitle, "the change of \"" + button + "\"",
                       [&](const auto& control) { return isButton(control) && control.Checked == checked; });
}

void Session::MoveBar(const std::string& title, const std::string& name, int least, int value) {
    user_.FocusOn(title, name);
    driving::Words keys = {"Home"};
    keys.insert(keys.end(), static_cast<std::size_t>(value - least), "Right");
    desktop_.Press(keys);
    user_.Find(title, "label", std::to_string(value));
}

void Session::Take(MadeList& list, const fs::path& file) {
    const Form form = list.Setup.Output;
    if (form == Form::Window) {
        list.Window = SaveFromWindow(file);
    } else if (form == Form::Clipboard) {
        Expect("Data were copied into clipboard successfuly!", Told());
        driving::WriteFile(file, desktop_.Pasted());
    } else {
        user_.Answer(desktop_.Await(driving::SaveListTitle), file.string());
    }
    if (list.Setup.RunsTest())
        list.RunsMessage = Told();
    user_.AwaitMain();
    if (form == Form::TextFile || form == Form::WebPage)
        user_.AwaitViewer(form == Form::WebPage ? "browser" : "reader", file);
    if (form == Form::Window)
        desktop_.AwaitThat("the end of the temporary file", [&] { return TemporaryFiles().empty(); });
}

WindowSeen Session::SaveFromWindow(const fs::path& file) {
    const driving::Window output = desktop_.Await(driving::OutputTitle);
    WindowSeen seen;
    user_.AwaitControl(driving::OutputTitle, "the list", [&](const driving::Control& control) {
        seen.Text = WithoutReturns(control.Text);
        return control.Role == "text" && !seen.Text.empty();
    });
    const std::vector<fs::path> files = TemporaryFiles();
    seen.HasOnePrivateFile = files.size() == 1 && fs::status(files.front()).permissions() ==
                                                      (fs::perms::owner_read | fs::perms::owner_write);
    user_.FocusOn(driving::OutputTitle, "Save");
    desktop_.Press({"space"});
    const driving::Window prompt = desktop_.Await(driving::SaveOutputTitle);
    user_.Answer(prompt, file.string());
    desktop_.AwaitGone(prompt);
    user_.FocusOn(driving::OutputTitle, "Close");
    desktop_.Press({"space"});
    desktop_.AwaitGone(output);
    return seen;
}

std::vector<fs::path> Session::TemporaryFiles() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(user_.Folder()))
        if (entry.path().extension() == ".tmp")
            files.push_back(entry.path());
    return files;
}

} // namespace orvane::validation
