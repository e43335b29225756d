// The set-up of one list: everything that the user chooses before the list is made.
#pragma once

#include "tools/driving/settings_text.h"

#include <QString>

#include <map>
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

/// The cells of one line of a table, by the names of their columns.
using Choices = std::map<QString, QString>;

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
    validation::Choices Choices{};  ///< its line in the table

    [[nodiscard]] int GroupCount() const { return static_cast<int>(Groups.size()); }
    [[nodiscard]] bool RunsTest() const { return !Level.empty(); }
};

/// The lines of a file, below one that names the columns. Throws std::runtime_error that names a line with a
/// wrong number of cells.
std::vector<Choices> ReadTable(const char* name, QChar separator);

/// The option that a table names so. Throws std::runtime_error for any other text.
BlockOption BlockOptionOf(const QString& cell);

/// The set-ups of a table with commas, numbered from 1. "equal blocks x2" hold each group twice; listed ones
/// hold it two, three or four times. Throws std::runtime_error that names what is wrong.
std::vector<ListSetup> ReadSetups(const char* name);

/// The part of a set-up that a settings file holds.
driving::SettingsText SettingsOf(const ListSetup& setup);

/// The sizes that a block may have, in ascending order.
std::vector<int> AllowedSizes(const ListSetup& setup);

/// The number of subjects at which a list ends: one more than the sample size if blocks have equal or random
/// sizes.
int Enough(const ListSetup& setup);

/// The shortest code that the options window allows for a sample size.
int ShortestCode(int sampleSize);

/// The characters of an alphabet in the order of their values.
std::string CharactersOf(Alphabet alphabet);

/// The form as the table names it.
std::string Text(Form form);

} // namespace orvane::validation
