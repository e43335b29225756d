// Subject codes: sequential codes by position, random codes that use every possible code, lengths that are
// too short.
#include "engine/subject_codes.h"
#include "validation/known_answers_options.h"
#include "validation/known_answers_parts.h"
#include "validation/statistics_program.h"

#include <algorithm>
#include <array>
#include <set>

namespace orvane::validation {
namespace {

void CompareSequentialCodes(Evidence& evidence) {
    const struct {
        const char* Kind;
        CodeAlphabets Alphabet;
        std::int16_t Length;
        std::vector<std::pair<std::size_t, std::string>> Codes; ///< by position
    } rows[] = {
        {"Numeric", Numeric, 3, {{1, "001"}, {7, "007"}, {12, "012"}, {123, "123"}, {999, "999"}}},
        {"Numeric", Numeric, 10, {{999, "0000000999"}}},
        {"Alphabetic", Alpha, 3, {{1, "AAB"}, {25, "AAZ"}, {26, "ABA"}, {27, "ABB"}, {702, "BBA"}}},
        {"Mixed", Mixed, 3, {{1, "001"}, {9, "009"}, {10, "00A"}, {35, "00Z"}, {36, "010"}, {999, "0RR"}}},
        {"Mixed", Mixed, 4, {{36, "0010"}}},
    };
    for (const auto& row : rows) {
        ListSettings settings = ValidSettings(2, 999);
        settings.CodeAlphaNum = row.Alphabet;
        settings.CodeLength = row.Length;
        ListResults results;
        results.BlockSizes = {0, 500, 499};
        ListedValues source;
        StoppedClock clock;
        CreateCodeArr(settings, results, source, clock);
        for (const auto& [position, code] : row.Codes)
            evidence.Compare(std::string(row.Kind) + " code of length " + std::to_string(row.Length) +
                                 ", subject " + std::to_string(position),
                             code, results.CodeArr.at(position - 1), ByHand);
    }
}

/// Lists that need every possible code.
void CompareFullAlphabets(Evidence& evidence) {
    const struct {
        CodeAlphabets Alphabet;
        const char* Kind;
        std::int16_t Length;
        std::int16_t Codes;
        const char* Characters;
    } rows[] = {{Alpha, "alphabetic", 2, 676, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
                {Numeric, "numeric", 2, 100, "0123456789"},
                {Mixed, "mixed", 2, 1296, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"}};
    KnownEntropy entropy;
    StoppedClock clock;
    DeliveredProgram program(entropy, clock);
    for (const auto& row : rows) {
        std::set<std::string> different;
        std::set<char> used;
        std::size_t longest = 0;
        for (const std::string& code : program.Codes(row.Alphabet, row.Length, row.Codes)) {
            different.insert(code);
            used.insert(code.begin(), code.end());
            longest = std::max(longest, code.size());
        }
        const std::string list =
            "a list of " + std::to_string(row.Codes) + ' ' + row.Kind + " random codes of 2";
        evidence.Compare("Different codes of " + list, std::to_string(row.Codes),
                         std::to_string(different.size()), "every possible code");
        evidence.Compare("Characters of " + list, row.Characters, std::string(used.begin(), used.end()),
                         ByHand);
        evidence.Compare("Longest code of " + list, "2", std::to_string(longest), ByHand);
    }
}

void CompareShortLengths(Evidence& evidence) {
    const struct {
        CodeAlphabets Alphabet;
        CodeOrders Order;
        std::int16_t Length;
        std::int16_t Fits; ///< the longest list
    } rows[] = {{Numeric, Sequential, 3, 999}, {Numeric, Random, 3, 1000}, {Alpha, Sequential, 2, 675},
                {Alpha, Random, 2, 676},       {Mixed, Sequential, 1, 35}, {Mixed, Random, 2, 1296}};
    const std::array<const char*, 3> kinds{"alphabetic", "numeric", "mixed"};
    for (const auto& row : rows) {
        ListSettings settings = ValidSettings(2, row.Fits);
        settings.CodeAlphaNum = row.Alphabet;
        settings.CodeSeqRandom = row.Order;
        settings.CodeLength = row.Length;
        std::string kind = row.Order == Random ? "random " : "sequential ";
        kind.append(kinds.at(static_cast<std::size_t>(row.Alphabet))).append(" codes of length ");
        kind += std::to_string(row.Length);
        evidence.Compare("A list of " + std::to_string(row.Fits) + " with " + kind, "",
                         PressOk(settings).Messages,
                         "base to the power of the length, less 1 for sequential codes");
        ++settings.SampleSize;
        const std::string longer = std::to_string(settings.SampleSize);
        evidence.Compare("A list of " + longer + " with " + kind,
                         "code length " + std::to_string(row.Length) + " is too short for a list of " +
                             longer + " subjects, please choose longer codes or a smaller sample size",
                         PressOk(settings).Messages, ByHand);
    }
}

} // namespace

void CheckKnownCodes(Record& record) {
    RunKnown(record, "COD-2.1", "Random codes of lists that need every possible code", CompareFullAlphabets);
    RunKnown(record, "COD-3.1", "Sequential codes by position", CompareSequentialCodes);
    RunKnown(record, "COD-5.1", "Code lengths that are too short", CompareShortLengths);
}

} // namespace orvane::validation
