#include "validation/lists/list.h"

#include "validation/draws/known_key.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <set>

namespace orvane::validation {
namespace {

using Block = std::vector<Subject>;

int Size(const Block& block) {
    return static_cast<int>(block.size());
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

/// Whether every block has an allowed size, and the list ends with the block that gives it enough subjects.
bool BlocksAsChosen(const MadeList& list) {
    const std::vector<int> allowed = AllowedSizes(list.Setup);
    int subjects = 0;
    for (const Block& block : list.Blocks) {
        if (subjects >= Enough(list.Setup) || std::ranges::count(allowed, Size(block)) == 0)
            return false;
        subjects += Size(block);
    }
    return subjects >= Enough(list.Setup);
}

std::vector<std::string> Codes(const MadeList& list) {
    std::vector<std::string> codes;
    for (const Block& block : list.Blocks)
        std::ranges::transform(block, std::back_inserter(codes), &Subject::Code);
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

bool ValuesAboveTheLevel(const MadeList& list) {
    const float level = std::stof(list.Setup.Level);
    return std::ranges::all_of(list.Blocks, [&](const Block& block) {
        std::vector<int> groups(block.size());
        std::ranges::transform(block, groups.begin(), &Subject::Group);
        return HeightOfNormalCurve(RunsTest(groups)) > level;
    });
}

bool HasItsForm(const MadeList& list) {
    return list.HasItsForm;
}

bool WindowShowsTheList(const MadeList& list) {
    // In the names of the set-ups every byte is the character with its number.
    const QString shown = QString::fromLatin1(QByteArray::fromStdString(list.Bytes)).remove('\r');
    return list.HasItsForm && list.WindowText == shown.toStdString();
}

bool PrivateTemporaryFile(const MadeList& list) {
    return list.HasOnePrivateFile;
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
        {"BLK-1.1", "One block of the sample size", Has<BlockOption::One>, BlocksAsChosen},
        {"BLK-2.1", "Number and size of equal blocks", Has<BlockOption::Equal>, BlocksAsChosen},
        {"BLK-3.1", "Blocks of listed sizes, and their end", Has<BlockOption::Listed>, BlocksAsChosen},
        {"BLK-4.1", "Blocks of random sizes, and their end", Has<BlockOption::RandomSizes>, BlocksAsChosen},
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
