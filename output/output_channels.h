// Choosing the output channel, the file prompt of the "To File" channel, and viewing a saved list.
#pragma once

#include "engine/generation.h"
#include "engine/list_settings.h"
#include "output/report_context.h"
#include "output/window_report.h"
#include "platform/common_dialog.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The check marks of the output submenu.
class OutputMenu {
  public:
    virtual ~OutputMenu() = default;
    [[nodiscard]] virtual std::int16_t Count() const = 0;
    virtual void SetChecked(std::int16_t Index, bool checked) = 0;
};

/// Moves the check mark to the item `Index` and makes it the channel of the next generation. Throws an
/// OutOfRange failure if there is no such item; then no item is checked and the channel is unchanged.
void mnuOutput_Click(std::int16_t Index, OutputMenu& menu, ListSettings& settings);

class ListChannels : public OutputChannels {
  public:
    ListChannels(const ReportContext& context, CommonDialog& CMDialog, OutputWindow& window)
        : context_(context), CMDialog_(CMDialog), window_(window) {}

    void OutputToFile() override;
    void OutputToWindow() override;
    void OutputToClipBoard() override;

    /// Asks for a saved list and shows it: a web page in its associated program, any other file in the
    /// output window. Reports a failure itself.
    void DisplayRandomFile();
    /// The path chosen in an open prompt; empty after a cancel and after a failure, which was then reported.
    std::string GetRandomFileName();

  private:
    void PrepareSavePrompt();
    /// Shows the prompt again as long as the chosen file is the reserved one.
    std::string AskForListFile();

    const ReportContext& context_;
    CommonDialog& CMDialog_;
    OutputWindow& window_;
};

} // namespace orvane
