#include "validation/statistics_program.h"

#include "engine/random_draws.h"
#include "engine/subject_codes.h"

#include <stdexcept>

namespace orvane::validation {

Texts GroupLetters(int groups) {
    Texts letters;
    for (int group = 0; group < groups; ++group)
        letters.emplace_back(1, static_cast<char>('A' + group));
    return letters;
}

DeliveredProgram::DeliveredProgram(Entropy& entropy, TimeOfDay& clock)
    : clock_(clock), source_(entropy),
      list_(source_, GroupLetters(2)), desktop_{list_.Desktop.Messages,
                                                list_.Desktop.Pointer,
                                                list_.Desktop.FileSystem,
                                                list_.Desktop.Page,
                                                clock_,
                                                source_,
                                                list_.Desktop.Shell,
                                                list_.Desktop.Board,
                                                list_.Desktop.Keys,
                                                list_.Desktop.All.ProgramDirectory,
                                                list_.Desktop.All.Separator} {
    list_.Settings.Columns = 1;
}

std::int16_t DeliveredProgram::Draw(std::int16_t Lo, std::int16_t Hi) {
    return DrawRandomInt(source_, Lo, Hi);
}

Arrangement DeliveredProgram::Block(int size, int groups, float level) {
    if (list_.Settings.NumberOfGroups != groups) {
        list_.Settings.NumberOfGroups = static_cast<std::int16_t>(groups);
        list_.Names.Name(GroupLetters(groups));
    }
    list_.Settings.PerformRuns = level > 0;
    list_.Settings.SigLevel = level;
    const auto positions = static_cast<std::size_t>(size);
    list_.Results.CodeArr.resize(positions, "code");
    Texts groupsOfCells(positions);
    Texts codesOfCells(positions);
    SequenceBuilder builder(list_.Settings, list_.Results, list_.Names, desktop_);
    builder.BuildSequenceArr(groupsOfCells, codesOfCells, 0);
    Arrangement arrangement;
    for (const std::string& letter : groupsOfCells)
        arrangement += letter;
    return arrangement;
}

std::vector<std::int16_t> DeliveredProgram::BlockSizes(const ListSettings& settings) {
    ListSettings accepted = settings;
    accepted.CodeLength = LongestCode;
    ListResults results;
    const MemoryNames names(GroupLetters(settings.NumberOfGroups));
    FilledInOptions window;
    OptionValidation options(accepted, results, names, window, desktop_);
    if (options.NotValidInputs())
        throw std::runtime_error("the options were refused: " + list_.Desktop.Messages.Take());
    return {results.BlockSizes.begin() + 1, results.BlockSizes.end()};
}

std::vector<std::string> DeliveredProgram::Codes(std::int32_t alphabet, std::int16_t length,
                                                 std::int16_t count) {
    ListSettings settings;
    settings.CodeSeqRandom = Random;
    settings.CodeAlphaNum = alphabet;
    settings.CodeLength = length;
    ListResults results;
    results.BlockSizes = {0, count};
    CreateCodeArr(settings, results, source_, clock_);
    return results.CodeArr;
}

} // namespace orvane::validation
