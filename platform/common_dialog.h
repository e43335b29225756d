// The file prompts.
#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// One file prompt. It keeps its values between uses: what a use does not set stays as the last one left it.
class CommonDialog {
  public:
    /// A save prompt asks before it lets the user choose a file that exists.
    static constexpr std::int32_t OverwritePrompt = 2;

    virtual ~CommonDialog() = default;

    /// Modal. On return FileName is the full path chosen. A cancel is a Failure with the number
    /// failure_number::Cancelled and leaves FileName as it was; any other problem has another number.
    virtual void ShowOpen() = 0;
    virtual void ShowSave() = 0;

    std::int32_t Flags = 0;
    std::string FileName; ///< before the show the name offered, after it the path chosen
    std::string DialogTitle;
    std::string Filter; ///< descriptions and patterns in turn, "|" between all fields
    std::string DefaultExt = "htm";
};

} // namespace orvane
