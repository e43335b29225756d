#include "validation/lists/session.h"

#include "validation/draws/known_key.h"

namespace orvane::validation {
namespace {

namespace fs = std::filesystem;

using driving::MainTitle;
using driving::OptionsTitle;
using driving::SettingsText;

constexpr const char* Report = "Error Description: ";

/// Types what a line of the table has into its box, and expects its messages.
void CheckRefusal(Check& check, Session& session, Choices line) {
    driving::Desktop& desktop = session.Display();
    driving::User& user = session.Person();
    const std::string box = line["box"].toStdString();
    const std::string typed = line["typed"].toStdString();
    session.Restart({.Blocks = BlockOptionOf(line["blocks"]),
                     .CodeLength = 6,
                     .SampleSize = line["sample size"].toInt()});
    const bool inOptions = box != "Sample Size";
    const char* const title = inOptions ? OptionsTitle : MainTitle;
    if (inOptions)
        user.OpenOptions();
    if (box == "Level of significance")
        desktop.Press({"ctrl+Tab", "ctrl+Tab", "ctrl+Tab"});
    user.Fill(title, box, typed);
    desktop.Press({"Return"});
    const std::string what = "\"" + typed + "\" as " + box;
    for (const char* message : {"first message", "second message"})
        if (!line[message].isEmpty())
            check.Compare(what, line[message].toStdString(), session.Told());
    desktop.Await(title);
    check.Demand(user.Find(title, "text", box).Text == typed, what + " is lost");
}

void CheckInput(Check& check, Session& session) {
    for (const Choices& line : ReadTable(REFUSALS, '|'))
        CheckRefusal(check, session, line);
}

/// Expects a report of a failure in the message `told`, with this text in it.
void ExpectReport(Check& check, const std::string& what, const std::string& told,
                  const std::string& holds = "") {
    const std::string line = told.substr(0, told.find('\n'));
    const bool isRight = line.starts_with(Report) && line.find(holds) != std::string::npos;
    check.Compare(what, isRight ? line : Report + holds, line);
}

void CheckNoEntropy(Check& check, Session& session) {
    const fs::path file = session.Display().Folder() / "no entropy.txt";
    for (const ListSetup& setup : {ListSetup{.Output = Form::TextFile, .SampleSize = 20},
                                   ListSetup{.Output = Form::Window, .SampleSize = 20},
                                   ListSetup{.Output = Form::Clipboard, .SampleSize = 20},
                                   ListSetup{.RandomCodes = true, .SampleSize = 20}}) {
        session.Restart(setup, WithoutEntropy());
        session.Enter(setup);
        if (setup.Output == Form::TextFile && !setup.RandomCodes)
            session.Person().Answer(session.Display().Await(driving::SaveListTitle), file.string());
        const std::string codes = setup.RandomCodes ? ", random codes" : ", sequential codes";
        ExpectReport(check, Text(setup.Output) + codes, session.Told());
        session.Person().AwaitMain();
        check.Demand(driving::ReadFile(file).find("Group") == std::string::npos, "a list was written");
        check.Demand(session.TemporaryFiles().empty(), "a temporary list stays");
    }
}

void CheckCharacters(Check& check, Session& session) {
    driving::User& user = session.Person();
    const fs::path folder = session.Display().Folder();
    const std::string name = "\u03A9";
    const ListSetup setup{.SampleSize = 20};
    session.Restart(setup);
    // Pasted, because not every keyboard has the letter.
    driving::Desktop::Run({"sh", "-c", "printf " + name + " | xclip -selection clipboard >/dev/null 2>&1"});
    user.FocusOn(MainTitle, "Group Name");
    session.Display().Press({"ctrl+a", "ctrl+v"});
    user.AwaitText(MainTitle, "Group Name", name);
    for (const fs::path& file : {folder / "omega.txt", folder / "omega.htm"}) {
        session.Enter(setup);
        user.Answer(session.Display().Await(driving::SaveListTitle), file.string());
        if (file.extension() == ".txt")
            ExpectReport(check, "A group \"" + name + "\" in a text file", session.Told(), name);
        else
            user.AwaitViewer("browser", file);
        user.AwaitMain();
    }
    check.Demand(!fs::exists(folder / "omega.txt"), "the text file was written");
    check.Demand(driving::ReadFile(folder / "omega.htm").find("&#937;") != std::string::npos,
                 "the web page has no reference to the character");
}

void CheckSettings(Check& check, Session& session) {
    std::vector<ListSetup> setups = ReadSetups(SETUPS);
    setups.resize(4);
    const fs::path given = session.Display().Folder() / "given.stg";
    const fs::path saved = session.Display().Folder() / "saved again.stg";
    session.Restart({});
    for (const ListSetup& setup : setups) {
        const std::string bytes = BytesOf(SettingsOf(setup));
        const std::string what = "settings of list " + std::to_string(setup.Number);
        driving::WriteFile(given, bytes);
        check.Compare("Loaded: " + what, "Settings were loaded successfully!", session.Load(given));
        check.Compare("Saved: " + what, "Settings were saved successfully!", session.Save(saved));
        check.Demand(driving::ReadFile(saved) == bytes, what + " change when they are saved");
    }
    check.Demand(session.Person().Exit() == 0, "the program ends with a fault");
    check.Demand(driving::ReadFile(session.Person().SavedSettings()) == BytesOf(SettingsOf(setups.back())),
                 "the settings saved at the end of the program are different");
}

void CheckDamagedSettings(Check& check, Session& session) {
    const std::string right = BytesOf(SettingsText{});
    const fs::path file = session.Display().Folder() / "damaged.stg";
    const std::vector<std::pair<const char*, std::string>> damages = {
        {"An empty file", ""},
        {"A file without its last lines", right.substr(0, right.find("[Block Option"))},
        {"17 groups", BytesOf(SettingsText{.Groups = std::vector<std::string>(17, "A")})},
        {"Output option 3", BytesOf(SettingsText{.OutputOption = 3})},
    };
    for (const auto& [what, bytes] : damages) {
        session.Restart({});
        driving::WriteFile(file, bytes);
        ExpectReport(check, what, session.Load(file));
    }
}

} // namespace

void CheckRefusals(Record& record, Session& session) {
    const auto run = [&](const char* identifier, const char* title, const auto& judge) {
        record.Run(identifier, title, Chapter::Refusals, [&](Check& check) { judge(check, session); });
    };
    run("CON-2.1", "No list without entropy", CheckNoEntropy);
    run("MSG-1.1", "Input that is refused, and stays where it was typed", CheckInput);
    run("REP-6.1", "A character that the code page does not hold", CheckCharacters);
    run("SET-2.1", "Settings that are loaded and saved again", CheckSettings);
    run("SET-3.1", "Damaged settings", CheckDamagedSettings);
}

} // namespace orvane::validation
