#include "validation/lists/setup.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace orvane::validation {
namespace {

const QStringList Ways = {"started", "typed", "loaded"};
const QStringList BlockOptions = {"one block", "equal blocks", "listed sizes", "random sizes"};
const QStringList Alphabets = {"letters", "digits", "mixed"};
const QStringList Forms = {"text file", "web page", "window", "clipboard"};

/// The place of a cell among the choices of its column. Throws for any other text.
template <typename Choice>
Choice ChoiceOf(const QStringList& choices, const QString& cell) {
    if (!choices.contains(cell))
        throw std::runtime_error("a set-up has the unknown choice " + cell.toStdString());
    return static_cast<Choice>(choices.indexOf(cell));
}

std::string GroupName(int group, bool isLong) {
    if (!isLong)
        return std::string("Arm ") + static_cast<char>('A' + group - 1);
    // The byte E9 is a letter of the 8-bit code page; "<" and "&" are special characters in HTML.
    return "Th\xE9rapie no " + std::to_string(group) + (group % 2 == 0 ? " & placebo" : " <10 mg, at night>");
}

ListSetup SetupOf(const Choices& cells) {
    const QStringList codes = cells.at("codes").split(' ');
    const QStringList blocks = cells.at("blocks").split(" x");
    ListSetup setup;
    setup.Input = ChoiceOf<Way>(Ways, cells.at("input"));
    setup.Blocks = BlockOptionOf(blocks.first());
    setup.RandomCodes = codes.first() == "random";
    setup.Characters = ChoiceOf<Alphabet>(Alphabets, codes.last());
    setup.Output = ChoiceOf<Form>(Forms, cells.at("form"));
    setup.Columns = cells.at("columns").toInt();
    setup.Border = cells.at("page").startsWith("border");
    setup.Spacing = cells.at("page").right(1).toInt();
    setup.Level = cells.at("runs test") == "off" ? "" : cells.at("runs test").toStdString();
    setup.SampleSize = cells.at("sample size").toInt();
    const bool isShortest = cells.at("length") == "shortest";
    setup.CodeLength = isShortest ? ShortestCode(setup.SampleSize) : cells.at("length").toInt();
    const int groups = cells.at("groups").toInt();
    setup.Groups.clear();
    for (int group = 1; group <= groups; ++group)
        setup.Groups.push_back(GroupName(group, cells.at("names") == "long"));
    if (setup.Blocks == BlockOption::Equal)
        setup.EqualSize = blocks.last().toInt() * groups;
    if (setup.Blocks == BlockOption::Listed) {
        setup.ListedSizes = {2 * groups, 3 * groups, 4 * groups};
        const QString text = "%1, %2-%2,0%3"; // in all the ways that a user may type them
        setup.ListedSizesText = text.arg(2 * groups).arg(3 * groups).arg(4 * groups).toStdString();
    }
    return setup;
}

} // namespace

std::vector<Choices> ReadTable(const char* name, QChar separator) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(std::string(name) + " cannot be read");
    QStringList lines = QString::fromLatin1(file.readAll()).split('\n', Qt::SkipEmptyParts);
    const QStringList columns = lines.takeFirst().split(separator);
    std::vector<Choices> table;
    for (const QString& line : lines) {
        const QStringList cells = line.split(separator);
        if (cells.size() != columns.size())
            throw std::runtime_error("a wrong number of cells in the line " + line.toStdString());
        Choices& choices = table.emplace_back();
        for (qsizetype column = 0; column < columns.size(); ++column)
            choices[columns[column]] = cells[column];
    }
    return table;
}

std::vector<ListSetup> ReadSetups(const char* name) {
    std::vector<ListSetup> setups;
    for (const Choices& choices : ReadTable(name, ',')) {
        setups.push_back(SetupOf(choices));
        setups.back().Number = static_cast<int>(setups.size());
        setups.back().Choices = choices;
    }
    return setups;
}

BlockOption BlockOptionOf(const QString& cell) {
    return ChoiceOf<BlockOption>(BlockOptions, cell);
}

driving::SettingsText SettingsOf(const ListSetup& setup) {
    return {.Groups = setup.Groups,
            .SampleSize = std::to_string(setup.SampleSize),
            .CodeAlphaNum = static_cast<int>(setup.Characters),
            .CodeSeqRandom = setup.RandomCodes ? 1 : 0,
            .CodeLength = setup.CodeLength,
            .BlockOption = static_cast<int>(setup.Blocks),
            .EqBlockSize = setup.EqualSize == 0 ? "" : std::to_string(setup.EqualSize),
            .UnEqBlockSize = setup.ListedSizesText,
            .OutputOption = std::max(0, static_cast<int>(setup.Output) - 1)}; // a form of file is no option
}

std::vector<int> AllowedSizes(const ListSetup& setup) {
    if (setup.Blocks == BlockOption::One)
        return {setup.SampleSize};
    if (setup.Blocks == BlockOption::Equal)
        return {setup.EqualSize};
    if (setup.Blocks == BlockOption::Listed)
        return setup.ListedSizes;
    std::vector<int> sizes;
    const int share = setup.SampleSize / setup.GroupCount() + 1;
    for (int deals = std::max(1, share / 5); deals <= std::max(1, share / 3); ++deals)
        sizes.push_back(deals * setup.GroupCount());
    return sizes;
}

int Enough(const ListSetup& setup) {
    const bool exceeds = setup.Blocks == BlockOption::Equal || setup.Blocks == BlockOption::RandomSizes;
    return setup.SampleSize + (exceeds ? 1 : 0);
}

int ShortestCode(int sampleSize) {
    return static_cast<int>(std::lround(std::log10(sampleSize))) + 1;
}

std::string CharactersOf(Alphabet alphabet) {
    constexpr const char* characters[] = {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", "0123456789",
                                          "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"};
    return characters[static_cast<int>(alphabet)];
}

std::string Text(Form form) {
    return Forms.at(static_cast<qsizetype>(form)).toStdString();
}

} // namespace orvane::validation
