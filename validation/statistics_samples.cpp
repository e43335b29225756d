#include "validation/statistics_samples.h"

#include "validation/figures.h"
#include "validation/list_p_value.h"

#include <boost/math/distributions/hypergeometric.hpp>
#include <boost/math/special_functions/binomial.hpp>
#include <boost/math/special_functions/factorials.hpp>

#include <algorithm>
#include <map>
#include <set>
#include <span>

namespace orvane::validation {
namespace {

std::string Blocks(int count, int size, int groups) {
    return Grouped(count) + " blocks of " + std::to_string(size) + " subjects in " + std::to_string(groups) +
           " groups";
}

/// For categories of a single position, whose shares add up to 1.
void SetFreedom(Sample& sample) {
    sample.Freedom = static_cast<double>(sample.Categories.size()) - 1;
}

/// One category for each value of a draw, the two ends being half as likely as each value between them.
std::vector<Category> HalvedEnds(const Texts& labels) {
    std::vector<Category> categories;
    const double inner = 1.0 / (static_cast<double>(labels.size()) - 1);
    for (const std::string& label : labels)
        categories.push_back({label, inner, 0});
    categories.front().Share = categories.back().Share = inner / 2;
    return categories;
}

Sample ByteSample(const std::string& text, int draws) {
    Sample sample;
    sample.Text = text;
    sample.Draws = draws;
    for (int value = 0; value < 256; ++value)
        sample.Categories.push_back({std::to_string(value), 1.0 / 256, 0});
    SetFreedom(sample);
    return sample;
}

double Binomial(int n, int k) {
    return boost::math::binomial_coefficient<double>(static_cast<unsigned>(n), static_cast<unsigned>(k));
}

/// The probability of `runs` runs in a block of two groups of `half` subjects each: the number of ways to
/// divide each group into its runs, multiplied, and divided by the number of arrangements.
double ChanceOfRuns(int runs, int half) {
    const int pieces = runs / 2;
    const double ways = runs % 2 == 0 ? Binomial(half - 1, pieces - 1) * Binomial(half - 1, pieces - 1)
                                      : Binomial(half - 1, pieces - 1) * Binomial(half - 1, pieces);
    return 2 * ways / Binomial(2 * half, half);
}

} // namespace

int CountOfRuns(const Arrangement& arrangement) {
    int runs = 1;
    for (std::size_t i = 1; i < arrangement.size(); ++i)
        runs += arrangement[i] == arrangement[i - 1] ? 0 : 1;
    return runs;
}

double RunsDensity(const Arrangement& arrangement) {
    std::vector<int> groups;
    for (const char letter : arrangement)
        groups.push_back(letter - 'A' + 1);
    return RunsTestValue(groups);
}

std::array<Sample, 3> BitsOfValues(DrawingProgram& program, int count) {
    const std::string values = Grouped(count) + " values of the source: ";
    std::array<Sample, 3> samples = {
        ByteSample(values + "the upper 8 bits of each", count),
        ByteSample(values + "the lower 8 bits of each", count),
        ByteSample(values + "the upper 4 bits of two successive values", count / 2)};
    std::vector<float> batch(1000);
    std::uint32_t before = 0;
    for (int i = 0; i < count; ++i) {
        const std::size_t at = static_cast<std::size_t>(i) % batch.size();
        if (at == 0)
            program.Values(batch);
        const float value = batch[at];
        const auto bits = static_cast<std::uint32_t>(value * 0x1p24F);
        if (!(value >= 0 && value < 1) || static_cast<float>(bits) * 0x1p-24F != value) {
            ++samples[0].Impossible;
            continue;
        }
        ++samples[0].Categories[bits >> 16U].Count;
        ++samples[1].Categories[bits & 255U].Count;
        if (i % 2 == 1)
            ++samples[2].Categories[before << 4U | bits >> 20U].Count;
        before = bits >> 20U;
    }
    return samples;
}

Sample Draws(DrawingProgram& program, std::int16_t Lo, std::int16_t Hi, int count) {
    Sample sample;
    sample.Text = Grouped(count) + " draws from " + std::to_string(Lo) + " to " + std::to_string(Hi);
    sample.Draws = count;
    Texts labels;
    for (int value = Lo; value <= Hi; ++value)
        labels.push_back(std::to_string(value));
    sample.Categories = HalvedEnds(labels);
    SetFreedom(sample);
    for (int i = 0; i < count; ++i) {
        const std::int16_t drawn = program.Draw(Lo, Hi);
        if (drawn < Lo || drawn > Hi)
            ++sample.Impossible;
        else
            ++sample.Categories[static_cast<std::size_t>(drawn - Lo)].Count;
    }
    return sample;
}

Sample Arrangements(DrawingProgram& program, int size, int groups, int count, float level) {
    Sample sample;
    sample.Text = Blocks(count, size, groups);
    if (level > 0)
        sample.Text += " that pass the Runs test at level " + Significant(level, 3);
    sample.Draws = count;
    Arrangement arrangement;
    for (int i = 0; i < size; ++i)
        arrangement += static_cast<char>('A' + i % groups);
    std::sort(arrangement.begin(), arrangement.end());
    std::map<Arrangement, std::size_t> number;
    do
        if (level <= 0 || RunsDensity(arrangement) > level) {
            number.emplace(arrangement, sample.Categories.size());
            sample.Categories.push_back({arrangement, 0, 0});
        }
    while (std::next_permutation(arrangement.begin(), arrangement.end()));
    for (Category& category : sample.Categories)
        category.Share = 1 / static_cast<double>(number.size());
    SetFreedom(sample);
    for (int i = 0; i < count; ++i) {
        const auto found = number.find(program.Block(size, groups, level));
        if (found == number.end())
            ++sample.Impossible;
        else
            ++sample.Categories[found->second].Count;
    }
    return sample;
}

Sample GroupsByPosition(DrawingProgram& program, int size, int groups, int count) {
    Sample sample;
    sample.Text = Blocks(count, size, groups);
    sample.Draws = count;
    for (int position = 1; position <= size; ++position)
        for (const std::string& letter : GroupLetters(groups))
            sample.Categories.push_back({std::to_string(position) + " " + letter, 1.0 / groups, 0});
    // Each block contains each group equally often, so one position follows from the others.
    sample.Freedom = (size - 1.0) * (groups - 1.0);
    sample.Factor = (size - 1.0) / size;
    for (int i = 0; i < count; ++i) {
        const Arrangement block = program.Block(size, groups, 0);
        for (std::size_t position = 0; position < block.size(); ++position)
            ++sample
                  .Categories[position * static_cast<std::size_t>(groups) +
                              static_cast<std::size_t>(block[position] - 'A')]
                  .Count;
    }
    return sample;
}

Sample RunsOfBlocks(DrawingProgram& program, int size, int count) {
    // Numbers of runs with a probability below 1 in 2000 are counted together, at both ends of the
    // distribution.
    constexpr double rare = 0.0005;
    const int half = size / 2;
    int last = 1;
    double together = 0;
    while (together < rare)
        together += ChanceOfRuns(++last, half);
    const int mirrored = size + 2 - last;
    Sample sample;
    sample.Text = Blocks(count, size, 2);
    sample.Draws = count;
    sample.Categories.push_back({"2 to " + std::to_string(last), together, 0});
    for (int runs = last + 1; runs < mirrored; ++runs)
        sample.Categories.push_back({std::to_string(runs), ChanceOfRuns(runs, half), 0});
    sample.Categories.push_back({std::to_string(mirrored) + " to " + std::to_string(size), together, 0});
    SetFreedom(sample);
    for (int i = 0; i < count; ++i) {
        const int runs = CountOfRuns(program.Block(size, 2, 0));
        ++sample.Categories[static_cast<std::size_t>(std::clamp(runs, last, mirrored) - last)].Count;
    }
    return sample;
}

Sample BlockSizesOf(DrawingProgram& program, const ListSettings& settings,
                    const std::vector<std::int16_t>& sizes, int count) {
    Sample sample;
    sample.Text = Grouped(count) + " blocks of lists with a sample size of " +
                  std::to_string(settings.SampleSize) + " in " + std::to_string(settings.NumberOfGroups) +
                  " groups";
    sample.Draws = count;
    Texts labels;
    for (const std::int16_t size : sizes)
        labels.push_back(std::to_string(size));
    sample.Categories = HalvedEnds(labels);
    SetFreedom(sample);
    // The end of a list depends only on the sizes drawn so far. So the sizes of successive lists are
    // independent draws. The last list is counted only up to `count`.
    for (int drawn = 0; drawn < count;)
        for (const std::int16_t size : program.BlockSizes(settings)) {
            if (++drawn > count)
                break;
            const auto found = std::find(sizes.begin(), sizes.end(), size);
            if (found == sizes.end())
                ++sample.Impossible;
            else
                ++sample.Categories[static_cast<std::size_t>(found - sizes.begin())].Count;
        }
    return sample;
}

Sample CharactersOfCodes(DrawingProgram& program, std::int32_t alphabet, int lists) {
    constexpr std::int16_t length = 10;
    constexpr std::int16_t codes = 500;
    const std::string digits = "0123456789";
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string characters = alphabet == Alpha     ? letters
                                   : alphabet == Numeric ? digits
                                                         : digits + letters;
    Sample sample;
    sample.Text = Grouped(std::int64_t{lists} * codes) + " codes of 10 characters, in lists of 500";
    sample.Draws = std::int64_t{lists} * codes;
    Texts labels;
    for (const char character : characters)
        labels.emplace_back(1, character);
    const std::vector<Category> atOnePlace = HalvedEnds(labels);
    for (int place = 0; place < length; ++place)
        sample.Categories.insert(sample.Categories.end(), atOnePlace.begin(), atOnePlace.end());
    sample.Freedom = length * (static_cast<double>(characters.size()) - 1);
    for (int list = 0; list < lists; ++list)
        for (const std::string& code : program.Codes(alphabet, length, codes)) {
            sample.Impossible += code.size() == static_cast<std::size_t>(length) ? 0 : 1;
            for (std::size_t place = 0; place < code.size() && place < static_cast<std::size_t>(length);
                 ++place) {
                const std::size_t found = characters.find(code[place]);
                if (found == std::string::npos)
                    ++sample.Impossible;
                else
                    ++sample.Categories[place * characters.size() + found].Count;
            }
        }
    return sample;
}

Sample AgreementOfNeighbours(DrawingProgram& program, int size, int count) {
    const int half = size / 2;
    // The number of positions that have the first group in both blocks.
    const boost::math::hypergeometric common(static_cast<unsigned>(half), static_cast<unsigned>(half),
                                             static_cast<unsigned>(size));
    Sample sample;
    sample.Text = Grouped(count) + " pairs of blocks of " + std::to_string(size) + " subjects in 2 groups";
    sample.Draws = count;
    for (int both = 0; both <= half; ++both)
        sample.Categories.push_back(
            {std::to_string(2 * both), boost::math::pdf(common, static_cast<unsigned>(both)), 0});
    SetFreedom(sample);
    for (int i = 0; i < count; ++i) {
        const Arrangement first = program.Block(size, 2, 0);
        const Arrangement second = program.Block(size, 2, 0);
        std::size_t agree = 0;
        for (std::size_t position = 0; position < first.size(); ++position)
            agree += first[position] == second[position] ? 1 : 0;
        ++sample.Categories[agree / 2].Count;
    }
    return sample;
}

std::int64_t EqualPairs(DrawingProgram& program, int size, int groups, int count) {
    std::map<Arrangement, std::int64_t> times;
    std::int64_t pairs = 0;
    // A block that occurs for the n-th time adds n - 1 pairs.
    for (int i = 0; i < count; ++i)
        pairs += times[program.Block(size, groups, 0)]++;
    return pairs;
}

double NumberOfArrangements(int size, int groups) {
    const auto factorial = [](int n) { return boost::math::factorial<double>(static_cast<unsigned>(n)); };
    double arrangements = factorial(size);
    for (int group = 0; group < groups; ++group)
        arrangements /= factorial(size / groups);
    return arrangements;
}

double ExpectedEqualPairs(int size, int groups, int count) {
    return 0.5 * count * (count - 1.0) / NumberOfArrangements(size, groups);
}

std::int64_t RepeatedCodes(DrawingProgram& program, std::int16_t length, std::int16_t count, int lists) {
    std::int64_t repeated = 0;
    for (int list = 0; list < lists; ++list) {
        const std::vector<std::string> codes = program.Codes(Mixed, length, count);
        const std::set<std::string> different(codes.begin(), codes.end());
        repeated += static_cast<std::int64_t>(codes.size() - different.size());
    }
    return repeated;
}

} // namespace orvane::validation
