#include "validation/list_design.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <random>
#include <set>
#include <tuple>

namespace orvane::validation {

namespace {

// The factors, in the order of Factors().
enum : std::size_t { Blocks, Codes, Output, Columns, Page, Runs, Groups, Sample, Names, Length, FactorCount };

constexpr std::array<int, 4> ColumnCounts = {1, 6, 8, 10};
constexpr std::array<int, 5> GroupCounts = {2, 3, 4, 7, 16};
// 23 is not a multiple of any number of groups above; the others are multiples of some of them.
constexpr std::array<int, 4> SampleSizes = {23, 60, 144, 301};
constexpr std::array<const char*, 3> Levels = {"", "0.05", "0.2"};
constexpr std::size_t LongNames = 1;
constexpr std::size_t LongestCodes = 2;

struct PageLook {
    bool Border;
    int Spacing;
};
constexpr std::array<PageLook, 4> PageLooks = {{{false, 1}, {true, 0}, {true, 3}, {false, 5}}};

// Width in characters of a cell with the longest code and a short name.
constexpr int WideCell = 10 + 2 + 5;

/// Width in characters of a column on the clipboard.
constexpr int ClipboardWidth(int columns) {
    return std::min(20, 150 / columns);
}

constexpr std::size_t Open = static_cast<std::size_t>(-1); // a factor without a level yet

template <std::size_t Count>
std::vector<std::string> Numbers(const std::array<int, Count>& values) {
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const int value : values)
        texts.push_back(std::to_string(value));
    return texts;
}

std::vector<std::string> PageTexts() {
    std::vector<std::string> texts;
    texts.reserve(PageLooks.size());
    for (const PageLook& look : PageLooks)
        texts.push_back(std::string(look.Border ? "border" : "no border") + ", spacing " +
                        std::to_string(look.Spacing));
    return texts;
}

/// A level of one factor.
struct Choice {
    std::size_t Factor;
    std::size_t Level;
    bool operator<(const Choice& other) const {
        return std::tie(Factor, Level) < std::tie(other.Factor, other.Level);
    }
};

using Pair = std::tuple<Choice, Choice>;

std::set<Pair> PossiblePairs() {
    std::set<Pair> pairs;
    const auto& factors = Factors();
    for (std::size_t a = 0; a < factors.size(); ++a)
        for (std::size_t b = a + 1; b < factors.size(); ++b)
            for (std::size_t i = 0; i < factors[a].Levels.size(); ++i)
                for (std::size_t j = 0; j < factors[b].Levels.size(); ++j) {
                    Combination combination(FactorCount, Open);
                    combination[a] = i;
                    combination[b] = j;
                    if (Possible(combination))
                        pairs.insert({{a, i}, {b, j}});
                }
    return pairs;
}

std::string Words(const Pair& pair) {
    const auto text = [](const Choice& choice) {
        const Factor& factor = Factors()[choice.Factor];
        return factor.Name + " " + factor.Levels[choice.Level];
    };
    return text(std::get<0>(pair)) + " with " + text(std::get<1>(pair));
}

/// Calls `use` with each pair of levels that a combination has so far.
template <typename Use>
void ForEachPair(const Combination& combination, const Use& use) {
    for (std::size_t a = 0; a < combination.size(); ++a)
        for (std::size_t b = a + 1; b < combination.size(); ++b)
            if (combination[a] != Open && combination[b] != Open)
                use(Pair{{a, combination[a]}, {b, combination[b]}});
}

/// Searches lists that cover open pairs, one list at a time.
class Search {
  public:
    Search() {
        for (std::size_t factor = 0; factor < FactorCount; ++factor)
            for (std::size_t level = 0; level < Factors()[factor].Levels.size(); ++level)
                unused_.insert({factor, level});
    }

    [[nodiscard]] bool Done() const { return open_.empty(); }

