#include "validation/record.h"

#include "platform/failure.h"
#include "validation/html_text.h"

#include <algorithm>
#include <iostream>

namespace orvane::validation {
namespace {

std::string HeadCells(const Row& head) {
    std::string cells;
    for (const std::string& text : head)
        cells += "<th scope=\"col\">" + Escaped(text) + "</th>";
    return "<thead><tr>" + cells + "</tr></thead>\n";
}

/// Whether the text is a short number, which must not be broken over two lines.
bool IsFigure(const std::string& text) {
    constexpr std::size_t longest = 16;
    return text.size() <= longest && text.find_first_not_of("0123456789.,+-e%") == std::string::npos;
}

/// Whether the text has a word so long that it has to be broken anywhere to fit a column.
bool HasLongWord(const std::string& text) {
    constexpr std::size_t longest = 20;
    std::size_t length = 0;
    for (const char c : text) {
        length = c == ' ' ? 0 : length + 1;
        if (length > longest)
            return true;
    }
    return false;
}

std::string CellClass(const std::string& text) {
    if (IsFigure(text))
        return " class=\"figure\"";
    return HasLongWord(text) ? " class=\"long\"" : "";
}

std::string BodyRow(const Row& row) {
    std::string cells;
    for (const std::string& text : row)
        cells += "<td" + CellClass(text) + ">" + Escaped(text) + "</td>";
    return "<tr>" + cells + "</tr>\n";
}

/// Tables of up to this many rows are kept on one page.
constexpr std::size_t ShortTable = 12;

std::string TableStart(std::size_t rows, const std::string& caption, const Row& head) {
    constexpr std::size_t manyColumns = 7;
    const std::string kind =
        std::string(rows <= ShortTable ? "short" : "") + (head.size() > manyColumns ? " wide" : "");
    return "<table class=\"" + kind + "\"><caption>" + Escaped(caption) + "</caption>\n" + HeadCells(head) +
           "<tbody>\n";
}

void ShowStart(const std::string& identifier, const std::string& title) {
    constexpr std::size_t width = 8;
    std::cout << "  " << identifier
              << std::string(identifier.size() < width ? width - identifier.size() : 0, ' ') << "  " << title
              << std::flush;
}

void ShowEnd(const Check& check) {
    if (check.Outcome == Result::Passed)
        std::cout << ": passed";
    else
        std::cout << (check.Outcome == Result::Failed ? ": FAILED" : ": NOT RUN");
    for (const std::string& reason : check.Reasons)
        std::cout << "\n            " << reason;
    std::cout << std::endl;
}

} // namespace

void Evidence::Compare(const std::string& what, const std::string& expected, const std::string& observed,
                       const std::string& source) {
    judged_ = true;
    comparisons_.push_back({what, expected, observed, source});
    if (expected != observed)
        faults_.push_back(what + ": expected \"" + expected + "\", observed \"" + observed + "\"");
}

void Evidence::Demand(bool right, const std::string& what) {
    judged_ = true;
    if (!right)
        faults_.push_back(what);
}

void Evidence::Paragraph(const std::string& text) {
    html_ += "<p>" + Escaped(text) + "</p>\n";
}

void Evidence::Table(const Row& head, const std::vector<Row>& rows, const std::string& caption) {
    html_ += TableStart(rows.size(), caption, head);
    for (const Row& row : rows)
        html_ += BodyRow(row);
    html_ += "</tbody></table>\n";
}

void Evidence::Plot(const std::string& svg, const std::string& caption) {
    html_ += "<figure>" + svg + "<figcaption>" + Escaped(caption) + "</figcaption></figure>\n";
}

void Evidence::File(const std::string& name) {
    html_ += "<p class=\"file\">Evidence: <a href=\"" + Escaped(name) + "\">" + Escaped(name) + "</a></p>\n";
}

std::string Evidence::Html() const {
    if (comparisons_.empty())
        return html_;
    // One source of all stands in the caption, so that the columns are wide enough to read.
    const std::string& first = comparisons_.front().Source;
    const bool sources = std::any_of(comparisons_.begin(), comparisons_.end(),
                                     [&first](const Comparison& c) { return c.Source != first; });
    Row head{"What", "Expected", "Observed", "Result"};
    if (sources)
        head.emplace_back("Source");
    std::string caption = "Expected and observed";
    if (!sources && !first.empty())
        caption += "; source of the expected: " + first;
    std::string table = TableStart(comparisons_.size(), caption, head);
    for (const Comparison& c : comparisons_) {
        Row row{c.What, c.Expected, c.Observed, c.Expected == c.Observed ? "equal" : "NOT EQUAL"};
        if (sources)
            row.push_back(c.Source);
        table += BodyRow(row);
    }
    return table + "</tbody></table>\n" + html_;
}

void Record::Run(const std::string& identifier, const std::string& requirement, const std::string& title,
                 Chapter place, const std::function<void(Evidence&)>& check) {
    ShowStart(identifier, title);
    Check done{identifier, requirement, title, place, Result::NotRun, {}, ""};
    Evidence evidence;
    const auto failed = [&](const std::string& why) {
        done.Outcome = Result::Failed;
        done.Reasons = evidence.Faults();
        done.Reasons.push_back(why);
    };
    try {
        check(evidence);
        evidence.Demand(evidence.HasJudged(), "The check compared nothing.");
        done.Reasons = evidence.Faults();
        done.Outcome = done.Reasons.empty() ? Result::Passed : Result::Failed;
    } catch (const CannotRun& reason) {
        // A fault found before remains a failure.
        done.Outcome = evidence.Faults().empty() ? Result::NotRun : Result::Failed;
        done.Reasons = evidence.Faults();
        done.Reasons.emplace_back(reason.what());
    } catch (const std::exception& error) {
        failed(std::string("The check ended with an error: ") + error.what());
    } catch (...) {
        failed("The check ended with an error without a description.");
    }
    done.Html = evidence.Html();
    checks_.push_back(std::move(done));
    ShowEnd(checks_.back());
}

} // namespace orvane::validation
