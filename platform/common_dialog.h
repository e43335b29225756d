// The file prompts.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// A file prompt. All fields keep their values between two uses.
class CommonDialog {
  public:
    /// Flags: a save prompt asks before it accepts the name of an existing file.
    static constexpr std::int32_t OverwritePrompt = 2;

    virtual ~CommonDialog() = default;

    /// Shows the prompt and returns when it has closed; FileName is then the full path chosen. Throws a
    /// Failure with the number failure_number::Cancelled when the user cancels, with another number for any
    /// other problem; FileName is then unchanged.
    virtual void ShowOpen() = 0;
    virtual void ShowSave() = 0;

    std::int32_t Flags = 0;
    std::string FileName; ///< before the prompt: the name offered; after it: the path chosen
    std::string DialogTitle;
    std::string Filter; ///< description, pattern, description, pattern, ... separated by "|"
    std::string DefaultExt = "htm";
};

} // namespace orvane
