#include "validation/lists/setup.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace orvane::validation {

namespace {

using Cells = std::vector<std::string>;

const Cells Ways = {"started", "typed", "loaded"};
const Cells BlockOptions = {"one block", "equal blocks", "listed sizes", "random sizes"};
const Cells Codes = {"sequential letters", "random letters",   "sequential digits",
                     "random digits",      "sequential mixed", "random mixed"};
const Cells Forms = {"text file", "web page", "window", "clipboard"};

/// The place of a text among others. Throws for any other text.
int PlaceIn(const Cells& texts, const std::string& text) {
    const auto found = std::ranges::find(texts, text);
    if (found == texts.end())
        throw std::runtime_error("no choice: \"" + text + "\"");
    return static_cast<int>(found - texts.begin());
}

Cells GroupNames(int count, bool areLong) {
    Cells names;
    for (int group = 1; group <= count; ++group) {
        const std::string number = std::to_string(group);
        // The byte E9 is a letter of the 8-bit code page; "<" and "&" are special characters in HTML.
        names.push_back(areLong ? "Th\xE9rapie no " + number +
                                      (group % 2 == 0 ? " & placebo" : " <10 mg, at night>")
                                : std::string("Arm ") + static_cast<char>('A' + group - 1));
    }
    return names;
}

ListSetup SetupOf(std::map<std::string, std::string> cells) {
    ListSetup setup;
    setup.Input = static_cast<Way>(PlaceIn(Ways, cells["input"]));
    setup.Blocks = static_cast<BlockOption>(PlaceIn(BlockOptions, cells["blocks"]));
    setup.SampleSize = std::stoi(cells["sample size"]);
    setup.Groups = GroupNames(std::stoi(cells["groups"]), cells["names"] == "long");
    setup.RandomCodes = PlaceIn(Codes, cells["codes"]) % 2 == 1;
    setup.Characters = static_cast<Alphabet>(PlaceIn(Codes, cells["codes"]) / 2);
    setup.CodeLength =
        cells["length"] == "shortest" ? ShortestCode(setup.SampleSize) : std::stoi(cells["length"]);
    setup.Output = static_cast<Form>(PlaceIn(Forms, cells["form"]));
    setup.Columns = std::stoi(cells["columns"]);
    setup.Border = cells["page"].starts_with("border");
    setup.Spacing = cells["page"].back() - '0';
    setup.Level = cells["runs test"] == "off" ? "" : cells["runs test"];
    const int groups = setup.GroupCount();
    if (setup.Blocks == BlockOption::Equal)
        setup.EqualSize = 2 * groups;
    if (setup.Blocks == BlockOption::Listed) {
        setup.ListedSizes = {2 * groups, 3 * groups, 4 * groups};
        const QString text = "%1, %2-%2,0%3"; // in all the ways that a user may type them
        setup.ListedSizesText = text.arg(2 * groups).arg(3 * groups).arg(4 * groups).toStdString();
    }
    return setup;
}

} // namespace

std::set<std::string> SetupTable::Choices(std::size_t column) const {
    std::set<std::string> choices;
    for (const Cells& line : Lines)
        choices.insert(line[column]);
    return choices;
}

SetupTable ReadTable(const std::filesystem::path& file) {
    SetupTable table;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        Cells cells;
        std::istringstream words(line);
        for (std::string cell; std::getline(words, cell, ',');)
            cells.push_back(cell);
        if (table.Columns.empty())
            table.Columns = cells;
        else if (cells.size() == table.Columns.size())
            table.Lines.push_back(cells);
        else
            throw std::runtime_error(file.string() + ": a line with a wrong number of cells: " + line);
    }
    return table;
}

std::vector<ListSetup> SetupsOf(const SetupTable& table) {
    std::vector<ListSetup> setups;
    for (const Cells& line : table.Lines) {
        std::map<std::string, std::string> cells;
        for (std::size_t column = 0; column < line.size(); ++column)
            cells[table.Columns[column]] = line[column];
        setups.push_back(SetupOf(cells));
        setups.back().Number = static_cast<int>(setups.size());
    }
    return setups;
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

int ShortestCode(int sampleSize) {
    return static_cast<int>(std::lround(std::log10(sampleSize))) + 1;
}

std::string CharactersOf(Alphabet alphabet) {
    constexpr const char* characters[] = {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", "0123456789",
                                          "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"};
    return characters[static_cast<int>(alphabet)];
}

std::string Text(Form form) {
    return Forms.at(static_cast<std::size_t>(form));
}

std::string FileName(const ListSetup& setup) {
    const QString name = QString("list-%1").arg(setup.Number, 2, 10, QChar('0'));
    return name.toStdString() + (setup.Output == Form::WebPage ? ".htm" : ".txt");
}

} // namespace orvane::validation
