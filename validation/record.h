// What a validation finds: the checks with their results, and the evidence that each of them shows.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvane::validation {

enum class Result { Passed, Failed, NotRun };

/// Thrown inside a check that cannot be done on this machine, with the reason for the reader of the record.
struct CannotRun : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A row of a table: the texts of its cells.
using Row = std::vector<std::string>;

/// What one check shows. Texts are plain; they are escaped for the page.
class Evidence {
  public:
    /// Notes what was expected beside what was observed. The check fails unless both are equal.
    void Compare(const std::string& what, const std::string& expected, const std::string& observed,
                 const std::string& source = "");
    /// The check fails, with `what` as one of its reasons, unless `right`.
    void Demand(bool right, const std::string& what);

    void Paragraph(const std::string& text);
    void Table(const Row& head, const std::vector<Row>& rows,
               const std::string& caption = "Figures of this check");
    /// `svg` is a whole svg element; `caption` stands below it.
    void Plot(const std::string& svg, const std::string& caption);
    /// A file in the folder of the record that is kept as evidence.
    void File(const std::string& name);

    [[nodiscard]] const std::vector<std::string>& Faults() const { return faults_; }
    /// Whether anything was compared or demanded. A check that looked at nothing has not passed.
    [[nodiscard]] bool HasJudged() const { return judged_; }
    /// The evidence as HTML, the comparisons as one table in front.
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
    std::string Requirement; ///< identifier of the requirement that it covers, such as "BLK-3"
    std::string Title;
    Chapter Place = Chapter::KnownAnswers;
    Result Outcome = Result::NotRun;
    std::vector<std::string> Reasons; ///< of a failure, or why it was not run
    std::string Html;                 ///< its evidence
};

/// How much is done: a full validation takes a few minutes, a quick one about a minute.
struct Scale {
    bool Quick = false;
    /// `full` in a full validation, else `quick`.
    [[nodiscard]] int Of(int full, int quick) const { return Quick ? quick : full; }
};

class Record {
  public:
    /// Runs one check and keeps what came of it. CannotRun makes it "not run"; any other exception makes it
    /// "failed". Shows one line of progress on the standard output.
    void Run(const std::string& identifier, const std::string& requirement, const std::string& title,
             Chapter place, const std::function<void(Evidence&)>& check);

    [[nodiscard]] const std::vector<Check>& Checks() const { return checks_; }

  private:
    std::vector<Check> checks_;
};

} // namespace orvane::validation
