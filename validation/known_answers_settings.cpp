// An example settings file that is written, read and written again; and settings out of range.
#include "engine/numbers.h"
#include "options/option_properties.h"
#include "platform/failure.h"
#include "settings/settings_file.h"
#include "validation/figures.h"
#include "validation/known_answers_parts.h"
#include "validation/memory_desktop.h"

namespace orvane::validation {
namespace {

Texts WorkedLines() {
    return {"[Number of groups (2 - 16]",
            "3",
            "[Groups: Name of each group on a separate line]",
            "Drug A",
            "Drug B",
            "Placebo",
            "[Sample Size]",
            "60",
            "[Code AlphaNum: 0-Alpha, 1-Numeric, 2-Mixed]",
            "1",
            "[Code SeqRandum: 0-Sequential, 1-Random]",
            "0",
            "[Code Length: (3-10)]",
            "4",
            "[Block Option: 0-OnlyOneBlock, 1-EqualSize, 2-RandomSizesOf, 3-RandomBlockSize]",
            "2",
            "[Equal Block Size: Enter size]",
            "",
            "[UnEqual Block Sizes: Enter sizes(comma delimmited and/or range]",
            "6,12",
            "[Output Option]",
            "1"};
}

std::string Joined(const Texts& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

class NumberControls : public MainControls {
  public:
    NumberControls(ListSettings& settings, MSFlexGrid& names) : settings_(settings), names_(names) {}
    void SetNogHsb(std::int16_t position) override {
        if (position < FewestGroups || position > MostGroups)
            throw Failure("The bar has no such position.", failure_number::OutOfRange, "nogHsb");
        settings_.NumberOfGroups = position;
        names_.SetRows(static_cast<std::int16_t>(position + 1));
    }
    void SetSampSizeTxt(const std::string& text) override { settings_.SampleSize = SampleSizeOf(text); }

  private:
    ListSettings& settings_;
    MSFlexGrid& names_;
};

class ThreeItems : public OutputMenu {
  public:
    [[nodiscard]] std::int16_t Count() const override { return 3; }
    void SetChecked(std::int16_t /*Index*/, bool /*checked*/) override {}
};

struct SettingsDesk {
    std::string Load(const std::string& bytes) {
        List.Desktop.FileSystem.Contents["trial.stg"] = bytes;
        File.SetSettings("trial.stg", true);
        return List.Desktop.Messages.Take();
    }
    std::string Save() {
        File.SaveSettings("trial.stg", true, Unmappable::Fail);
        return List.Desktop.Messages.Take();
    }
    std::string& Bytes() { return List.Desktop.FileSystem.Contents["trial.stg"]; }

    ListedValues Source;
    MemoryList List{Source, {"", ""}};
    NumberControls Controls{List.Settings, List.Names};
    ThreeItems Menu;
    SettingsFile File{List.Settings, List.Names, Controls, Menu, List.Desktop.All};
};

constexpr const char* Saved = "Settings were saved successfully!";
constexpr const char* Loaded = "Settings were loaded successfully!";

void CompareWritten(Evidence& evidence) {
    SettingsDesk desk;
    desk.List.Names.Name({"Drug A", "Drug B", "Placebo"});
    ListSettings& settings = desk.List.Settings;
    settings.NumberOfGroups = 3;
    settings.SampleSize = 60;
    settings.CodeAlphaNum = Numeric;
    settings.CodeSeqRandom = Sequential;
    settings.CodeLength = 4;
    settings.prBlockOption = RandomSizesOf;
    settings.prUnEqBlockSize = "6,12";
    settings.OutputOption = ToWindow;
    evidence.Compare("Message", Saved, desk.Save(), ByHand);
    CompareLines(evidence, WorkedLines(), desk.Bytes(), ByHand);
}

void CompareRead(Evidence& evidence) {
    SettingsDesk desk;
    evidence.Compare("Message", Loaded, desk.Load(Joined(WorkedLines())), ByHand);
    const ListSettings& settings = desk.List.Settings;
    const std::pair<const char*, std::pair<std::string, std::string>> values[] = {
        {"Number of groups", {"3", std::to_string(settings.NumberOfGroups)}},
        {"Name of group 1", {"Drug A", desk.List.Names.TextMatrix(1, 1)}},
        {"Name of group 2", {"Drug B", desk.List.Names.TextMatrix(2, 1)}},
        {"Name of group 3", {"Placebo", desk.List.Names.TextMatrix(3, 1)}},
        {"Sample size", {"60", std::to_string(settings.SampleSize)}},
        {"Alphabet of the codes", {"1", std::to_string(settings.CodeAlphaNum)}},
        {"Order of the codes", {"0", std::to_string(settings.CodeSeqRandom)}},
        {"Length of the codes", {"4", std::to_string(settings.CodeLength)}},
        {"Block option", {"2", std::to_string(settings.prBlockOption)}},
        {"Equal block size", {"", settings.prEqBlockSize}},
        {"List of block sizes", {"6,12", settings.prUnEqBlockSize}},
        {"Output", {"1", std::to_string(settings.OutputOption)}},
        {"Level of the Runs test", {"0.05", SevenDigits(settings.SigLevel)}},
    };
    for (const auto& [what, texts] : values)
        evidence.Compare(what, texts.first, texts.second, ByHand);
    desk.Bytes().clear();
    evidence.Compare("Message after writing it again", Saved, desk.Save(), ByHand);
    evidence.Demand(desk.Bytes() == Joined(WorkedLines()), "The file differs after writing it again.");
}

/// The first line of the message when a file is loaded in which line `number` is `text`.
std::string LoadedWith(SettingsDesk& desk, std::size_t number, const std::string& text) {
    Texts lines = WorkedLines();
    lines.at(number - 1) = text;
    const std::string message = desk.Load(Joined(lines));
    return message.starts_with("Error Description: ") ? "an error report" : message;
}

void CompareOutOfRange(Evidence& evidence) {
    for (const char* groups : {"1", "17", "", "40000"}) {
        SettingsDesk desk;
        evidence.Compare("Number of groups \"" + std::string(groups) + "\"", "an error report",
                         LoadedWith(desk, 2, groups), ByHand);
        evidence.Compare("Number of groups afterwards", "2",
                         std::to_string(desk.List.Settings.NumberOfGroups), ByHand);
    }
    for (const char* output : {"3", "-1", "40000"}) {
        SettingsDesk desk;
        evidence.Compare("Output " + std::string(output), "an error report", LoadedWith(desk, 22, output),
                         ByHand);
        evidence.Compare("Output afterwards", "0", std::to_string(desk.List.Settings.OutputOption), ByHand);
    }
    SettingsDesk desk;
    LoadedWith(desk, 14, "99");
    desk.List.Settings.CodeAlphaNum = 7;
    desk.List.Settings.CodeSeqRandom = -1;
    desk.List.Settings.prBlockOption = 4;
    BringOptionsIntoRange(desk.List.Settings);
    const ListSettings& settings = desk.List.Settings;
    evidence.Compare("Code length 99, when the options are shown", "10", std::to_string(settings.CodeLength),
                     ByHand);
    evidence.Compare("Alphabet 7", "2", std::to_string(settings.CodeAlphaNum), ByHand);
    evidence.Compare("Order -1", "0", std::to_string(settings.CodeSeqRandom), ByHand);
    evidence.Compare("Block option 4", "3", std::to_string(settings.prBlockOption), ByHand);
}

} // namespace

void CheckKnownSettings(Record& record) {
    RunKnown(record, "SET-1.1", "The example settings file", CompareWritten);
    RunKnown(record, "SET-2.1", "The example settings file, read and written again", CompareRead);
    RunKnown(record, "SET-3.1", "Settings out of range", CompareOutOfRange);
}

} // namespace orvane::validation
