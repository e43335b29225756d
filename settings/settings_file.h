// The settings file: the inputs of a list, one item a line. Each value follows a line with a label for human
// readers. Only its line number tells what a value means; labels are not read.
#pragma once

#include "engine/list_settings.h"
#include "platform/code_page.h"
#include "platform/ms_flex_grid.h"
#include "platform/platform.h"
#include "platform/text_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The controls of the main form that a load sets.
class MainControls {
  public:
    virtual ~MainControls() = default;
    /// Sets the position of nogHsb, whose handler sets the number of groups. A position outside 2 to 16 is
    /// an OutOfRange failure that changes nothing.
    virtual void SetNogHsb(std::int16_t position) = 0;
    /// Sets the text of SampSizeTxt, whose handler sets the sample size.
    virtual void SetSampSizeTxt(const std::string& text) = 0;
    /// Moves the check mark of the output menu to the item `Index` and makes it the channel of the next
    /// generation. Throws an OutOfRange failure if there is no such item; then no item is checked and the
    /// channel is unchanged.
    virtual void mnuOutput_Click(std::int16_t Index) = 0;
};

class SettingsFile {
  public:
    SettingsFile(ListSettings& list, MSFlexGrid& groupNames, MainControls& controls, Platform& desktop)
        : list_(list), groupNames_(groupNames), controls_(controls), desktop_(desktop) {}

    /// Writes the current inputs into the file, replacing it; with `Announce`, shows a message afterwards.
    /// When the file is open, the name cell of the last group becomes the current cell of the grid. A text
    /// with a character that the code page or a line cannot hold is a failure before the file is opened, and
    /// so is a file that SetSettings could not read. Reports a failure itself; the file then contains what
    /// was written so far.
    void SaveSettings(const std::string& FileNameStr, bool Announce);

    /// The same without a message, the old file being deleted first if possible. A character that cannot be
    /// held becomes "?", and one report at the end names these characters. If SetSettings could not read the
    /// new file, the old one stays unchanged.
    void ReplaceSettings(const std::string& FileNameStr);

    /// Reads the file into the current inputs, each value as soon as its line is read, and then sets the
    /// significance level to 0.05; with `Announce`, shows a message afterwards. An empty name does nothing.
    /// Reports a failure itself; the values read so far remain.
    void SetSettings(const std::string& FileNameStr, bool Announce);

    /// The largest file that is read, in bytes. The boxes of the program are slow to edit long before their
    /// texts fill such a file.
    static constexpr std::size_t LargestFile = std::size_t{1} << 21U;

  private:
    /// The texts that the user types: the two fields of block sizes, then the names of the groups.
    [[nodiscard]] std::vector<std::string> TypedTexts() const;
    /// A carriage return would end the line of the text early: it counts as a character that the page lacks.
    [[nodiscard]] std::string TypedBytes(std::string text, Unmappable unmappable) const;
    /// The bytes of the file.
    [[nodiscard]] std::string Compose(Unmappable unmappable) const;
    void Write(const std::string& FileNameStr, const std::string& bytes);
    /// Throws a failure that names the characters that were written as "?"; does nothing if there are none.
    void TellReplaced() const;
    void DeleteIfPossible(const std::string& FileNameStr);
    void ReadValues(const std::string& FileNameStr);

    ListSettings& list_;
    MSFlexGrid& groupNames_;
    MainControls& controls_;
    Platform& desktop_;
};

} // namespace orvane
