// The assignment of one block: dealt out, shuffled, tested and laid out in columns.
#pragma once

#include "engine/list_settings.h"
#include "platform/platform.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace orvane {

class SequenceBuilder {
  public:
    SequenceBuilder(const ListSettings& settings, ListResults& results, Platform& desktop)
        : settings_(settings), results_(results), desktop_(desktop) {}

    /// Makes one block. On entry both arrays have one entry for each position of the block, their content is
    /// ignored, and `OffSet` is the number of subjects of the earlier blocks. On return both have one entry
    /// for each cell of the block's table, row by row: the group name and the subject code, both empty for a
    /// blank cell. Positions run down the columns.
    ///
    /// With the Runs test on, the block is shuffled further until it passes; LastPValue, MinPValue and
    /// MaxPValue follow. A block that cannot pass is a failure, never a block that is printed and never an
    /// endless loop. A block above LargestBlock is an Overflow failure. A failure leaves the arrays as they
    /// stand.
    void BuildSequenceArr(std::vector<std::string>& ArrStr, std::vector<std::string>& BlockCodeArr,
                          std::int16_t OffSet);

  private:
    void ShuffleUntilAccepted(std::vector<std::uint8_t>& groups);
    /// Tests one arrangement, `numbers` holding the group number of each position. Throws when no arrangement
    /// of this block can ever pass.
    bool IsAccepted(std::span<const std::int16_t> numbers);

    const ListSettings& settings_;
    ListResults& results_;
    Platform& desktop_;
};

/// `n` raised to a multiple of `columns`, in checked 16-bit arithmetic.
std::int16_t RaiseToLimit(std::int16_t n, std::int16_t columns);

} // namespace orvane
