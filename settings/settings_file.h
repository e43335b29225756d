// The settings file: the inputs of a list, one item a line. Each value follows a line with a label for human
// readers. Only its line number tells what a value means; labels are not read.
#pragma once

#include "engine/list_settings.h"
#include "output/output_channels.h"
#include "output/text_file.h"
#include "platform/code_page.h"
#include "platform/ms_flex_grid.h"
#include "platform/platform.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The controls of the main form that a load sets. The operations throw what the change handlers of the
/// controls throw.
class MainControls {
  public:
    virtual ~MainControls() = default;
    /// Sets the position of nogHsb, whose handler sets the number of groups. A position outside 2 to 16 is
    /// an OutOfRange failure that changes nothing.
    virtual void SetNogHsb(std::int16_t position) = 0;
    /// Sets the text of SampSizeTxt, whose handler sets the sample size.
    virtual void SetSampSizeTxt(const std::string& text) = 0;
};

class SettingsFile {
  public:
    SettingsFile(ListSettings& list, MSFlexGrid& groupNames, MainControls& controls, OutputMenu& menu,
                 Platform& desktop)
        : list_(list), groupNames_(groupNames), controls_(controls), menu_(menu), desktop_(desktop) {}

    /// Writes the current inputs into the file, replacing it; with `Announce`, shows a message afterwards.
    /// The name cell of the last group becomes the current cell of the grid. For a character that the code
    /// page or a line cannot hold, Unmappable::Fail is a failure before the file is opened; with
    /// Unmappable::QuestionMark "?" is written and one report at the end names these characters. Reports a
    /// failure itself; the file then contains what was written so far.
    void SaveSettings(const std::string& FileNameStr, bool Announce, Unmappable unmappable);

    /// Reads the file into the current inputs, each value as soon as its line is read, and then sets the
    /// significance level to 0.05; with `Announce`, shows a message afterwards. An empty name does nothing.
    /// Reports a failure itself; the values read so far remain.
    void SetSettings(const std::string& FileNameStr, bool Announce);

    /// Throws a TooLarge failure if a file of the current inputs would be larger than SetSettings can read.
    void RequireReadableSize() const;

    /// The largest file that is read, in bytes. The boxes of the program are slow to edit long before their
    /// texts fill such a file.
    static constexpr std::size_t LargestFile = std::size_t{1} << 21U;

  private:
    /// The texts that the user types: the names of the groups and the two fields of block sizes.
    [[nodiscard]] std::vector<std::string> TypedTexts() const;
    void RequireWritableTexts() const;
    /// Throws a failure that names the characters that were written as "?"; does nothing if there are none.
    void TellReplaced() const;
    void WriteValues(TextFileWriter& file);
    void ReadValues(const std::string& FileNameStr);

    ListSettings& list_;
    MSFlexGrid& groupNames_;
    MainControls& controls_;
    OutputMenu& menu_;
    Platform& desktop_;
};

} // namespace orvane
