#include "validation/list_judgements.h"

#include "validation/list_p_value.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>

namespace orvane::validation {

namespace {

std::string Number(std::size_t number) {
    return std::to_string(number);
}

/// The number of subjects of each group; index 0 is group 1.
std::vector<int> Counts(const std::vector<Subject>& block, const ListSetup& setup) {
    std::vector<int> counts(setup.Groups.size());
    for (const Subject& subject : block)
        ++counts.at(static_cast<std::size_t>(subject.Group) - 1);
    return counts;
}

std::string Text(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers)
        text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

int Size(const std::vector<Subject>& block) {
    return static_cast<int>(block.size());
}

int Subjects(const MadeList& list) {
    int subjects = 0;
    for (const auto& block : list.Blocks)
        subjects += Size(block);
    return subjects;
}

int SubjectsBeforeTheLastBlock(const MadeList& list) {
    return Subjects(list) - Size(list.Blocks.back());
}

/// One fault for each block of a wrong size.
template <typename Fits>
Faults SizeFaults(const MadeList& list, const Fits& fits) {
    Faults faults;
    for (std::size_t block = 0; block < list.Blocks.size(); ++block)
        if (!fits(Size(list.Blocks[block])))
            faults.push_back("block " + Number(block + 1) + " has " + Number(list.Blocks[block].size()) +
                             " subjects");
    return faults;
}

std::string Characters(Alphabet alphabet) {
    std::string digits = "0123456789";
    std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    switch (alphabet) {
    case Alphabet::Letters:
        return letters;
    case Alphabet::Digits:
        return digits;
    default:
        return digits + letters;
    }
}

/// The numeric value of a code. `digits` are its digits from zero on.
std::uint64_t Value(const std::string& code, const std::string& digits) {
    std::uint64_t value = 0;
    for (const char digit : code)
        value = value * digits.size() + digits.find(digit);
    return value;
}

/// P values that differ by less are equal apart from rounding.
constexpr double Rounding = 1e-6;

std::vector<double> Values(const MadeList& list) {
    std::vector<double> values;
    for (const auto& block : list.Blocks) {
        std::vector<int> groups;
        groups.reserve(block.size());
        for (const Subject& subject : block)
            groups.push_back(subject.Group);
        values.push_back(RunsTestValue(groups));
    }
    return values;
}

/// Whether `shown` is `value` with at most four decimals and no trailing zero.
bool Shows(const std::string& shown, double value) {
    constexpr std::size_t longest = 6; // "0." and four decimals
    const bool decimals = shown.size() > 2 && shown.size() <= longest && shown.starts_with("0.") &&
                          shown.find_first_not_of("0123456789", 2) == std::string::npos &&
                          shown.back() != '0';
    return (shown == "0" || decimals) && std::abs(std::stod(shown) - value) <= 0.00005 + Rounding;
}

/// The bytes of a file as UTF-8 text with LF line ends. Bytes are taken as Unicode code points, which is
/// correct for all letters in the names of the design.
std::string ShownText(const std::string& bytes) {
    std::string text;
    for (const char letter : bytes) {
        const auto code = static_cast<unsigned char>(letter);
        if (code >= 0x80U) {
            text += static_cast<char>(0xC0U | (code >> 6U));
            text += static_cast<char>(0x80U | (code & 0x3FU));
        } else if (letter != '\r') {
            text += letter;
        }
    }
    return text;
}

} // namespace

Faults EvenBlocks(const MadeList& list) {
    Faults faults;
    const int groups = list.Setup.GroupCount();
    for (std::size_t block = 0; block < list.Blocks.size(); ++block) {
        const std::vector<int> counts = Counts(list.Blocks[block], list.Setup);
        const bool even =
            std::all_of(counts.begin(), counts.end(), [&](int count) { return count == counts.front(); });
        if (Size(list.Blocks[block]) % groups == 0 && !even)
            faults.push_back("block " + Number(block + 1) + " has the groups " + Text(counts) + " times");
    }
    return faults;
}

Faults FirstGroupsHaveOneMore(const MadeList& list) {
    const int groups = list.Setup.GroupCount();
    std::vector<int> expected(list.Setup.Groups.size(), list.Setup.SampleSize / groups);
    for (std::size_t group = 0; group < static_cast<std::size_t>(list.Setup.SampleSize % groups); ++group)
        ++expected[group];
    const std::vector<int> counts = Counts(list.Blocks.front(), list.Setup);
    if (counts == expected)
        return {};
    return {"the block has the groups " + Text(counts) + " times instead of " + Text(expected)};
}

Faults OneBlockOfTheSample(const MadeList& list) {
    Faults faults = SizeFaults(list, [&](int size) { return size == list.Setup.SampleSize; });
    if (list.Blocks.size() != 1)
        faults.push_back(Number(list.Blocks.size()) + " blocks instead of one");
    return faults;
}

Faults EqualBlocks(const MadeList& list) {
    Faults faults = SizeFaults(list, [&](int size) { return size == list.Setup.EqualSize; });
    const int expected = list.Setup.SampleSize / list.Setup.EqualSize + 1;
    if (static_cast<int>(list.Blocks.size()) != expected)
        faults.push_back(Number(list.Blocks.size()) + " blocks instead of " + std::to_string(expected));
    return faults;
}

Faults BlocksOfListedSizes(const MadeList& list) {
    const auto& sizes = list.Setup.ListedSizes;
    Faults faults = SizeFaults(
        list, [&](int size) { return std::find(sizes.begin(), sizes.end(), size) != sizes.end(); });
    if (Subjects(list) < list.Setup.SampleSize)
        faults.push_back("only " + std::to_string(Subjects(list)) + " subjects");
    if (SubjectsBeforeTheLastBlock(list) >= list.Setup.SampleSize)
        faults.emplace_back("the sample size is reached before the last block");
    return faults;
}

Faults BlocksOfRandomSizes(const MadeList& list) {
    const int groups = list.Setup.GroupCount();
    const int share = list.Setup.SampleSize / groups + 1;
    const int least = std::max(1, share / 5) * groups;
    const int most = std::max(1, share / 3) * groups;
    Faults faults =
        SizeFaults(list, [&](int size) { return size % groups == 0 && size >= least && size <= most; });
    if (Subjects(list) <= list.Setup.SampleSize)
        faults.push_back("only " + std::to_string(Subjects(list)) + " subjects");
    if (SubjectsBeforeTheLastBlock(list) > list.Setup.SampleSize)
        faults.emplace_back("the sample size is exceeded before the last block");
    return faults;
}

Faults WholeBlocks(const MadeList& list) {
    const ListSetup& setup = list.Setup;
    return SizeFaults(list, [&](int size) {
        return size > 0 && (size % setup.GroupCount() == 0 ||
                            (setup.Blocks == BlockOption::One && size == setup.SampleSize));
    });
}

Faults UniqueCodes(const MadeList& list) {
    Faults faults;
    std::set<std::string> codes;
    for (const auto& block : list.Blocks)
        for (const Subject& subject : block)
            if (!codes.insert(subject.Code).second)
                faults.push_back("the code " + subject.Code + " occurs twice");
    return faults;
}

Faults WellFormedCodes(const MadeList& list) {
    Faults faults;
    const std::string characters = Characters(list.Setup.Characters);
    for (const auto& block : list.Blocks)
        for (const Subject& subject : block)
            if (subject.Code.find_first_not_of(characters) != std::string::npos ||
                static_cast<int>(subject.Code.size()) != list.Setup.CodeLength)
                faults.push_back("the code " + subject.Code);
    return faults;
}

Faults NumberedCodes(const MadeList& list) {
    const std::string characters = Characters(list.Setup.Characters);
    std::uint64_t number = 0;
    for (const auto& block : list.Blocks)
        for (const Subject& subject : block)
            if (Value(subject.Code, characters) != ++number)
                return {"subject " + Number(number) + " has the code " + subject.Code};
    return {};
}

Faults ValuesAboveTheLevel(const MadeList& list) {
    Faults faults;
    const double level = std::stod(list.Setup.Level);
    const std::vector<double> values = Values(list);
    for (std::size_t block = 0; block < values.size(); ++block)
        if (!(values[block] > level))
            faults.push_back("block " + Number(block + 1) + " has the P value " +
                             std::to_string(values[block]));
    return faults;
}

Faults ToldValues(const MadeList& list) {
    const std::vector<double> values = Values(list);
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const std::string one = "P value of Runs test = ";
    const std::string minimum = "Runs test:\nMinimum P value = ";
    const std::string maximum = "\nMaximum P value = ";
    const std::string& told = list.RunsMessage;
    const std::size_t second = told.find(maximum);
    const bool alike = *most - *least < Rounding;
    if (alike ? told.starts_with(one) && Shows(told.substr(one.size()), *least)
              : told.starts_with(minimum) && second != std::string::npos &&
                    Shows(told.substr(minimum.size(), second - minimum.size()), *least) &&
                    Shows(told.substr(second + maximum.size()), *most))
        return {};
    return {"the message is \"" + told + "\", the P values are " + ValuesText(list)};
}

std::string ValuesText(const MadeList& list) {
    const std::vector<double> values = Values(list);
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return std::to_string(*least) + " to " + std::to_string(*most);
}

Faults Layout(const MadeList& list) {
    return list.Unreadable.empty() ? Faults{} : Faults{list.Unreadable};
}

Faults WindowShowsTheList(const MadeList& list) {
    Faults faults = Layout(list);
    if (!list.Window || list.Window->Text != ShownText(list.Bytes))
        faults.emplace_back("the text in the window differs from the saved file");
    return faults;
}

Faults DownColumns(const MadeList& list) {
    Faults faults;
    for (std::size_t block = 0; block < list.Tables.size(); ++block)
        if (const std::string fault = BlankFault(list.Tables[block]); !fault.empty())
            faults.push_back("block " + Number(block + 1) + ": " + fault);
    // Without numbers in the codes nothing tells their order.
    if (faults.empty() && !list.Setup.RandomCodes)
        return NumberedCodes(list);
    return faults;
}

Faults PrivateTemporaryFile(const MadeList& list) {
    if (!list.Window)
        return {"the output window was not seen"};
    Faults faults;
    if (list.Window->TemporaryFiles != std::vector<std::string>{"rw-------"})
        faults.push_back(Number(list.Window->TemporaryFiles.size()) +
                         " temporary files instead of one that only its owner can read");
    for (const std::string& file : list.Window->LeftBehind)
        faults.push_back(file + " was not deleted");
    return faults;
}

Faults OpenedInViewer(const MadeList& list) {
    const std::vector<std::string> expected = {list.Setup.Output == Form::WebPage ? "browser" : "reader",
                                               list.File};
    if (list.Viewer == expected)
        return {};
    std::string started;
    for (const std::string& word : list.Viewer)
        started += (started.empty() ? "" : " ") + word;
    return {started.empty() ? "no program was started" : "started was " + started};
}

} // namespace orvane::validation
