#include "engine/sequence_builder.h"

#include "engine/block_shuffle.h"
#include "engine/numbers.h"
#include "engine/runs_test.h"
#include "platform/failure.h"

#include <algorithm>
#include <utility>

namespace orvane {
namespace {

/// Of the arrangements of a block that can pass, about one in twenty or more does at any level. This many
/// attempts in vain mean that the source hands out no random values.
constexpr int MostAttempts = 2000;

/// The cells of a block's table, row by row, of what `positions` hold: position 1 in the first column of the
/// first row, position 2 below it.
std::vector<std::string> LayOut(std::vector<std::string> positions, std::int16_t columns) {
    const auto filled = static_cast<std::int16_t>(positions.size());
    const std::int16_t cells = RaiseToLimit(filled, columns);
    const auto rows = static_cast<std::int16_t>(cells / columns);

    std::vector<std::string> table;
    table.reserve(static_cast<std::size_t>(cells));
    for (std::int16_t row = 1; row <= rows; ++row)
        for (std::int16_t column = 0; column < columns; ++column) {
            const std::int16_t position = Add16(Multiply16(column, rows), row);
            table.push_back(position > filled ? std::string()
                                              : std::move(positions[static_cast<std::size_t>(position - 1)]));
        }
    return table;
}

} // namespace

void SequenceBuilder::BuildSequenceArr(std::vector<std::string>& ArrStr,
                                       std::vector<std::string>& BlockCodeArr, std::int16_t OffSet) {
    const std::size_t size = ArrStr.size();
    const std::vector<std::string>& names = settings_.GroupNames;
    if (names.empty() || size == 0 || OffSet < 0 ||
        static_cast<std::size_t>(OffSet) + size > results_.CodeArr.size())
        throw Failure("A block of the list has no positions, no codes or no groups.",
                      failure_number::InvalidArgument, "BuildSequenceArr");

    std::vector<std::uint8_t> groups = DealGroups(size, static_cast<std::int16_t>(names.size()));
    BlockCodeArr.assign(results_.CodeArr.begin() + OffSet,
                        results_.CodeArr.begin() + OffSet + static_cast<std::ptrdiff_t>(size));
    ShuffleUntilAccepted(groups);

    std::transform(groups.begin(), groups.end(), ArrStr.begin(),
                   [&](std::uint8_t group) { return names[group - 1U]; });
    ArrStr = LayOut(std::move(ArrStr), settings_.Columns);
    BlockCodeArr = LayOut(std::move(BlockCodeArr), settings_.Columns);
}

void SequenceBuilder::ShuffleUntilAccepted(std::vector<std::uint8_t>& groups) {
    const std::vector<std::int16_t> numberOfGroup = GroupNumbers(settings_.GroupNames);
    std::vector<std::int16_t> numbers(groups.size());
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        desktop_.Random.UniformReseed(desktop_.Clock.SecondsSinceMidnight());
        ShuffleBlock(desktop_.Random, groups);
        if (!settings_.PerformRuns)
            return;
        std::transform(groups.begin(), groups.end(), numbers.begin(),
                       [&](std::uint8_t group) { return numberOfGroup[group]; });
        if (IsAccepted(numbers))
            return;
    }
    throw Failure("A block of " + std::to_string(groups.size()) + " subjects did not pass the Runs test in " +
                      std::to_string(MostAttempts) + " attempts.",
                  failure_number::CannotPassRunsTest, "BuildSequenceArr");
}

bool SequenceBuilder::IsAccepted(std::span<const std::int16_t> numbers) {
    results_.LastPValue = GetRandomness(numbers, desktop_.Messages);
    if (results_.LastPValue > settings_.SigLevel) {
        results_.MaxPValue = std::max(results_.MaxPValue, results_.LastPValue);
        results_.MinPValue = std::min(results_.MinPValue, results_.LastPValue);
        return true;
    }
    if (!CanPassRunsTest(numbers, settings_.SigLevel))
        throw Failure(CannotPassRunsTest(numbers.size(), settings_.SigLevel),
                      failure_number::CannotPassRunsTest, "BuildSequenceArr");
    return false;
}

std::int16_t RaiseToLimit(std::int16_t n, std::int16_t columns) {
    if (n % columns == 0)
        return n;
    return Multiply16(columns, Add16(static_cast<std::int16_t>(n / columns), 1));
}

} // namespace orvane
