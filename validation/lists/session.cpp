#include "validation/lists/session.h"

#include <QString>

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
    const char* const name = setup.Output == Form::WebPage ? "list-%1.htm" : "list-%1.txt";
    const fs::path file = lists_ / QString(name).arg(setup.Number, 2, 10, QChar('0')).toStdString();
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
    constexpr const char* items[] = {"To File", "To File", "To Window", "To Clipboard"};
    user_.Choose({"Sequence", "Output", items[static_cast<int>(setup.Output)]});
    MoveBar(MainTitle, "Number of Groups", 2, setup.GroupCount());
    user_.Fill(MainTitle, "Sample Size", std::to_string(setup.SampleSize));
    user_.NameGroups(setup.Groups);
    user_.FocusOn(MainTitle, "Sample Size");
}

void Session::TypeOptions(const ListSetup& setup) {
    constexpr const char* blocks[] = {"Only one block", "Equal size", "Random sizes of", "Random Block Size"};
    constexpr const char* alphabets[] = {"Alpha", "Numeric", "Mixed"};
    user_.Press(OptionsTitle, blocks[static_cast<int>(setup.Blocks)]);
    if (setup.Blocks == BlockOption::Equal)
        user_.Fill(OptionsTitle, "Size of Equal Blocks", std::to_string(setup.EqualSize));
    if (setup.Blocks == BlockOption::Listed)
        user_.Fill(OptionsTitle, "Random Block Sizes", setup.ListedSizesText);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Length");
    user_.Press(OptionsTitle, alphabets[static_cast<int>(setup.Characters)]);
    user_.Press(OptionsTitle, setup.RandomCodes ? "Random" : "Sequential");
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
    if (setup.Border != format_.Border)
        user_.Press(OptionsTitle, "Table Border (Web Page only)");
    MoveBar(OptionsTitle, "Cell Spacing", 0, setup.Spacing);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Level of significance");
    if (setup.RunsTest() != format_.RunsTest())
        user_.Press(OptionsTitle, "Runs test on generated sequence");
    if (setup.RunsTest())
        user_.Fill(OptionsTitle, "Level of significance", setup.Level);
    format_ = setup;
}

void Session::MoveBar(const std::string& title, const std::string& name, int least, int value) {
    driving::Words keys = {"Home"};
    keys.insert(keys.end(), static_cast<std::size_t>(value - least), "Right");
    user_.Press(title, name, keys);
    user_.Find(title, "label", std::to_string(value));
}

void Session::Take(MadeList& list, const fs::path& file) {
    const Form form = list.Setup.Output;
    if (form == Form::Window) {
        SaveFromWindow(list, file);
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

void Session::SaveFromWindow(MadeList& list, const fs::path& file) {
    const driving::Window output = desktop_.Await(driving::OutputTitle);
    user_.AwaitControl(driving::OutputTitle, "the list", [&](const driving::Control& control) {
        list.WindowText = WithoutReturns(control.Text);
        return control.Role == "text" && !list.WindowText.empty();
    });
    const std::vector<fs::path> files = TemporaryFiles();
    list.HasOnePrivateFile = files.size() == 1 && fs::status(files.front()).permissions() ==
                                                      (fs::perms::owner_read | fs::perms::owner_write);
    user_.Press(driving::OutputTitle, "Save");
    const driving::Window prompt = desktop_.Await(driving::SaveOutputTitle);
    user_.Answer(prompt, file.string());
    desktop_.AwaitGone(prompt);
    user_.Press(driving::OutputTitle, "Close");
    desktop_.AwaitGone(output);
}

std::vector<fs::path> Session::TemporaryFiles() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(user_.Folder()))
        if (entry.path().extension() == ".tmp")
            files.push_back(entry.path());
    return files;
}

} // namespace orvane::validation
