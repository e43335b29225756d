// A file prompt that a test answers.
#pragma once

#include "platform/common_dialog.h"
#include "platform/failure.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orvane::fakes {

/// Answers each show with the next of `Answers`: a path chosen, or nothing for a cancel. With no answer left
/// it cancels. `Shown` keeps what each show looked like.
class ScriptedDialog : public CommonDialog {
  public:
    struct Look {
        bool save;
        std::int32_t flags;
        std::string fileName;
        std::string title;
        std::string filter;
    };

    void ShowOpen() override { Answer(false); }
    void ShowSave() override { Answer(true); }

    std::deque<std::optional<std::string>> Answers;
    std::vector<Look> Shown;
    std::optional<Failure> Fails;     ///< thrown in place of an answer
    std::function<void()> WhileShown; ///< runs while the prompt is open

  private:
    void Answer(bool save) {
        Shown.push_back({save, Flags, FileName, DialogTitle, Filter});
        if (WhileShown)
            WhileShown();
        if (Fails)
            throw Failure(*Fails);
        if (Answers.empty() || !Answers.front()) {
            if (!Answers.empty())
                Answers.pop_front();
            throw Failure("Cancel was selected.", failure_number::Cancelled, "CommonDialog");
        }
        FileName = *Answers.front();
        Answers.pop_front();
    }
};

} // namespace orvane::fakes
