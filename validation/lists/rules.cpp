#include "validation/lists/rules.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <set>

namespace orvane::validation {

namespace {

using Block = std::vector<Subject>;

int Size(const Block& block) {
    return static_cast<int>(block.size());
}

int Subjects(const MadeList& list) {
    int subjects = 0;
    for (const Block& block : list.Blocks)
        subjects += Size(block);
    return subjects;
}

/// Whether the list has `least` subjects or more, and had fewer before its last block.
bool EndsWhenItHas(const MadeList& list, int least) {
    const int subjects = Subjects(list);
    return subjects >= least && subjects - Size(list.Blocks.back()) < least;
}

/// Whether each group has its share of every block, and the first groups one subject more if there is a rest.
bool EvenBlocks(const MadeList& list) {
    const int groups = list.Setup.GroupCount();
    for (const Block& block : list.Blocks)
        for (int group = 1; group <= groups; ++group)
            if (std::ranges::count(block, group, &Subject::Group) !=
                Size(block) / groups + (group <= Size(block) % groups ? 1 : 0))
                return false;
    return true;
}

bool OneBlock(const MadeList& list) {
    return list.Blocks.size() == 1 && Subjects(list) == list.Setup.SampleSize;
}

bool EqualBlocks(const MadeList& list) {
    const int size = list.Setup.EqualSize;
    const int blocks = list.Setup.SampleSize / size + 1;
    return static_cast<int>(list.Blocks.size()) == blocks &&
           std::ranges::all_of(list.Blocks, [&](const Block& block) { return Size(block) == size; });
}

bool ListedBlocks(const MadeList& list) {
    const auto isListed = [&](const Block& block) {
        return std::ranges::count(list.Setup.ListedSizes, Size(block)) != 0;
    };
    return EndsWhenItHas(list, list.Setup.SampleSize) && std::ranges::all_of(list.Blocks, isListed);
}

bool RandomBlocks(const MadeList& list) {
    const int groups = list.Setup.GroupCount();
    const int share = list.Setup.SampleSize / groups + 1;
    const int least = std::max(1, share / 5) * groups;
    const int most = std::max(1, share / 3) * groups;
    const auto isInRange = [&](const Block& block) {
        return Size(block) % groups == 0 && Size(block) >= least && Size(block) <= most;
    };
    return EndsWhenItHas(list, list.Setup.SampleSize + 1) && std::ranges::all_of(list.Blocks, isInRange);
}

std::vector<std::string> Codes(const MadeList& list) {
    std::vector<std::string> codes;
    for (const Block& block : list.Blocks)
        for (const Subject& subject : block)
            codes.push_back(subject.Code);
    return codes;
}

bool UniqueCodes(const MadeList& list) {
    const std::vector<std::string> codes = Codes(list);
    return std::set<std::string>(codes.begin(), codes.end()).size() == codes.size();
}

bool WellFormedCodes(const MadeList& list) {
    const std::string characters = CharactersOf(list.Setup.Characters);
    const auto length = static_cast<std::size_t>(list.Setup.CodeLength);
    return std::ranges::all_of(Codes(list), [&](const std::string& code) {
        return code.size() == length && code.find_first_not_of(characters) == std::string::npos;
    });
}

/// Whether each code is the number of its subject, written with the characters as digits.
bool NumberedCodes(const MadeList& list) {
    const std::string digits = CharactersOf(list.Setup.Characters);
    std::uint64_t number = 0;
    for (const std::string& code : Codes(list)) {
        std::uint64_t value = 0;
        for (const char digit : code)
            value = value * digits.size() + digits.find(digit);
        if (value != ++number)
            return false;
    }
    return true;
}

/// The standard normal density at z, where a run is a maximal sequence of group numbers that are all below
/// the mean of the block, or all at or above it (Wald and Wolfowitz 1940, in the normal approximation).
double RunsTestValue(const Block& block) {
    int sum = 0;
    for (const Subject& subject : block)
        sum += subject.Group;
    double above = 0;
    double runs = 0;
    bool before = false;
    for (const Subject& subject : block) {
        const bool now = subject.Group * Size(block) >= sum;
        if (runs == 0 || now != before)
            ++runs;
        above += now ? 1 : 0;
        before = now;
    }
    const double count = Size(block);
    const double twice = 2 * above * (count - above);
    const double variance = twice * (twice - count) / (count * count * (count - 1));
    const double z = (runs - twice / count - 1) / std::sqrt(variance);
    return std::exp(-z * z / 2) / std::sqrt(2 * std::numbers::pi);
}

bool ValuesAboveTheLevel(const MadeList& list) {
    const double level = std::stod(list.Setup.Level);
    return std::ranges::all_of(list.Blocks, [&](const Block& block) { return RunsTestValue(block) > level; });
}

bool HasItsForm(const MadeList& list) {
    return list.Unreadable.empty();
}

bool WindowShowsTheList(const MadeList& list) {
    // In the names of the set-ups every byte is the character with its number.
    const QString shown = QString::fromLatin1(QByteArray::fromStdString(list.Bytes)).remove('\r');
    return HasItsForm(list) && list.Window && list.Window->Text == shown.toStdString();
}

bool PrivateTemporaryFile(const MadeList& list) {
    return list.Window && list.Window->HasOnePrivateFile;
}

template <BlockOption Option>
bool Has(const ListSetup& setup) {
    return setup.Blocks == Option;
}

template <Form Output>
bool Is(const ListSetup& setup) {
    return setup.Output == Output;
}

bool HasRest(const ListSetup& setup) {
    return setup.Blocks == BlockOption::One && setup.SampleSize % setup.GroupCount() != 0;
}

} // namespace

const std::vector<Rule>& Rules() {
    const auto always = [](const ListSetup&) { return true; };
    const auto isNumbered = [](const ListSetup& setup) { return !setup.RandomCodes; };
    const auto hasRunsTest = [](const ListSetup& setup) { return setup.RunsTest(); };
    const auto isEven = [](const ListSetup& setup) { return !HasRest(setup); };
    static const std::vector<Rule> rules = {
        {"ASG-1.1", "Every block holds each group equally often", isEven, EvenBlocks},
        {"ASG-2.1", "In other blocks the first groups have one more", HasRest, EvenBlocks},
        {"BLK-1.1", "One block of the sample size", Has<BlockOption::One>, OneBlock},
        {"BLK-2.1", "Number and size of equal blocks", Has<BlockOption::Equal>, EqualBlocks},
        {"BLK-3.1", "Blocks of listed sizes, and their end", Has<BlockOption::Listed>, ListedBlocks},
        {"BLK-4.1", "Blocks of random sizes, and their end", Has<BlockOption::RandomSizes>, RandomBlocks},
        {"COD-1.1", "No code occurs twice", always, UniqueCodes},
        {"COD-2.1", "Codes have the chosen length and characters", always, WellFormedCodes},
        {"COD-3.1", "Sequential codes number the subjects", isNumbered, NumberedCodes},
        {"RUN-2.1", "P values are above the level", hasRunsTest, ValuesAboveTheLevel},
        {"REP-1.1", "Every byte of text files", Is<Form::TextFile>, HasItsForm},
        {"REP-2.1", "Every byte of web pages", Is<Form::WebPage>, HasItsForm},
        {"REP-3.1", "The window, and every byte saved from it", Is<Form::Window>, WindowShowsTheList},
        {"REP-4.1", "Every byte on the clipboard", Is<Form::Clipboard>, HasItsForm},
        {"CON-4.1", "The temporary file is private and deleted", Is<Form::Window>, PrivateTemporaryFile},
    };
    return rules;
}

bool Breaks(const MadeList& list, const Rule& rule) {
    if (!rule.Applies(list.Setup))
        return false;
    const bool hasSubjects = !list.Blocks.empty() && std::ranges::none_of(list.Blocks, &Block::empty);
    return !list.NotMade.empty() || !hasSubjects || !rule.IsKept(list);
}

} // namespace orvane::validation
