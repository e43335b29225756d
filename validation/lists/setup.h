// The set-up of one list: everything that the user chooses before the list is made.
#pragma once

#include "tools/driving/settings_text.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace orvane::validation {

// The values are those of the settings file.
enum class BlockOption { One = 0, Equal = 1, Listed = 2, RandomSizes = 3 };
enum class Alphabet { Letters = 0, Digits = 1, Mixed = 2 };
enum class Form { TextFile, WebPage, Window, Clipboard };

/// How the set-up is entered: read by the program at its start, typed into the windows, or loaded from a
/// settings file.
enum class Way { Started, Typed, Loaded };

struct ListSetup {
    int Number = 0; ///< of the list in the record, from 1
    Way Input = Way::Started;
    BlockOption Blocks = BlockOption::One;
    Alphabet Characters = Alphabet::Digits;
    bool RandomCodes = false;
    int CodeLength = 3;
    Form Output = Form::TextFile;
    int Columns = 6;
    bool Border = false;
    int Spacing = 1;
    std::string Level{}; ///< of the Runs test; empty when the test is off
    std::vector<std::string> Groups = {"Group 1", "Group 2"};
    int SampleSize = 0;
    int EqualSize = 0;              ///< of a block under BlockOption::Equal
    std::vector<int> ListedSizes{}; ///< that a block may have under BlockOption::Listed
    std::string ListedSizesText{};  ///< as the user types them

    [[nodiscard]] int GroupCount() const { return static_cast<int>(Groups.size()); }
    [[nodiscard]] bool RunsTest() const { return !Level.empty(); }
};

/// A file with one line a set-up and cells divided by commas, below a line that names the columns. Equal
/// blocks hold each group twice; listed ones hold it two, three or four times.
struct SetupTable {
    std::vector<std::string> Columns;
    std::vector<std::vector<std::string>> Lines;

    /// The different cells of a column.
    [[nodiscard]] std::set<std::string> Choices(std::size_t column) const;
};

/// Throws std::runtime_error for a line with a wrong number of cells.
SetupTable ReadTable(const std::filesystem::path& file);

/// The set-ups of a table, numbered from 1. Throws std::runtime_error that names a cell that it does not
/// know.
std::vector<ListSetup> SetupsOf(const SetupTable& table);

/// The part of a set-up that a settings file holds.
driving::SettingsText SettingsOf(const ListSetup& setup);

/// The shortest code that the options window allows for a sample size.
int ShortestCode(int sampleSize);

/// The characters of an alphabet in the order of their values.
std::string CharactersOf(Alphabet alphabet);

/// The form as the table names it.
std::string Text(Form form);

/// The name of the list's file in the evidence, such as "list-01.txt".
std::string FileName(const ListSetup& setup);

} // namespace orvane::validation
