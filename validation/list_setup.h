// The set-up of one list: everything that the user chooses before pressing "Generate Random List".
#pragma once

#include <string>
#include <vector>

namespace orvane::validation {

// The values are those of the settings file.
enum class BlockOption { One = 0, Equal = 1, Listed = 2, RandomSizes = 3 };
enum class Alphabet { Letters = 0, Digits = 1, Mixed = 2 };
enum class Form { TextFile, WebPage, Window, Clipboard };

/// How the set-up is entered into the program.
enum class Way { Typed, Clicked, Loaded };

struct ListSetup {
    int Number = 0; ///< of the list in the record, from 1
    Way Input = Way::Loaded;
    BlockOption Blocks = BlockOption::One;
    Alphabet Characters = Alphabet::Digits;
    bool RandomCodes = false;
    int CodeLength = 3;
    Form Output = Form::TextFile;
    int Columns = 6;
    bool Border = false;
    int Spacing = 1;
    std::string Level; ///< of the Runs test; empty when the test is off
    std::vector<std::string> Groups = {"Group 1", "Group 2"};
    int SampleSize = 0;
    int EqualSize = 0;            ///< of a block under BlockOption::Equal
    std::vector<int> ListedSizes; ///< that a block may have under BlockOption::Listed
    std::string ListedSizesText;  ///< as the user types them

    [[nodiscard]] int GroupCount() const { return static_cast<int>(Groups.size()); }
    [[nodiscard]] bool RunsTest() const { return !Level.empty(); }
};

/// The same set-up as a settings file, byte by byte.
std::string SettingsBytes(const ListSetup& setup);

/// The shortest code that the options window allows for a sample size.
int ShortestCode(int sampleSize);

/// The name of the list's file in the evidence, such as "list-01.txt".
std::string FileName(const ListSetup& setup);

// Texts for the record.
std::string Text(BlockOption option);
std::string Text(Form form);
std::string Text(Way way);
/// Alphabet, order and length.
std::string CodeText(const ListSetup& setup);

} // namespace orvane::validation
