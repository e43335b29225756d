// The live state that settings are written from and read into.
#pragma once

#include "fakes/controls.h"
#include "fakes/desktop.h"
#include "settings/settings_file.h"

#include <map>
#include <string>
#include <vector>

namespace orvane {

using Texts = std::vector<std::string>;

/// Three groups, sample size 60, numeric sequential codes of length 4, blocks out of a list, to the window.
inline const Texts ExampleLines = {
    "[Number of groups (2 - 16]",
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

inline std::string Joined(const Texts& lines, const std::string& lineEnd = "\r\n") {
    std::string text;
    for (const std::string& line : lines)
        text += line + lineEnd;
    return text;
}

struct SettingsBench {
    /// The values that a file holds, by their line in the example; line 0 is the level.
    [[nodiscard]] std::map<std::size_t, std::string> Values() const {
        return {{0, std::to_string(settings.SigLevel)},
                {2, std::to_string(settings.NumberOfGroups)},
                {4, grid.Names().at(0)},
                {5, grid.Names().at(1)},
                {6, grid.Names().at(2)},
                {8, controls.SampSizeTxt},
                {10, std::to_string(settings.CodeAlphaNum)},
                {12, std::to_string(settings.CodeSeqRandom)},
                {14, std::to_string(settings.CodeLength)},
                {16, std::to_string(settings.prBlockOption)},
                {18, settings.prEqBlockSize},
                {20, settings.prUnEqBlockSize},
                {22, std::to_string(settings.OutputOption)}};
    }
    /// What a user sees of the only message: "" for none, "report" for the shared error report.
    std::string Said() {
        const std::string text = desktop.messages.Take();
        return text.starts_with("Error Description: ") ? "report" : text;
    }
    /// What is said when a file of these bytes is loaded.
    std::string Load(const std::string& bytes) {
        Disk() = bytes;
        file.SetSettings("a.stg", true);
        return Said();
    }
    std::string& Disk(const std::string& path = "a.stg") { return desktop.files.Contents[path]; }

    fakes::FakeDesktop desktop;
    ListSettings settings;
    fakes::MemoryGrid grid;
    fakes::FakeMainControls controls{settings, grid};
    fakes::FakeOutputMenu menu;
    SettingsFile file{settings, grid, controls, menu, desktop.platform};
};

/// The state that the example is written from.
struct ExampleBench : SettingsBench {
    ExampleBench() {
        grid.Name({"Drug A", "Drug B", "Placebo"});
        settings = {3,      60,      ToWindow,   6, false, 1,     RandomSizesOf,    "",
                    "6,12", Numeric, Sequential, 4, 0.05F, false, NotClosedByButton};
        controls.SampSizeTxt = "60";
    }
};

/// A state that has no value with the example in common.
struct OtherBench : SettingsBench {
    OtherBench() {
        grid.Name({"x", "y", "z", "v", "w"});
        settings = {5,   7,     ToClipboard, 2, true, 5,    EqualSize, "9",
                    "8", Mixed, Random,      9, 0.2F, true, ClosedByOK};
        controls.SampSizeTxt = "7x";
        menu.Checked = {false, false, true};
    }
};

} // namespace orvane
