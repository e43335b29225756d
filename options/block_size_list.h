// The list of block sizes that the user types, such as 6,8,10,12-16: a pool from which blocks are drawn at
// random until they cover the sample size.
#pragma once

#include "engine/list_settings.h"
#include "options/options_controls.h"
#include "platform/platform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

class BlockSizeList {
  public:
    BlockSizeList(const ListSettings& settings, ListResults& results, OptionsControls& controls,
                  Platform& desktop)
        : settings_(settings), results_(results), controls_(controls), desktop_(desktop) {}

    /// True when the list cannot be used; otherwise BlockSizes is filled. The messages of BuildArr come from
    /// inside, that of every refusal is the caller's. Throws an Overflow failure for a number, a pool or a
    /// text that passes 16 bits and for drawn blocks that pass 32767 before they reach the sample size, and
    /// an OutOfRange failure for an empty pool. What the random source throws comes out too.
    bool NotValid(const std::string& InpStr);

    /// `S` without its blanks; only U+0020 is one.
    static std::string RemoveSpaces(const std::string& S);

    /// Whether every character is a digit, "-" or ",".
    static bool ValidChars(const std::string& S);

    /// Expands `S`, free of blanks, into the pool and draws BlockSizes from it. False after a message with
    /// the focus on the field; BlockSizes is then untouched.
    bool BuildArr(const std::string& S);

    /// The two ends of a range; both 0 when `S` is no pair.
    static void GetMinMax(const std::string& S, std::int16_t& min, std::int16_t& max);

  private:
    /// False at the first item without a value. Slot 0 of the pool is no candidate.
    static bool ExpandItems(const std::string& S, std::vector<std::int16_t>& pool);
    /// Shows the message and puts the focus on the field.
    void TellFault(const std::string& message);
    void DrawBlocks(const std::vector<std::int16_t>& pool);

    const ListSettings& settings_;
    ListResults& results_;
    OptionsControls& controls_;
    Platform& desktop_;
};

} // namespace orvane
