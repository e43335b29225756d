#include "validation/conclusion.h"

#include "validation/requirements.h"

#include <algorithm>

namespace orvane::validation {

std::string Name(Result result) {
    switch (result) {
    case Result::Passed:
        return "passed";
    case Result::Failed:
        return "failed";
    case Result::NotRun:
        break;
    }
    return "not run";
}

int Count(const Record& record, Result result) {
    const auto& checks = record.Checks();
    return static_cast<int>(std::count_if(checks.begin(), checks.end(),
                                          [result](const Check& check) { return check.Outcome == result; }));
}

bool AllPassed(const Record& record) {
    const int passed = Count(record, Result::Passed);
    return passed > 0 && passed == static_cast<int>(record.Checks().size());
}

std::vector<const Check*> ChecksOf(const Record& record, const std::string& requirement) {
    std::vector<const Check*> found;
    for (const Check& check : record.Checks())
        if (check.Requirement == requirement)
            found.push_back(&check);
    return found;
}

std::vector<std::string> Unchecked(const Record& record) {
    std::vector<std::string> found;
    for (const RequirementGroup& group : AllRequirements())
        for (const Requirement& requirement : group.Requirements)
            if (ChecksOf(record, requirement.Identifier).empty())
                found.push_back(requirement.Identifier);
    return found;
}

std::vector<std::string> Conclusion(const Record& record) {
    const std::string counts = std::to_string(Count(record, Result::Passed)) + " checks passed, " +
                               std::to_string(Count(record, Result::Failed)) + " failed, " +
                               std::to_string(Count(record, Result::NotRun)) + " not run.";
    std::vector<std::string> lines{(AllPassed(record) ? "PASSED: " : "FAILED: ") + counts};
    for (const Check& check : record.Checks())
        if (check.Outcome != Result::Passed)
            lines.push_back("  " + Name(check.Outcome) + ": " + check.Identifier + " " + check.Title +
                            (check.Reasons.empty() ? "" : ". " + check.Reasons.front()));
    return lines;
}

} // namespace orvane::validation
