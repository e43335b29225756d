// A desktop with a list to be generated: group names, blocks, and the arrangement that the shuffle leaves.
#pragma once

#include "fakes/desktop.h"
#include "output/glb_util.h"
#include "output/output_channels.h"

namespace orvane {

using namespace fakes;

/// The output window without its controls.
struct ShownWindow : OutputWindow {
    explicit ShownWindow(MemoryFiles& files) : Files(files) {}
    void OutputFileName(const std::string& path, bool temporary) override { Name = {path, temporary}; }
    void ShowModal() override { Shown.push_back(Files.Contents[Name.first]); }
    MemoryFiles& Files;
    std::pair<std::string, bool> Name; ///< whether it is temporary
    Texts Shown;                       ///< the text of each show
};

/// The main window and the options window without their controls.
struct ListDesk : OptionsWindow, SampleSizeBox {
    explicit ListDesk(int columns = 3, const Texts& names = {"Group 1", "Group 2"},
                      const std::vector<std::int16_t>& blocks = {6, 4}, std::int16_t codeLength = 3)
        : grid(names), Blocks(blocks) {
        settings.Columns = static_cast<std::int16_t>(columns);
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        settings.SampleSize = 10;
        settings.CodeAlphaNum = Numeric;
        settings.CodeLength = codeLength;
    }
    /// Fixes the blocks, as a press of "OK" does.
    void ShowModal() override {
        results.BlockSizes = Blocks;
        results.BlockSizes.insert(results.BlockSizes.begin(), 0);
    }
    [[nodiscard]] std::string Text() const override { return ""; }
    void SetFocus() override {}

    /// The first exchanges of the shuffle of a block of `size`, two positions each; the others change
    /// nothing. Without any, the groups stay as they were dealt: 1, 2, 1, 2 and so on.
    void Exchange(int size, const std::vector<int>& positions) {
        auto& values = desktop.random.Values;
        const std::size_t end = values.size() + static_cast<std::size_t>(20 * size * size);
        for (const int position : positions)
            values.push_back(UniformFor(1, size, position));
        values.resize(end, 0);
    }
    void Generate(std::int32_t channel) {
        settings.OutputOption = channel;
        generation.cmdGenerate_Click();
    }

    /// Each of these generates a list and gives what stands at its place then.
    std::string ToTheFile(const std::string& path) {
        dialog.Answers = {path};
        Generate(ToFile);
        return desktop.files.Contents.contains(path) ? desktop.files.Contents[path] : "no file";
    }
    std::string ToTheWindow() {
        Generate(ToWindow);
        return window.Shown.empty() ? "not shown" : window.Shown.back();
    }
    std::string ToTheBoard() {
        Generate(ToClipboard);
        return desktop.board.Content;
    }

    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    MemoryGrid grid;
    std::vector<std::int16_t> Blocks;
    SequenceBuilder builder{settings, results, grid, desktop.platform};
    ReportContext context{settings, results, grid, builder, desktop.platform, 77};
    ScriptedDialog dialog;
    ShownWindow window{desktop.files};
    ListChannels channels{context, dialog, window};
    Generation generation{settings, results, *this, channels, *this, desktop.platform};
};

inline const std::string BoardSuccess = "Data were copied into clipboard successfuly!";

inline std::string Report(const std::string& description, std::int32_t number, const std::string& source) {
    return "Error Description: " + description + "\r\nError Number: " + std::to_string(number) +
           "\r\nError Source: " + source;
}

} // namespace orvane
