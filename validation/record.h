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

} // namespace orvane::validation
