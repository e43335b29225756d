// An options window without the window, all of it valid but for the texts of block sizes, which no option but
// their own may look at.
#pragma once

#include "fakes/controls.h"
#include "fakes/desktop.h"
#include "options/option_validation.h"

#include <string>
#include <vector>

namespace orvane {

using Texts = std::vector<std::string>;
using Blocks = std::vector<std::int16_t>;

struct OptionsBench {
    OptionsBench() {
        settings.SampleSize = 20;
        settings.prEqBlockSize = settings.prUnEqBlockSize = "rubbish, 0";
        settings.CodeAlphaNum = Numeric;
        settings.CodeLength = 5;
        settings.SigLevel = 0.05F;
        desktop.messages.WhileShown = [this] { controls.Log.emplace_back("message"); };
    }
    void Option(BlockOptions option, const std::string& text = "") {
        settings.prBlockOption = option;
        (option == EqualSize ? settings.prEqBlockSize : settings.prUnEqBlockSize) = text;
    }
    void Set(std::int16_t groups, std::int16_t sampleSize) {
        settings.NumberOfGroups = groups;
        settings.SampleSize = sampleSize;
        Texts names;
        for (int g = 1; g <= groups; ++g)
            names.push_back("Group " + std::to_string(g));
        grid.Name(names);
    }
    /// BlockSizes without its slot 0.
    [[nodiscard]] Blocks Drawn() const { return {results.BlockSizes.begin() + 1, results.BlockSizes.end()}; }

    fakes::FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    fakes::MemoryGrid grid;
    fakes::RecordingOptions controls;
    OptionValidation validation{settings,         results,         grid,           controls,
                                desktop.messages, desktop.pointer, desktop.random, desktop.clock};
};

} // namespace orvane
