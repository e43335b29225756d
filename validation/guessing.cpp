#include "validation/guessing.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>

namespace orvane::validation {
namespace {

/// Remaining subjects of each group, in descending order.
using Rest = std::vector<int>;

int SumOf(const Rest& rest) {
    int sum = 0;
    for (const int count : rest)
        sum += count;
    return sum;
}

/// Calculates from the end of a block to its start and stores the results.
class BlockGame {
  public:
    Guessable From(const Rest& rest) {
        const int subjects = SumOf(rest);
        if (subjects == 0)
            return {};
        const auto known = known_.find(rest);
        if (known != known_.end())
            return known->second;
        // The group with the fewest assignments has the most remaining subjects. This is the probability that
        // it is the next.
        Guessable expected{static_cast<double>(rest.front()) / subjects,
                           rest.front() == subjects ? 1.0 : 0.0};
        for (std::size_t g = 0; g < rest.size() && rest[g] > 0; ++g) {
            const double chance = static_cast<double>(rest[g]) / subjects;
            Rest next = rest;
            --next[g];
            std::sort(next.begin(), next.end(), std::greater<>());
            const Guessable later = From(next);
            expected.Right += chance * later.Right;
            expected.Certain += chance * later.Certain;
        }
        return known_[rest] = expected;
    }

  private:
    std::map<Rest, Guessable> known_;
};

} // namespace

Guessable ExpectedOfBlock(int size, int groups) {
    Rest rest(static_cast<std::size_t>(groups), size / groups);
    for (int more = 0; more < size % groups; ++more)
        ++rest[static_cast<std::size_t>(more)];
    return BlockGame().From(rest);
}

double RightByFormula(int size) {
    // m + 2^(2m - 1) / C(2m, m) - 1/2. The quotient is calculated factor by factor: 2^(2m) / C(2m, m) is the
    // product of 2 i / (2 i - 1) for i from 1 to m.
    const int m = size / 2;
    double quotient = 1;
    for (int i = 1; i <= m; ++i)
        quotient *= 2.0 * i / (2.0 * i - 1);
    return m + quotient / 2 - 0.5;
}

std::vector<SizeChance> HalfAtTheEnds(const std::vector<int>& sizes) {
    if (sizes.size() == 1)
        return {{sizes.front(), 1}};
    const double inner = 1.0 / static_cast<double>(sizes.size() - 1);
    std::vector<SizeChance> chances;
    for (const int size : sizes)
        chances.push_back({size, inner});
    chances.front().Chance = chances.back().Chance = inner / 2;
    return chances;
}

Guessable ExpectedShare(const std::vector<SizeChance>& sizes, int groups) {
    Guessable sum;
    double subjects = 0;
    for (const SizeChance& each : sizes) {
        const Guessable block = ExpectedOfBlock(each.Size, groups);
        sum.Right += each.Chance * block.Right;
        sum.Certain += each.Chance * block.Certain;
        subjects += each.Chance * each.Size;
    }
    return {sum.Right / subjects, sum.Certain / subjects};
}

double PlayAgainst(const std::vector<int>& assignments, int groups) {
    std::vector<int> counts(static_cast<std::size_t>(groups), 0);
    double right = 0;
    for (const int group : assignments) {
        int& count = counts.at(static_cast<std::size_t>(group));
        const int fewest = *std::min_element(counts.begin(), counts.end());
        if (count == fewest)
            right += 1.0 / static_cast<double>(std::count(counts.begin(), counts.end(), fewest));
        ++count;
    }
    return right;
}

} // namespace orvane::validation
