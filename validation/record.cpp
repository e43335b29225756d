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

/// Whether the text is a short number, which no line break may cut.
bool IsFigure(const std::string& text) {
    constexpr std::size_t longest = 16;
    return text.size() <= longest && text.find_first_not_of("0123456789.,+-e%") == std::string::npos;
}

std::string BodyRow(const Row& row) {
    std::string cells;
    for (const std::string& text : row)
        cells += (IsFigure(text) ? "<td class=\"figure\">" : "<td>") + Escaped(text) + "</td>";
    return "<tr>" + cells + "</tr>\n";
}

/// Tables of up to this many rows are not broken between pages.
constexpr std::size_t ShortTable = 12;

std::string TableStart(std::size_t rows, const std::string& caption, const Row& head) {
    return std::string(rows <= ShortTable ? "<table class=\"short\">" : "<table>") + "<caption>" +
           Escaped(caption) + "</caption>\n" + HeadCells(head) + "<tbody>\n";
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
    const bool sources = std::any_of(comparisons_.begin(), comparisons_.end(),
                                     [](const Comparison& c) { return !c.Source.empty(); });
    Row head{"What", "Expected", "Observed", "Result"};
    if (sources)
        head.emplace_back("Source");
    std::string table = TableStart(comparisons_.size(), "Expected and observed", head);
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
        // What was found wrong before stays a failure.
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
