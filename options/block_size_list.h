// The list of block sizes that the user types, such as 6,8,10,12-16. Block sizes are drawn from it at random
// until the blocks cover the sample size.
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

    /// Returns true if the list cannot be used, otherwise false with BlockSizes filled. BuildArr shows a
    /// message of its own for the faults that it finds; the caller shows another one whenever the result is
    /// true. Throws an Overflow failure if a number, the count of listed sizes or the length of the text
    /// does not fit 16 bits, or if the drawn blocks exceed 32767 before they reach the sample size; an
    /// OutOfRange failure if the list contains no size; and what the random source throws.
    bool NotValid(const std::string& InpStr);

  private:
    static std::string RemoveSpaces(const std::string& S);
    static bool ValidChars(const std::string& S);
    bool BuildArr(const std::string& S);
    /// Appends the sizes to `pool`, whose slot 0 is not used. Returns false at the first item with the value
    /// 0.
    static bool ExpandItems(const std::string& S, std::vector<std::int16_t>& pool);
    static void GetMinMax(const std::string& S, std::int16_t& min, std::int16_t& max);
    void TellFault(const std::string& message);
    void DrawBlocks(const std::vector<std::int16_t>& pool);

    const ListSettings& settings_;
    ListResults& results_;
    OptionsControls& controls_;
    Platform& desktop_;
};

} // namespace orvane
