// Every input of a randomization list, and what a generation leaves behind.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The list size is held in 16 bits.
inline constexpr std::int32_t LargestList = 32767;
/// The largest N whose 10 N N exchanges can be counted in 32 bits.
inline constexpr std::int32_t LargestBlock = 14654;
inline constexpr std::int16_t LongestCode = 10;

// The values of the following constants stand in settings files: never change them.
enum ListDestinations : std::int32_t { ToFile = 0, ToWindow = 1, ToClipboard = 2 };
enum BlockOptions : std::int32_t { OnlyOneBlock = 0, EqualSize = 1, RandomSizesOf = 2, RandomBlockSize = 3 };
enum CodeAlphabets : std::int32_t { Alpha = 0, Numeric = 1, Mixed = 2 };
enum CodeOrders : std::int32_t { Sequential = 0, Random = 1 };

enum SelectedCommands : std::int16_t { NotClosedByButton = 0, ClosedByOK = 1, ClosedByCancel = 2 };

/// The inputs. One instance lives as long as the program.
struct ListSettings {
    std::int16_t NumberOfGroups = 2; ///< 2 to 16
    /// The name of group g in slot g - 1, as the names stood at the last OK of the options window. A list is
    /// made of these groups. The home of the names is the group name grid.
    std::vector<std::string> GroupNames;
    std::int16_t SampleSize = 0; ///< subjects asked for; 0 not given; above 0 to generate
    std::int32_t OutputOption = ToFile;
    std::int16_t Columns = 6;     ///< 1 to 10, columns of every table of the list
    bool TableBorder = false;     ///< web page only
    std::int16_t CellSpacing = 1; ///< 0 to 5, web page only

    std::int32_t prBlockOption = OnlyOneBlock;
    std::string prEqBlockSize;   ///< as typed; its numeric value counts
    std::string prUnEqBlockSize; ///< as typed: sizes and ranges separated by commas
    std::int32_t CodeAlphaNum = Alpha;
    std::int32_t CodeSeqRandom = Sequential;
    std::int16_t CodeLength = 0; ///< characters of a subject code, up to 10
    float SigLevel = 0;          ///< level of the Runs test, above 0 and up to 0.3 once accepted
    bool PerformRuns = false;    ///< require each block to pass the Runs test
    std::int16_t SelectedCmd = NotClosedByButton; ///< how the options window was last closed
};

/// What a generation leaves behind.
struct ListResults {
    /// Slot 0 stays 0 and is no block; slots 1 and up are the block sizes in list order.
    std::vector<std::int16_t> BlockSizes{0};
    /// The subject code of each list position, position 1 first.
    std::vector<std::string> CodeArr;
    float LastPValue = 0; ///< of the latest Runs test
    float MinPValue = 0;  ///< smallest accepted P value of this generation; 1 before the first
    float MaxPValue = 0;  ///< largest accepted P value of this generation; 0 before the first
};

} // namespace orvane
