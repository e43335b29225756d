// The findings of a validation: the checks with their results and their evidence.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace orvane::validation {

/// The texts of the cells of a table row.
using Row = std::vector<std::string>;

/// A paragraph, or a table below its caption.
struct Exhibit {
    std::string Text; ///< the paragraph or the caption
    Row Head{};       ///< empty for a paragraph
    std::vector<Row> Rows{};
};

/// The chapters of the record that hold checks, with their numbers.
enum class Chapter { Lists = 3, KnownKey, Refusals, Statistics, Guessing, PlantedFaults };

/// One check with its evidence, all of it plain text.
struct Check {
    std::string Identifier; ///< stays the same from version to version, such as "BLK-3.1"
    std::string Title;
    Chapter Place = Chapter::Lists;
    int Demands = 0;                   ///< a check that has judged nothing has not passed
    std::vector<std::string> Faults{}; ///< none if it has passed
    std::vector<Row> Comparisons{};    ///< what, expected, observed, result
    std::vector<Exhibit> Exhibits{};

    /// If not `right`, the check fails with the reason `what`. Nothing is printed otherwise.
    void Demand(bool right, const std::string& what);
    /// Demands and prints that two values are equal.
    void Compare(const std::string& what, const std::string& expected, const std::string& observed);

    /// The identifier without the last number, such as "BLK-3".
    [[nodiscard]] std::string Requirement() const { return Identifier.substr(0, Identifier.rfind('.')); }
    [[nodiscard]] std::string Result() const { return Faults.empty() ? "passed" : "failed"; }
};

struct Record {
    bool Quick = false; ///< fewer lists and smaller samples
    std::vector<Check> Checks{};

    /// Runs one check and stores its result. An exception is a fault.
    void Run(const std::string& identifier, const std::string& title, Chapter place,
             const std::function<void(Check&)>& judge);
};

class Session;

// The checks, chapter by chapter. Each adds its findings to the record.

/// Chapters 3 and 4: the lists of the table, in a quick validation only the first ones, made from known keys
/// and held against the rules and against the second program. Chapter 8: every rule finds the fault that
/// breaks it alone, and the rules find every changed byte.
void CheckLists(Record& record, Session& session);

/// CON-1.1: published figures beside those of the second program.
void CheckSecondProgram(Record& record);

/// Chapter 5: starts without entropy, input that must be refused, characters that a file cannot hold, and
/// settings saved, loaded and damaged.
void CheckRefusals(Record& record, Session& session);

/// Chapter 6: ASG-6.1 with one table, and a check for each statistic. Of each kind of sample the last list is
/// kept as a file. Chapter 8: every statistic finds the fault in its sample.
void CheckStatistics(Record& record, Session& session);

/// Chapter 7: for each block option how often an investigator guesses the next assignment right.
void CheckGuessing(Record& record);

} // namespace orvane::validation
