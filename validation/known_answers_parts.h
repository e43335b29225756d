// The known answers, one routine for each subject.
#pragma once

#include "validation/record.h"

#include <functional>
#include <string>
#include <vector>

namespace orvane::validation {

void CheckKnownSource(Record& record);
void CheckKnownDraws(Record& record);
void CheckKnownBlockSizes(Record& record);
void CheckKnownRunsTests(Record& record);
void CheckKnownCodes(Record& record);
void CheckKnownLists(Record& record);
void CheckKnownSettings(Record& record);
void CheckKnownMessages(Record& record);

/// The source of an expected result that is not published.
inline constexpr const char* ByHand = "worked by hand";

/// Runs a check. Its identifier starts with that of its requirement.
void RunKnown(Record& record, const std::string& identifier, const std::string& title,
              const std::function<void(Evidence&)>& check);

/// "3, 2, 1"
template <class Numbers>
std::string Listed(const Numbers& numbers) {
    std::string text;
    for (const auto number : numbers)
        text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

/// Compares two texts line by line, with each space shown as a middle dot, and their lengths in bytes.
void CompareLines(Evidence& evidence, const std::vector<std::string>& expectedLines,
                  const std::string& observed, const std::string& source);

} // namespace orvane::validation