    /// The best of many random lists.
    Combination Next() {
        constexpr int tries = 400;
        Combination best;
        std::size_t most = 0;
        for (int i = 0; i < tries; ++i) {
            Combination tried = Grow();
            const std::size_t worth = Worth(tried);
            if (worth > most) {
                most = worth;
                best = std::move(tried);
            }
        }
        Cover(best);
        return best;
    }

  private:
    /// A list that starts with an open pair. The other factors are set in random order, each to the level
    /// that covers most pairs.
    Combination Grow() {
        Combination combination(FactorCount, Open);
        auto first = open_.begin();
        std::advance(first, static_cast<std::ptrdiff_t>(random_() % open_.size()));
        const auto [a, b] = *first;
        combination[a.Factor] = a.Level;
        combination[b.Factor] = b.Level;
        for (const std::size_t factor : RandomOrder(FactorCount))
            if (combination[factor] == Open)
                combination[factor] = BestLevel(combination, factor);
        return combination;
    }

    std::size_t BestLevel(Combination combination, std::size_t factor) {
        std::optional<std::size_t> most;
        std::size_t best = 0;
        for (const std::size_t level : RandomOrder(Factors()[factor].Levels.size())) {
            combination[factor] = level;
            if (!Possible(combination))
                continue;
            const std::size_t worth = Worth(combination);
            if (!most || worth > *most) {
                most = worth;
                best = level;
            }
        }
        return best;
    }

    /// The number of new pairs. A level that no list has yet counts as many pairs, so that the first lists
    /// cover all levels.
    [[nodiscard]] std::size_t Worth(const Combination& combination) const {
        constexpr std::size_t newLevel = 10;
        std::size_t worth = 0;
        ForEachPair(combination, [&](const Pair& pair) { worth += open_.count(pair); });
        for (std::size_t factor = 0; factor < FactorCount; ++factor)
            worth += newLevel * unused_.count({factor, combination[factor]});
        return worth;
    }

    void Cover(const Combination& combination) {
        ForEachPair(combination, [&](const Pair& pair) { open_.erase(pair); });
        for (std::size_t factor = 0; factor < FactorCount; ++factor)
            unused_.erase({factor, combination[factor]});
    }

    // Not std::shuffle, whose result differs between libraries.
    std::vector<std::size_t> RandomOrder(std::size_t count) {
        std::vector<std::size_t> order(count);
        std::iota(order.begin(), order.end(), std::size_t{0});
        for (std::size_t left = count; left > 1; --left)
            std::swap(order[left - 1], order[random_() % left]);
        return order;
    }

    std::set<Pair> open_ = PossiblePairs();
    std::set<Choice> unused_;
    std::mt19937 random_{2}; // NOLINT: the design is the same at every validation
};

std::vector<std::string> GroupNames(int count, bool wide) {
    std::vector<std::string> names;
    for (int group = 1; group <= count; ++group) {
        const std::string number = std::to_string(group);
        // The byte E9 is a letter of the 8-bit code page; "<" and "&" are special characters in HTML.
        names.push_back(wide ? "Th\xE9rapie no " + number +
                                   (group % 2 == 0 ? " & placebo" : " <10 mg, at night>")
                             : std::string("Arm ") + static_cast<char>('A' + group - 1));
    }
    return names;
}

void SetBlockSizes(ListSetup& setup) {
    const int groups = setup.GroupCount();
    if (setup.Blocks == BlockOption::Equal)
        setup.EqualSize = 2 * groups;
    if (setup.Blocks != BlockOption::Listed)
        return;
    setup.ListedSizes = {2 * groups, 3 * groups, 4 * groups};
    const auto text = [&](std::size_t i) { return std::to_string(setup.ListedSizes[i]); };
    setup.ListedSizesText = text(0) + ", " + text(1) + "-" + text(1) + ",0" + text(2);
}

ListSetup SetupOf(const Combination& levels, int number) {
    ListSetup setup;
    setup.Number = number;
    setup.Blocks = static_cast<BlockOption>(levels[Blocks]);
    setup.Characters = static_cast<Alphabet>(levels[Codes] / 2);
    setup.RandomCodes = levels[Codes] % 2 == 1;
    setup.Output = static_cast<Form>(levels[Output]);
    setup.Columns = ColumnCounts.at(levels[Columns]);
    setup.Border = PageLooks.at(levels[Page]).Border;
    setup.Spacing = PageLooks.at(levels[Page]).Spacing;
    setup.Level = Levels.at(levels[Runs]);
    setup.Groups = GroupNames(GroupCounts.at(levels[Groups]), levels[Names] == LongNames);
    setup.SampleSize = SampleSizes.at(levels[Sample]);
    const std::array<int, 3> lengths = {ShortestCode(setup.SampleSize), 5, 10};
    setup.CodeLength = lengths.at(levels[Length]);
    SetBlockSizes(setup);
    return setup;
}

} // namespace

