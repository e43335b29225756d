// The findings of a validation: the checks with their results and their evidence.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::validation {

/// The texts of the cells of a table row.
using Row = std::vector<std::string>;

/// A paragraph, or a table below its caption.
struct Exhibit {
    std::string Text; ///< the paragraph or the caption
    Row Head;         ///< empty for a paragraph
    std::vector<Row> Rows;
};

/// The evidence of one check, all of it plain text.
class Evidence {
  public:
    /// Records an expected and an observed value. The check fails unless they are equal. All comparisons of
    /// a check are printed as one table.
    void Compare(const std::string& what, const std::string& expected, const std::string& observed);
    /// If not `right`, the check fails with the reason `what`. Nothing is printed otherwise.
    void Demand(bool right, const std::string& what);

    void Paragraph(const std::string& text) { exhibits_.push_back({text, {}, {}}); }
    void Table(const Row& head, const std::vector<Row>& rows, const std::string& caption) {
        exhibits_.push_back({caption, head, rows});
    }

    /// Why the check has not passed. A check that judged nothing has not.
    [[nodiscard]] std::vector<std::string> Faults() const;
    /// Everything to be printed, the table of comparisons first, which may be empty.
    [[nodiscard]] const std::vector<Exhibit>& Exhibits() const { return exhibits_; }

  private:
    std::vector<std::string> faults_;
    std::vector<Exhibit> exhibits_ = {
        {"Expected and observed", {"What", "Expected", "Observed", "Result"}, {}}};
    bool judged_ = false;
};

/// The chapters of the record that hold checks, with their numbers.
enum class Chapter { Lists = 3, KnownKey, Refusals, Statistics, Guessing, PlantedFaults };

struct Check {
    std::string Identifier;  ///< stays the same from version to version, such as "BLK-3.1"
    std::string Requirement; ///< its identifier without the last number, such as "BLK-3"
    std::string Title;
    Chapter Place = Chapter::Lists;
    std::vector<std::string> Faults; ///< none if it has passed
    std::vector<Exhibit> Exhibits;

    [[nodiscard]] std::string Result() const { return Faults.empty() ? "passed" : "failed"; }
};

/// The size of the samples.
struct Scale {
    bool Quick = false;
    /// `full` in a full validation, else `quick`.
    [[nodiscard]] int Of(int full, int quick) const { return Quick ? quick : full; }
};

/// What the program is required to do, with an identifier that stays the same from version to version.
struct Requirement {
    std::string Identifier;
    std::string Text;
};

/// The most serious for a trial first.
const std::vector<Requirement>& Requirements();

class Record {
  public:
    /// Runs one check and stores its result. An exception is a fault.
    void Run(const std::string& identifier, const std::string& title, Chapter place,
             const std::function<void(Evidence&)>& check);

    [[nodiscard]] const std::vector<Check>& Checks() const { return checks_; }

  private:
    std::vector<Check> checks_;
};

} // namespace orvane::validation
