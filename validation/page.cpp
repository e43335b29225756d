#include "validation/page.h"

#include "validation/conclusion.h"
#include "validation/html_text.h"
#include "validation/page_chapters.h"

#include <map>

namespace orvane::validation {
namespace {

std::string Title(const Run& run) {
    return "Validation record of " + run.What.Program + " " + run.What.Version;
}

std::string FailedList(const Record& record) {
    std::string items;
    for (const Check& check : record.Checks())
        if (check.Outcome != Result::Passed)
            items += "<li>" + CheckLink(check) + " " + Escaped(check.Title) + ": " + Name(check.Outcome) +
                     (check.Reasons.empty() ? "" : ". " + Escaped(check.Reasons.front())) + "</li>\n";
    return items.empty() ? "" : "<p>These checks did not pass:</p>\n<ul>\n" + items + "</ul>\n";
}

std::string ConclusionBox(const Record& record) {
    const std::string verdict = AllPassed(record) ? "Passed" : "Failed";
    return "<div class=\"conclusion\">\n<p class=\"verdict\">Conclusion: " + verdict + "</p>\n<p>" +
           std::to_string(Count(record, Result::Passed)) + " checks passed, " +
           std::to_string(Count(record, Result::Failed)) + " failed, " +
           std::to_string(Count(record, Result::NotRun)) + " not run.</p>\n" + FailedList(record) +
           "</div>\n";
}

std::string QuickBox(const Run& run) {
    if (!run.Quick)
        return "";
    return "<p class=\"quick\">Quick validation, with smaller samples and fewer lists than a full one. It "
           "shows that the installation works. File the record of a full validation.</p>\n";
}

/// The most important facts of the identity chapter.
std::string KeyFacts(const Run& run) {
    const std::vector<Row> rows{{"Program", run.What.Program + " " + run.What.Version},
                                {"Commit and tree", run.What.Commit + ", " + run.What.Tree},
                                {"Date", run.What.Started},
                                {"Form", run.Quick ? "quick" : "full"},
                                {"Duration", run.Duration}};
    return FactsTable(rows, "What was checked and when");
}

std::string OutcomeRow(const Record& record, Chapter place, const std::string& name) {
    std::map<Result, int> counts;
    for (const Check& check : record.Checks())
        if (check.Place == place)
            ++counts[check.Outcome];
    std::string cells;
    for (const Result result : {Result::Passed, Result::Failed, Result::NotRun})
        cells += "<td>" + std::to_string(counts[result]) + "</td>";
    return "<tr><th scope=\"row\">" + name + "</th>" + cells + "</tr>\n";
}

std::string OutcomeTable(const Record& record) {
    return "<table class=\"short\"><caption>Checks by chapter</caption>\n<thead><tr><th "
           "scope=\"col\">Chapter</th>"
           "<th scope=\"col\">Passed</th><th scope=\"col\">Failed</th><th scope=\"col\">Not "
           "run</th></tr></thead>\n"
           "<tbody>\n" +
           OutcomeRow(record, Chapter::KnownAnswers, "Known answers") +
           OutcomeRow(record, Chapter::Lists, "Lists of the real program") +
           OutcomeRow(record, Chapter::Statistics, "Statistics of the draws") +
           OutcomeRow(record, Chapter::Concealment, "Concealment") +
           OutcomeRow(record, Chapter::ChecksOfChecks, "Checks of the checks") + "</tbody></table>\n";
}

std::string Contents() {
    std::string items;
    int number = 0;
    for (const ChapterHead& head : ChapterHeads())
        items += "<li><a href=\"#" + head.Anchor + "\">" + std::to_string(++number) + ". " + head.Title +
                 "</a></li>\n";
    return "<nav aria-label=\"Contents\">\n<h2 id=\"contents\">Contents</h2>\n<ol>\n" + items +
           "</ol>\n</nav>\n";
}

} // namespace

std::string RecordPage(const Record& record, const Run& run) {
    const std::string title = Escaped(Title(run));
    const std::string footer =
        title + (run.Quick ? ", quick validation, " : ", ") + run.What.Started.substr(0, 10);
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title + "</title>\n<style>" + PageStyle(footer) + "</style>\n</head>\n<body>\n<header>\n<h1>" +
           title +
           "</h1>\n<p class=\"subtitle\">Documented evidence that the program meets the requirements of a "
           "randomized trial, produced on the machine on which the program is used.</p>\n" +
           ConclusionBox(record) + QuickBox(run) + KeyFacts(run) + OutcomeTable(record) + "</header>\n" +
           Contents() + "<main>\n" + AllChapters(record, run) + "</main>\n</body>\n</html>\n";
}

} // namespace orvane::validation