const std::vector<Factor>& Factors() {
    static const std::vector<Factor> factors = {
        {"block option", {"one block", "equal blocks", "sizes of a list", "random sizes"}},
        {"codes",
         {"sequential letters", "random letters", "sequential digits", "random digits", "sequential mixed",
          "random mixed"}},
        {"form", {"text file", "web page", "window", "clipboard"}},
        {"columns", Numbers(ColumnCounts)},
        {"page", PageTexts()},
        {"Runs test", {"off", "at 0.05", "at 0.2"}},
        {"groups", Numbers(GroupCounts)},
        {"sample size", Numbers(SampleSizes)},
        {"names", {"short", "wider than a column"}},
        {"code length", {"the shortest", "5", "10"}},
    };
    return factors;
}

bool Possible(const Combination& combination) {
    if (combination[Output] != static_cast<std::size_t>(Form::Clipboard))
        return true;
    const bool narrow =
        combination[Columns] != Open && ClipboardWidth(ColumnCounts.at(combination[Columns])) < WideCell;
    return combination[Names] != LongNames && !(narrow && combination[Length] == LongestCodes);
}

Coverage CoverageOf(const std::vector<Combination>& lists) {
    Coverage coverage;
    std::set<Pair> missing = PossiblePairs();
    coverage.Pairs = missing.size();
    std::set<Choice> levels;
    for (const Combination& list : lists) {
        ForEachPair(list, [&](const Pair& pair) { missing.erase(pair); });
        for (std::size_t factor = 0; factor < FactorCount; ++factor)
            levels.insert({factor, list[factor]});
    }
    for (const Pair& pair : missing)
        coverage.Missing.push_back(Words(pair));
    coverage.CoveredPairs = coverage.Pairs - missing.size();
    coverage.CoveredLevels = levels.size();
    for (const Factor& factor : Factors())
        coverage.Levels += factor.Levels.size();
    return coverage;
}

std::vector<Combination> BuildDesign(std::size_t most) {
    std::vector<Combination> lists;
    Search search;
    while (!search.Done() && lists.size() < most)
        lists.push_back(search.Next());
    return lists;
}

std::vector<ListSetup> Setups(const std::vector<Combination>& lists) {
    // Typing many names, or letters outside ASCII, takes too long.
    constexpr int mostTypedGroups = 4;
    constexpr std::array<Way, 3> ways = {Way::Typed, Way::Clicked, Way::Loaded};
    std::vector<ListSetup> setups;
    std::size_t easy = 0;
    for (const Combination& list : lists) {
        ListSetup setup = SetupOf(list, static_cast<int>(setups.size()) + 1);
        if (list[Names] != LongNames && setup.GroupCount() <= mostTypedGroups)
            setup.Input = ways.at(easy++ % ways.size());
        setups.push_back(std::move(setup));
    }
    return setups;
}

} // namespace orvane::validation
