#include "settings/settings_file.h"

#include "engine/numbers.h"
#include "output/glb_util.h"
#include "platform/failure.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr float DefaultSigLevel = 0.05F;
constexpr char CarriageReturn = '\r';

namespace label {
constexpr const char* NumberOfGroups = "[Number of groups (2 - 16]";
constexpr const char* Groups = "[Groups: Name of each group on a separate line]";
constexpr const char* SampleSize = "[Sample Size]";
constexpr const char* CodeAlphaNum = "[Code AlphaNum: 0-Alpha, 1-Numeric, 2-Mixed]";
constexpr const char* CodeSeqRandom = "[Code SeqRandum: 0-Sequential, 1-Random]";
constexpr const char* CodeLength = "[Code Length: (3-10)]";
constexpr const char* BlockOption =
    "[Block Option: 0-OnlyOneBlock, 1-EqualSize, 2-RandomSizesOf, 3-RandomBlockSize]";
constexpr const char* EqBlockSize = "[Equal Block Size: Enter size]";
constexpr const char* UnEqBlockSize = "[UnEqual Block Sizes: Enter sizes(comma delimmited and/or range]";
constexpr const char* OutputOption = "[Output Option]";
} // namespace label

void WriteNumber(TextFileWriter& file, const char* label, std::int32_t number) {
    file.WriteLine(label);
    file.WriteLine(std::to_string(number));
}

/// Skips the label and returns the value.
std::string ReadValue(TextFileReader& file) {
    file.ReadLine();
    return file.ReadLine();
}

std::int16_t Read16(TextFileReader& file) {
    return ToInt16(NumericValue(ReadValue(file)));
}

std::int32_t Read32(TextFileReader& file) {
    return ToInt32(NumericValue(ReadValue(file)));
}

} // namespace

void SettingsFile::SaveSettings(const std::string& FileNameStr, bool Announce, Unmappable unmappable) {
    WithFailurePath(desktop_.Messages, false, [&] {
        if (unmappable == Unmappable::Fail)
            RequireWritableTexts();
        RequireReadableSize();
        TextFileWriter file(desktop_.FileSystem.OpenForOutput(FileNameStr), desktop_.Page, unmappable);
        WriteValues(file);
        file.Close();
        TellReplaced();
        if (Announce)
            desktop_.Messages.Show("Settings were saved successfully!");
    });
}

std::vector<std::string> SettingsFile::TypedTexts() const {
    std::vector<std::string> texts{list_.prEqBlockSize, list_.prUnEqBlockSize};
    for (std::int16_t g = 1; g <= list_.NumberOfGroups; ++g)
        texts.push_back(groupNames_.TextMatrix(g, 1));
    return texts;
}

void SettingsFile::RequireWritableTexts() const {
    for (const std::string& text : TypedTexts()) {
        if (text.find(CarriageReturn) != std::string::npos)
            throw Failure("A line end cannot be saved within a line of a settings file",
                          failure_number::UnmappableCharacter, "SaveSettings");
        static_cast<void>(desktop_.Page.Encode(text, Unmappable::Fail));
    }
}

void SettingsFile::RequireReadableSize() const {
    constexpr std::size_t forAllElse = 1024; // labels, numbers and line ends
    std::size_t size = forAllElse;
    for (const std::string& text : TypedTexts())
        size += desktop_.Page.Encode(text, Unmappable::QuestionMark).size();
    if (size > LargestFile)
        throw Failure("The names of the groups and the block sizes have more than " +
                          std::to_string(LargestFile - forAllElse) +
                          " characters together and were not saved, please shorten them",
                      failure_number::TooLarge, "SaveSettings");
}

void SettingsFile::TellReplaced() const {
    std::string all;
    for (const std::string& text : TypedTexts())
        all += text;
    std::vector<std::string> replaced = desktop_.Page.CharactersNotHeld(all);
    if (all.find(CarriageReturn) != std::string::npos)
        replaced.emplace_back("a line end");
    std::string named;
    for (const std::string& character : replaced)
        named += (named.empty() ? "" : ", ") + character;
    if (!named.empty())
        throw Failure("Characters that a settings file in the code page " + desktop_.Page.Name() +
                          " cannot hold were saved as \"?\": " + named,
                      failure_number::UnmappableCharacter, "SaveSettings");
}

void SettingsFile::WriteValues(TextFileWriter& file) {
    // A carriage return would end the line early, and all later values would be on the wrong lines.
    const auto writeText = [&file](std::string text) {
        std::replace(text.begin(), text.end(), CarriageReturn, '?');
        file.WriteLine(text);
    };
    WriteNumber(file, label::NumberOfGroups, list_.NumberOfGroups);
    file.WriteLine(label::Groups);
    groupNames_.SetCol(1);
    for (std::int16_t g = 1; g <= list_.NumberOfGroups; ++g) {
        groupNames_.SetRow(g);
        writeText(groupNames_.Text());
    }
    WriteNumber(file, label::SampleSize, list_.SampleSize);
    WriteNumber(file, label::CodeAlphaNum, list_.CodeAlphaNum);
    WriteNumber(file, label::CodeSeqRandom, list_.CodeSeqRandom);
    WriteNumber(file, label::CodeLength, list_.CodeLength);
    WriteNumber(file, label::BlockOption, list_.prBlockOption);
    file.WriteLine(label::EqBlockSize);
    writeText(list_.prEqBlockSize);
    file.WriteLine(label::UnEqBlockSize);
    writeText(list_.prUnEqBlockSize);
    WriteNumber(file, label::OutputOption, list_.OutputOption);
}

void SettingsFile::SetSettings(const std::string& FileNameStr, bool Announce) {
    if (FileNameStr.empty())
        return;
    WithFailurePath(desktop_.Messages, false, [&] {
        ReadValues(FileNameStr);
        list_.SigLevel = DefaultSigLevel;
        if (Announce)
            desktop_.Messages.Show("Settings were loaded successfully!");
    });
}

void SettingsFile::ReadValues(const std::string& FileNameStr) {
    TextFileReader file(desktop_.FileSystem.OpenForInput(FileNameStr), desktop_.Page, FileNameStr,
                        {false, LargestFile, LargestFile});
    controls_.SetNogHsb(Read16(file));
    file.ReadLine();
    groupNames_.SetCol(1);
    for (std::int16_t g = 1; g <= list_.NumberOfGroups; ++g) {
        groupNames_.SetRow(g);
        groupNames_.SetText(file.ReadLine());
    }
    controls_.SetSampSizeTxt(ReadValue(file));
    list_.CodeAlphaNum = Read32(file);
    list_.CodeSeqRandom = Read32(file);
    list_.CodeLength = Read16(file);
    list_.prBlockOption = Read32(file);
    list_.prEqBlockSize = ReadValue(file);
    list_.prUnEqBlockSize = ReadValue(file);
    mnuOutput_Click(Read16(file), menu_, list_);
}

} // namespace orvane
