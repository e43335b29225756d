#include "validation/window_checks.h"

namespace orvane::validation {

namespace fs = std::filesystem;

using driving::MainTitle;
using driving::OptionsTitle;
using driving::Window;

namespace {

/// Expects these messages, one after the other, and closes them.
void MeetMessages(Evidence& evidence, driving::User& user, const std::string& input,
                  const std::vector<std::string>& expected) {
    for (const std::string& text : expected) {
        const driving::Message message = user.AwaitMessage();
        evidence.Compare(input, text, message.Text);
        user.Confirm(message);
    }
}

std::string TextOf(driving::User& user, const std::string& title, const std::string& name) {
    return user.Find(title, "text", name).Text;
}

/// A list of block sizes, a block size or a level that cannot be used.
struct Refusal {
    const char* What;
    BlockOption Blocks;
    const char* Box;
    const char* Text;
    std::vector<std::string> Messages;
};

const std::vector<Refusal>& Refusals() {
    static const std::vector<Refusal> refusals = {
        {"no block size",
         BlockOption::Equal,
         "Size of Equal Blocks",
         "abc",
         {"please specify the block size"}},
        {"a block size that is not a multiple of the number of groups",
         BlockOption::Equal,
         "Size of Equal Blocks",
         "7",
         {"Block size must be divisable by the number of groups"}},
        {"a list with such a block size",
         BlockOption::Listed,
         "Random Block Sizes",
         "6, 9",
         {"block sizes must be divisable by the number of groups", "please specify block sizes"}},
        {"a level that no block can reach",
         BlockOption::One,
         "Level of significance",
         "0.4",
         {"Significance level must be greater than 0 ad less than 0.35"}},
    };
    return refusals;
}

void CheckRefusal(Evidence& evidence, ListMaker& maker, const Refusal& refusal) {
    driving::Desktop& desktop = maker.Display();
    driving::User& user = maker.Person();
    ListSetup setup;
    setup.SampleSize = 20;
    setup.Blocks = refusal.Blocks;
    maker.Restart(setup);
    const Window options = user.OpenOptions();
    if (refusal.Blocks == BlockOption::One)
        desktop.Press({"ctrl+Tab", "ctrl+Tab", "ctrl+Tab"});
    user.Fill(OptionsTitle, refusal.Box, refusal.Text);
    desktop.Press({"Return"});
    MeetMessages(evidence, user, refusal.What, refusal.Messages);
    desktop.Await(OptionsTitle);
    evidence.Compare(std::string(refusal.What) + ": text in the box afterwards", refusal.Text,
                     TextOf(user, OptionsTitle, refusal.Box));
    desktop.Press({"Escape"});
    desktop.AwaitGone(options);
}

/// A menu command and the window that it opens, which Esc closes; empty if it opens none.
struct Command {
    std::vector<std::string> Items;
    const char* Title;
};

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = {
        {{"File", "Load Settings"}, driving::LoadSettingsTitle},
        {{"File", "Save Settings"}, driving::SaveSettingsTitle},
        {{"View", "Random File..."}, driving::RandomFileTitle},
        {{"View", "Option..."}, OptionsTitle},
        {{"Sequence", "Generate"}, OptionsTitle},
        {{"Help", "About..."}, "About Orvane Software"},
    };
    return commands;
}

std::string PathText(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items)
        text += (text.empty() ? "" : " > ") + item;
    return text;
}

} // namespace

void CheckRefusals(Evidence& evidence, ListMaker& maker) {
    driving::Desktop& desktop = maker.Display();
    driving::User& user = maker.Person();
    ListSetup setup;
    setup.Groups = {"Verum", "Placebo"};
    maker.Restart(setup);
    user.Fill(MainTitle, "Sample Size", "none yet");
    desktop.Press({"Return"});
    MeetMessages(evidence, user, "no sample size", {"please specify the sample size"});
    user.AwaitMain();
    evidence.Compare("no sample size: text in the box afterwards", "none yet",
                     TextOf(user, MainTitle, "Sample Size"));
    for (const std::string& group : setup.Groups)
        evidence.Demand(!user.Find(MainTitle, "table cell", group).Name.empty(),
                        "the name of a group was lost");
    for (const Refusal& refusal : Refusals())
        CheckRefusal(evidence, maker, refusal);
}

void CheckSettingsFiles(Evidence& evidence, ListMaker& maker, const std::vector<ListSetup>& setups) {
    const fs::path given = maker.Display().Folder() / "given.stg";
    const fs::path saved = maker.Display().Folder() / "saved once.stg";
    const fs::path again = maker.Display().Folder() / "saved twice.stg";
    maker.Restart({});
    std::vector<Row> rows;
    for (const ListSetup& setup : setups) {
        const std::string bytes = SettingsBytes(setup);
        driving::WriteFile(given, bytes);
        maker.Settings().Load(given);
        maker.Settings().Save(saved);
        maker.Settings().Load(saved);
        maker.Settings().Save(again);
        const bool same = driving::ReadFile(saved) == bytes && driving::ReadFile(again) == bytes;
        evidence.Demand(same, "the set-up of list " + std::to_string(setup.Number) +
                                  " changed when it was saved and loaded");
        rows.push_back(
            {std::to_string(setup.Number), std::to_string(bytes.size()), same ? "same" : "CHANGED"});
    }
    const ListSetup& last = setups.back();
    evidence.Demand(maker.Person().Exit() == 0, "the program ended with a fault");
    const bool kept = driving::ReadFile(maker.Person().SavedSettings()) == SettingsBytes(last);
    evidence.Demand(kept, "the set-up saved at the end of the program is a different one");
    rows.push_back({std::to_string(last.Number) + ", saved at the end of the program",
                    std::to_string(SettingsBytes(last).size()), kept ? "same" : "CHANGED"});
    evidence.Table({"Set-up of list", "Bytes", "Saved, loaded and saved again"}, rows);
}

void CheckCommandsByKeys(Evidence& evidence, ListMaker& maker) {
    driving::Desktop& desktop = maker.Display();
    Keyboard keys(desktop, maker.Person());
    ListSetup setup;
    setup.SampleSize = 20;
    maker.Restart(setup);
    std::vector<Row> rows;
    for (const Command& command : Commands()) {
        keys.Choose(command.Items);
        const Window window = desktop.Await(command.Title);
        desktop.Press({"Escape"});
        desktop.AwaitGone(window);
        rows.push_back({PathText(command.Items), "the window \"" + window.Title + "\", closed by Esc"});
    }
    const std::size_t viewed = desktop.Viewed().size();
    keys.Choose({"Help", "Content"});
    desktop.AwaitThat("the help page", [&] { return desktop.Viewed().size() > viewed; });
    rows.push_back({"Help > Content", "the browser with the help page"});
    keys.Choose({"File", "Exit"});
    evidence.Demand(desktop.AwaitEnd() == 0, "the program ended with a fault");
    rows.push_back({"File > Exit", "the end of the program"});
    evidence.Table({"Command by Alt, arrows and Enter", "Result"}, rows);
}

} // namespace orvane::validation
