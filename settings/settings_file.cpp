#include "settings/settings_file.h"

#include "engine/numbers.h"
#include "platform/failure_report.h"
#include "platform/text.h"

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

std::string Line(const std::string& text) {
    return text + std::string(LineEnd);
}

std::string Lines(const char* label, const std::string& value) {
    return Line(label) + Line(value);
}

std::string Lines(const char* label, std::int32_t value) {
    return Lines(label, std::to_string(value));
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

void SettingsFile::SaveSettings(const std::string& FileNameStr, bool Announce) {
    WithFailurePath(desktop_.Messages, [&] {
        Write(FileNameStr, Compose(Unmappable::Fail));
        if (Announce)
            desktop_.Messages.Show("Settings were saved successfully!");
    });
}

void SettingsFile::ReplaceSettings(const std::string& FileNameStr) {
    WithFailurePath(desktop_.Messages, [&] {
        const std::string bytes = Compose(Unmappable::QuestionMark);
        DeleteIfPossible(FileNameStr);
        Write(FileNameStr, bytes);
        TellReplaced();
    });
}

std::vector<std::string> SettingsFile::TypedTexts() const {
    std::vector<std::string> texts{list_.prEqBlockSize, list_.prUnEqBlockSize};
    for (std::int16_t g = 1; g <= list_.NumberOfGroups; ++g)
        texts.push_back(groupNames_.TextMatrix(g, 1));
    return texts;
}

std::string SettingsFile::TypedBytes(std::string text, Unmappable unmappable) const {
    if (unmappable == Unmappable::Fail && text.find(CarriageReturn) != std::string::npos)
        throw Failure("A line end cannot be saved within a line of a settings file",
                      failure_number::UnmappableCharacter, "SaveSettings");
    std::replace(text.begin(), text.end(), CarriageReturn, '?');
    return desktop_.Page.Encode(text, unmappable);
}

std::string SettingsFile::Compose(Unmappable unmappable) const {
    std::vector<std::string> typed = TypedTexts();
    for (std::string& text : typed)
        text = TypedBytes(std::move(text), unmappable);
    std::string bytes = Lines(label::NumberOfGroups, list_.NumberOfGroups) + Line(label::Groups);
    for (auto name = typed.begin() + 2; name != typed.end(); ++name)
        bytes += Line(*name);
    bytes += Lines(label::SampleSize, list_.SampleSize);
    bytes += Lines(label::CodeAlphaNum, list_.CodeAlphaNum);
    bytes += Lines(label::CodeSeqRandom, list_.CodeSeqRandom);
    bytes += Lines(label::CodeLength, list_.CodeLength);
    bytes += Lines(label::BlockOption, list_.prBlockOption);
    bytes += Lines(label::EqBlockSize, typed[0]);
    bytes += Lines(label::UnEqBlockSize, typed[1]);
    bytes += Lines(label::OutputOption, list_.OutputOption);
    if (bytes.size() > LargestFile)
        throw Failure("The settings would fill " + std::to_string(bytes.size()) +
                          " bytes, which is more than the " + std::to_string(LargestFile) +
                          " that can be read again, and were not saved: please shorten the names of the "
                          "groups or the block sizes",
                      failure_number::TooLarge, "SaveSettings");
    return bytes;
}

void SettingsFile::Write(const std::string& FileNameStr, const std::string& bytes) {
    const std::unique_ptr<WritableFile> file = desktop_.FileSystem.OpenForOutput(FileNameStr);
    groupNames_.SetCol(1);
    groupNames_.SetRow(list_.NumberOfGroups);
    file->Write(bytes);
    file->Close();
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

void SettingsFile::DeleteIfPossible(const std::string& FileNameStr) {
    try {
        desktop_.FileSystem.Delete(FileNameStr);
    } catch (const Failure&) {
        // The file may not exist. Any other cause prevents the writing too, which then reports it.
    }
}

void SettingsFile::SetSettings(const std::string& FileNameStr, bool Announce) {
    if (FileNameStr.empty())
        return;
    WithFailurePath(desktop_.Messages, [&] {
        ReadValues(FileNameStr);
        list_.SigLevel = DefaultSigLevel;
        if (Announce)
            desktop_.Messages.Show("Settings were loaded successfully!");
    });
}

void SettingsFile::ReadValues(const std::string& FileNameStr) {
    TextFileReader file(*desktop_.FileSystem.OpenForInput(FileNameStr), desktop_.Page, FileNameStr,
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
    controls_.mnuOutput_Click(Read16(file));
}

} // namespace orvane
