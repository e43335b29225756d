// The findings of a validation: the checks with their results and their evidence.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::validation {

enum class Result { Passed, Failed, NotRun };

/// Thrown by a check that cannot be run on this machine. The text gives the reason to the reader of the
/// record.
struct CannotRun : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The texts of the cells of a table row.
using Row = std::vector<std::string>;

/// The evidence of one check. All texts are plain text and are escaped for the page.
class Evidence {
  public:
    /// Records an expected and an observed value. The check fails unless they are equal.
    void Compare(const std::string& what, const std::string& expected, const std::string& observed,
                 const std::string& source = "");
    /// If not `right`, the check fails with the reason `what`.
    void Demand(bool right, const std::string& what);

    void Paragraph(const std::string& text);
    void Table(const Row& head, const std::vector<Row>& rows,
               const std::string& caption = "Figures of this check");
    /// Adds a plot. `svg` is a complete svg element; `caption` is printed below it.
    void Plot(const std::string& svg, const std::string& caption);
    /// Lists a file in the folder of the record as evidence.
    void File(const std::string& name);

    [[nodiscard]] const std::vector<std::string>& Faults() const { return faults_; }
    /// Whether anything was compared or demanded. A check without that has not passed.
    [[nodiscard]] bool HasJudged() const { return judged_; }
    /// The evidence as HTML, beginning with one table of all comparisons.
    [[nodiscard]] std::string Html() const;

  private:
    struct Comparison {
        std::string What;
        std::string Expected;
        std::string Observed;
        std::string Source;
    };
    std::vector<Comparison> comparisons_;
    std::vector<std::string> faults_;
    bool judged_ = false;
    std::string html_;
};

/// The chapters of the record, in the order in which they are printed.
enum class Chapter { KnownAnswers, Lists, Statistics, Concealment, ChecksOfChecks };

struct Check {
    std::string Identifier;  ///< stays the same from version to version, such as "BLK-3.1"
    std::string Requirement; ///< identifier of its requirement, such as "BLK-3"
    std::string Title;
    Chapter Place = Chapter::KnownAnswers;
    Result Outcome = Result::NotRun;
    std::vector<std::string> Reasons; ///< of the failure, or for not running it
    std::string Html;                 ///< its evidence
};

/// The size of the samples. A full validation takes a few minutes, a quick one about a minute.
struct Scale {
    bool Quick = false;
    /// `full` in a full validation, else `quick`.
    [[nodiscard]] int Of(int full, int quick) const { return Quick ? quick : full; }
};

class Record {
  public:
    /// Runs one check and stores its result. The result is "not run" if the check throws CannotRun, and
    /// "failed" for any other exception. Prints one line of progress to the standard output.
    void Run(const std::string& identifier, const std::string& requirement, const std::string& title,
             Chapter place, const std::function<void(Evidence&)>& check);

    [[nodiscard]] const std::vector<Check>& Checks() const { return checks_; }

  private:
    std::vector<Check> checks_;
};

} // namespace orvane::validation
