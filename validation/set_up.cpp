#include "validation/set_up.h"

namespace orvane::validation {

namespace fs = std::filesystem;

using driving::MainTitle;
using driving::OptionsTitle;

namespace {

const std::vector<std::string> BlockButtons = {"Only one block", "Equal size", "Random sizes of",
                                               "Random Block Size"};
const std::vector<std::string> AlphabetButtons = {"Alpha", "Numeric", "Mixed"};
const std::vector<std::string> OrderButtons = {"Sequential", "Random"};
constexpr const char* BorderBox = "Table Border (Web Page only)";
constexpr const char* RunsTestBox = "Runs test on generated sequence";

const std::string& ButtonOf(BlockOption option) {
    return BlockButtons.at(static_cast<std::size_t>(option));
}

const std::string& ButtonOf(Alphabet alphabet) {
    return AlphabetButtons.at(static_cast<std::size_t>(alphabet));
}

const std::string& OrderButtonOf(const ListSetup& setup) {
    return OrderButtons.at(setup.RandomCodes ? 1 : 0);
}

std::string ChannelItem(Form form) {
    if (form == Form::Window)
        return "To Window";
    return form == Form::Clipboard ? "To Clipboard" : "To File";
}

} // namespace

void SetUp::Give(const ListSetup& setup) {
    if (setup.Input == Way::Loaded) {
        const fs::path file = desktop_.Folder() / "set-up.stg";
        driving::WriteFile(file, SettingsBytes(setup));
        Load(file);
        user_.OpenOptions();
    } else {
        TypeMainWindow(setup);
        user_.OpenOptions();
        setup.Input == Way::Typed ? TypeOptions(setup) : ClickOptions(setup);
    }
    SetFormatAndStatistics(setup);
    const driving::Window options = desktop_.Await(OptionsTitle);
    desktop_.Press({"Return"});
    desktop_.AwaitGone(options);
}

void SetUp::Load(const fs::path& file) {
    user_.Choose({"File", "Load Settings"});
    user_.Answer(desktop_.Await(driving::LoadSettingsTitle), file.string());
    const driving::Message message = user_.AwaitMessage();
    if (message.Text != "Settings were loaded successfully!")
        throw driving::Fault("the message after loading settings: " + message.Text);
    user_.Confirm(message);
}

void SetUp::Save(const fs::path& file) {
    fs::remove(file);
    user_.Choose({"File", "Save Settings"});
    user_.Answer(desktop_.Await(driving::SaveSettingsTitle), file.string());
    const driving::Message message = user_.AwaitMessage();
    if (message.Text != "Settings were saved successfully!")
        throw driving::Fault("the message after saving settings: " + message.Text);
    user_.Confirm(message);
}

void SetUp::TypeMainWindow(const ListSetup& setup) {
    keys_.Choose({"Sequence", "Output", ChannelItem(setup.Output)});
    user_.AwaitMain();
    constexpr int leastGroups = 2;
    keys_.MoveBar(MainTitle, "Number of Groups", setup.GroupCount() - leastGroups);
    user_.Find(MainTitle, "label", std::to_string(setup.GroupCount()));
    keys_.Fill(MainTitle, "Sample Size", std::to_string(setup.SampleSize));
    user_.TabTo(MainTitle, "Group Names");
    desktop_.Press(driving::Words(setup.Groups.size(), "Up"));
    for (const std::string& group : setup.Groups) {
        keys_.Fill(MainTitle, "Group Name", group);
        desktop_.Press({"shift+Tab", "Down"});
    }
}

void SetUp::TypeOptions(const ListSetup& setup) {
    keys_.Select(BlockButtons, ButtonOf(setup.Blocks));
    if (setup.Blocks == BlockOption::Equal)
        keys_.Fill(OptionsTitle, "Size of Equal Blocks", std::to_string(setup.EqualSize));
    if (setup.Blocks == BlockOption::Listed)
        keys_.Fill(OptionsTitle, "Random Block Sizes", setup.ListedSizesText);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Length");
    keys_.Select(AlphabetButtons, ButtonOf(setup.Characters));
    keys_.Select(OrderButtons, OrderButtonOf(setup));
    keys_.MoveBar(OptionsTitle, "Length", setup.CodeLength - ShortestCode(setup.SampleSize));
    user_.Find(OptionsTitle, "label", std::to_string(setup.CodeLength));
    desktop_.Press({"ctrl+Tab"});
}

void SetUp::ClickOptions(const ListSetup& setup) {
    const auto click = [&](const std::string& button) { user_.Click(OptionsTitle, "radio button", button); };
    click(ButtonOf(setup.Blocks));
    if (setup.Blocks == BlockOption::Equal)
        user_.Fill(OptionsTitle, "Size of Equal Blocks", std::to_string(setup.EqualSize));
    if (setup.Blocks == BlockOption::Listed)
        user_.Fill(OptionsTitle, "Random Block Sizes", setup.ListedSizesText);
    user_.Click(OptionsTitle, "page tab", "Code");
    user_.Find(OptionsTitle, "label", "Length");
    click(ButtonOf(setup.Characters));
    click(OrderButtonOf(setup));
    keys_.MoveBar(OptionsTitle, "Length", setup.CodeLength - ShortestCode(setup.SampleSize));
    user_.Find(OptionsTitle, "label", std::to_string(setup.CodeLength));
    user_.Click(OptionsTitle, "page tab", "Format");
}

void SetUp::SetFormatAndStatistics(const ListSetup& setup) {
    if (setup.Input == Way::Loaded)
        desktop_.Press({"ctrl+Tab", "ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Columns");
    keys_.MoveBar(OptionsTitle, "Columns", setup.Columns - 1);
    keys_.Check(BorderBox, setup.Border);
    keys_.MoveBar(OptionsTitle, "Cell Spacing", setup.Spacing);
    desktop_.Press({"ctrl+Tab"});
    user_.Find(OptionsTitle, "label", "Level of significance");
    keys_.Check(RunsTestBox, setup.RunsTest());
    if (setup.RunsTest())
        keys_.Fill(OptionsTitle, "Level of significance", setup.Level);
}

} // namespace orvane::validation
