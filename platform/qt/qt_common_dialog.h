// File prompts of the toolkit, which shows the desktop's own where there is one.
#pragma once

#include "platform/common_dialog.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_input_drain.h"

#include <QString>

class QFileDialog;

namespace orvane {

/// The folder in which the next prompt starts: the user's documents at first, then the one in which the last
/// prompt ended. All prompts of the program share one.
struct PromptFolder {
    PromptFolder();
    QString Path;
};

/// The first filter entry is selected. A save prompt gives a name typed without an extension that of the
/// selected entry and asks the overwrite question about the name with it; an open prompt takes the name of an
/// existing file as it is, whether or not the selected entry shows it. While the program is ending every
/// prompt counts as cancelled.
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
    /// Whether the path that an accepted prompt gives can be taken; if not, the prompt has to come back.
    [[nodiscard]] bool IsToBeTaken(QFileDialog& dialog, const QString& path, Kind kind) const;
    [[nodiscard]] bool AsksToOverwrite(Kind kind) const;

    PromptFolder& folder_;
    QtInputDrain& input_;
    const QtEnding& ending_;
};

} // namespace orvane
