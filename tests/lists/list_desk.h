// A desktop with a list to be generated: group names, blocks, and the arrangement that the shuffle leaves.
#pragma once

#include "fakes/desktop.h"
#include "lists/file_channel.h"
#include "lists/generation.h"

namespace orvane {

using namespace fakes;

/// The output window without its controls.
struct ShownWindow : OutputWindow {
    explicit ShownWindow(MemoryFiles& files) : Files(files) {}
    void OutputFileName(const std::string& path, bool temporary) override {
        Path = path;
        Temporary = temporary;
    }
    void ShowModal() override { Shown.push_back(Files.Contents[Path]); }
    MemoryFiles& Files;
    std::string Path;
    bool Temporary = false;
    Texts Shown; ///< the text of each show
};

/// The main window and the options window without their controls.
struct ListDesk : OptionsWindow {
    explicit ListDesk(int columns = 3, const Texts& names = {"Group 1", "Group 2"},
                      std::vector<std::int16_t> blocks = {6, 4}, std::int16_t codeLength = 3)
        : Blocks(std::move(blocks)) {
        settings.Columns = static_cast<std::int16_t>(columns);
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        settings.GroupNames = names;
        settings.SampleSize = 10;
        settings.CodeAlphaNum = Numeric;
        settings.CodeLength = codeLength;
    }
    /// Fixes the blocks, as a press of "OK" does.
    void ShowModal() override {
        results.BlockSizes = Blocks;
        results.BlockSizes.insert(results.BlockSizes.begin(), 0);
    }
    /// The first exchanges of the shuffle of a block of `size`, two positions each; the others change
    /// nothing. Without any, the groups stay as they were dealt: 1, 2, 1, 2 and so on.
    void Exchange(int size, const std::vector<int>& positions) {
        auto& values = desktop.random.Values;
        const std::size_t end = values.size() + static_cast<std::size_t>(20 * size * size);
        for (const int position : positions)
            values.push_back(UniformFor(1, size, position));
        values.resize(end, 0);
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
    std::string ToTheClipboard() {
        Generate(ToClipboard);
        return desktop.clipboard.Content;
    }
    void Generate(std::int32_t channel) {
        settings.OutputOption = channel;
        generation.cmdGenerate_Click();
    }

    FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    std::vector<std::int16_t> Blocks;
    ReportContext context{settings, results, desktop.platform, 77};
    ScriptedDialog dialog;
    ShownWindow window{desktop.files};
    int refused = 0; ///< how often the sample size was refused
    Generation generation{context, *this, dialog, window, [this] { ++refused; }};
};

inline const std::string Copied = "Data were copied into clipboard successfuly!";

inline std::string Rule(std::size_t width) {
    return std::string(width, '=') + "\r\n";
}
inline std::string Blanks(std::size_t count) {
    return std::string().append(count, ' ');
}

} // namespace orvane
