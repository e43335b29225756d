// The options of a list, with a window that has no controls.
#pragma once

#include "fakes/desktop.h"
#include "options/option_validation.h"

namespace orvane {

using namespace fakes;

/// Options that are all valid but for the texts of block sizes, which no option but their own may look at.
struct OptionsBench : OptionsControls {
    explicit OptionsBench(int groups = 2, int sampleSize = 20) {
        settings.NumberOfGroups = static_cast<std::int16_t>(groups);
        settings.SampleSize = static_cast<std::int16_t>(sampleSize);
        settings.CodeAlphaNum = Numeric;
        settings.CodeLength = 5;
        settings.SigLevel = 0.05F;
        settings.prEqBlockSize = settings.prUnEqBlockSize = "rubbish, 0";
        for (int g = 1; g <= groups; ++g)
            settings.GroupNames.push_back("Group " + std::to_string(g));
    }
    void FocusEqBlockSizeTxt() override {}
    void FocusUnEqBlockSizeTxt() override {}
    void FocusTxtLevel() override {}
    [[nodiscard]] std::string LevelText() const override { return level; }
    void SelectTab(std::int16_t /*tab*/) override {}
    [[nodiscard]] bool TableBorderChecked() const override { return false; }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override { return 1; }
    void Close() override { ADD_FAILURE() << "a refusal closes the window"; }

    void EqualBlocks(const std::string& size) {
        settings.prBlockOption = EqualSize;
        settings.prEqBlockSize = size;
    }
    void BlocksOf(const std::string& sizes) {
        settings.prBlockOption = RandomSizesOf;
        settings.prUnEqBlockSize = sizes;
    }
    /// Judges the options and gives the messages.
    Texts Judge() {
        const bool refused = validation.NotValidInputs();
        Texts messages = desktop.messages.TakeAll();
        EXPECT_EQ(refused, !messages.empty());
        return messages;
    }
    /// The sizes of the blocks, without slot 0.
    [[nodiscard]] std::vector<std::int16_t> Blocks() const {
        EXPECT_EQ(results.BlockSizes.front(), 0);
        return {results.BlockSizes.begin() + 1, results.BlockSizes.end()};
    }

    std::string level = "0.05";
    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    OptionValidation validation{settings, results, *this, desktop.platform};
};

} // namespace orvane
