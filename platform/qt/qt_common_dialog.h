// File prompts of the toolkit, which shows the desktop's own prompt if there is one.
#pragma once

#include "platform/common_dialog.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_input_drain.h"

#include <QString>

class QFileDialog;

namespace orvane {

/// The folder in which the next prompt starts: at first the user's documents folder, or the home folder if
/// there is none; later the folder in which the last prompt was closed. All prompts of the program share one
/// object.
struct PromptFolder {
    PromptFolder();
    QString Path;
};

/// The first filter entry is selected when a prompt opens. A save prompt adds the extension of the selected
/// entry to a name typed without one, and asks the overwrite question about the resulting name. An open
/// prompt accepts the name of any existing file as typed, also of one that the selected entry hides. While
/// the program is ending, every prompt counts as cancelled.
class QtCommonDialog : public CommonDialog {
  public:
    QtCommonDialog(PromptFolder& folder, QtInputDrain& input, const QtEnding& ending)
        : folder_(folder), input_(input), ending_(ending) {}
    void ShowOpen() override;
    void ShowSave() override;

  private:
    enum class Kind { Open, Save };

    void Show(Kind kind);
    void Offer(QFileDialog& dialog) const;
    /// Whether the path of an accepted prompt can be used; if not, the prompt must be shown again.
    [[nodiscard]] bool IsToBeTaken(QFileDialog& dialog, const QString& path, Kind kind) const;
    [[nodiscard]] bool AsksToOverwrite(Kind kind) const;

    PromptFolder& folder_;
    QtInputDrain& input_;
    const QtEnding& ending_;
};

} // namespace orvane
