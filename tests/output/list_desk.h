// A desktop with a list to be reported: groups, blocks, codes, and the arrangement that the shuffle leaves.
#pragma once

#include "fakes/desktop.h"
#include "output/output_channels.h"
#include "output/output_document.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvane {

using Texts = std::vector<std::string>;

/// The output window without its controls: shows the file, does what WhileOpen says, closes.
struct ShownWindow : OutputWindow, OutputText {
    ShownWindow(Platform& desktop, CommonDialog& dialog) : Document(desktop, dialog) {}

    void OutputFileName(const std::string& strOutputFileName, bool temporary) override {
        Document.OutputFileName(strOutputFileName, temporary);
    }
    void ShowModal() override {
        ++Shows;
        Text.clear();
        Document.Form_Load(*this);
        if (WhileOpen)
            WhileOpen();
        Document.Form_Unload();
    }
    void AppendLine(const std::string& text) override { Text += text + "\r\n"; }

    OutputDocument Document;
    std::string Text;
    int Shows = 0;
    std::function<void()> WhileOpen;
};

struct ListDesk {
    explicit ListDesk(std::int16_t columns = 3, const Texts& names = {"Group 1", "Group 2"},
                      const std::vector<std::int16_t>& blocks = {6, 4}, std::size_t codeLength = 3) {
        settings.Columns = columns;
        settings.NumberOfGroups = static_cast<std::int16_t>(names.size());
        grid.Name(names);
        for (const std::int16_t size : blocks) {
            results.BlockSizes.push_back(size);
            for (int position = 0; position < size; ++position) {
                const std::string number = std::to_string(results.CodeArr.size() + 1);
                results.CodeArr.push_back(std::string(codeLength - number.size(), '0') + number);
            }
        }
    }

    /// The first exchanges of the shuffle of a block of `size`, two positions each; the others change
    /// nothing. Without any, the groups stay as they were dealt: 1, 2, 1, 2 and so on.
    void Exchange(int size, const std::vector<int>& positions) {
        auto& values = desktop.random.Values;
        const std::size_t end = values.size() + static_cast<std::size_t>(20 * size * size);
        for (const int position : positions)
            values.push_back(fakes::UniformFor(1, size, position));
        values.resize(end, 0);
    }

    /// Each of these runs a report and gives what stands at its place then.
    std::string ToFile(const std::string& path) {
        dialog.Answers = {path};
        channels.OutputToFile();
        return desktop.files.Contents.contains(path) ? desktop.files.Contents[path] : "no file";
    }
    std::string ToWindow() {
        channels.OutputToWindow();
        return window.Text;
    }
    std::string ToBoard() {
        channels.OutputToClipBoard();
        return desktop.board.Content;
    }

    fakes::FakeDesktop desktop;
    ListSettings settings;
    ListResults results;
    fakes::MemoryGrid grid;
    SequenceBuilder builder{settings, results, grid, desktop.random, desktop.clock, desktop.messages};
    ReportContext context{settings, results, grid, builder, desktop.platform, 77};
    fakes::ScriptedDialog dialog;
    fakes::ScriptedDialog windowDialog;
    ShownWindow window{desktop.platform, windowDialog};
    ListChannels channels{context, dialog, window};
};

inline const std::string BoardSuccess = "Data were copied into clipboard successfuly!";

inline std::string Report(const std::string& description, std::int32_t number, const std::string& source) {
    return "Error Description: " + description + "\r\nError Number: " + std::to_string(number) +
           "\r\nError Source: " + source;
}

} // namespace orvane
