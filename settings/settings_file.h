// The settings file: the set-up of one trial, one item a line. Each value stands behind a label that is there
// for people; what gives a line its meaning is its position alone.
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

/// The controls of the main form that a load moves. What their handlers throw comes out of these operations.
class MainControls {
  public:
    virtual ~MainControls() = default;
    /// Moves nogHsb, which makes the number of groups follow. A position outside 2 to 16 is an OutOfRange
    /// failure that changes nothing.
    virtual void SetNogHsb(std::int16_t position) = 0;
    /// Sets the text of SampSizeTxt, which makes the sample size follow.
    virtual void SetSampSizeTxt(const std::string& text) = 0;
};

class SettingsFile {
  public:
    SettingsFile(ListSettings& settings, MSFlexGrid& groupNames, MainControls& controls, OutputMenu& menu,
                 Platform& desktop)
        : settings_(settings), groupNames_(groupNames), controls_(controls), menu_(menu), desktop_(desktop) {}

    /// Writes the live state into the file, replacing it, and says so if `Announce`. The name of the last
    /// group is then the current cell. A character that the code page or a line cannot hold is a failure
    /// before the file is opened (Unmappable::Fail), or is written as "?" and named in a report at the end
    /// (Unmappable::QuestionMark). Reports a failure itself; the file then holds what got written.
    void SaveSettings(const std::string& FileNameStr, bool Announce, Unmappable unmappable);

    /// Reads the file into the live state, each value taking effect as soon as its line is read, and says so
    /// if `Announce`. An empty name does nothing. Reports a failure itself; what was read by then stays.
    void SetSettings(const std::string& FileNameStr, bool Announce);

    /// Throws a TooLarge failure when a file of the live state would be larger than SetSettings reads.
    void RequireReadableSize() const;

    /// Bytes of a file that is read, several times what the boxes of the program can work with in comfort.
    static constexpr std::size_t LargestFile = std::size_t{1} << 21U;

  private:
    /// What the user typed: the names of the groups and the two texts of block sizes.
    [[nodiscard]] std::vector<std::string> TypedTexts() const;
    void RequireWritableTexts() const;
    /// Throws a failure that names the characters which were written as "?", if there are any.
    void TellReplaced() const;
    void WriteValues(TextFileWriter& file);
    void ReadValues(const std::string& FileNameStr);

    ListSettings& settings_;
    MSFlexGrid& groupNames_;
    MainControls& controls_;
    OutputMenu& menu_;
    Platform& desktop_;
};

} // namespace orvane
