#include "validation/page_chapters.h"

#include "validation/conclusion.h"
#include "validation/html_text.h"
#include "validation/requirements.h"

namespace orvane::validation {
namespace {

std::string HeadCell(const std::string& text) {
    return "<th scope=\"col\">" + text + "</th>";
}

std::string FilesTable(const std::vector<Row>& files, const std::string& caption) {
    std::string rows;
    for (const Row& file : files)
        rows += "<tr><td>" + Escaped(file[0]) + "</td><td>" + Escaped(file[1]) + "</td><td class=\"hash\">" +
                file[2] + "</td></tr>\n";
    return "<table><caption>" + caption + "</caption>\n<thead><tr>" + HeadCell("File") + HeadCell("Bytes") +
           HeadCell("SHA-256") + "</tr></thead>\n<tbody>\n" + rows + "</tbody></table>\n";
}

std::string LibrariesTable(const Identity& what) {
    if (what.Libraries.empty())
        return "<p>The libraries that the program loads could not be determined.</p>\n";
    std::string rows;
    for (const Row& library : what.Libraries)
        rows += "<tr><td>" + Escaped(library[0]) + "</td><td>" + Escaped(library[1]) + "</td><td>" +
                Escaped(library[2]) + "</td></tr>\n";
    return "<table class=\"libraries\"><caption>Libraries that the program loads</caption>\n<thead><tr>" +
           HeadCell("Library") + HeadCell("Package and version") + HeadCell("File") +
           "</tr></thead>\n<tbody>\n" + rows + "</tbody></table>\n";
}

std::string IdentityChapter(const Run& run) {
    std::vector<Row> facts = run.What.Facts;
    facts.push_back({"Form", run.Quick ? "quick" : "full"});
    facts.push_back({"Duration", run.Duration});
    return FactsTable(facts, "Program, machine and run") + FilesTable(run.What.Files, "Delivered files") +
           LibrariesTable(run.What);
}

std::string RequirementRow(const Record& record, const Requirement& requirement) {
    std::string checks;
    for (const Check* check : ChecksOf(record, requirement.Identifier))
        checks +=
            "<div>" + CheckLink(*check) + " " +
            (check->Outcome == Result::Passed ? "passed" : "<strong>" + Name(check->Outcome) + "</strong>") +
            "</div>";
    if (checks.empty())
        checks = "<strong>no check</strong>";
    return "<tr id=\"" + requirement.Identifier + "\"><th scope=\"row\">" + requirement.Identifier +
           "</th><td>" + Escaped(requirement.Text) + "</td><td class=\"result\">" + checks + "</td></tr>\n";
}

std::string RequirementsChapter(const Record& record) {
    std::string html = "<p>Each requirement keeps its identifier from version to version. The groups are in "
                       "the order of their risk to a trial, the most serious first.</p>\n";
    for (const RequirementGroup& group : AllRequirements()) {
        html += "<h3>" + group.Name + "</h3>\n<p>" + group.Risk +
                "</p>\n<table><caption>Requirements: " + group.Name + "</caption>\n<thead><tr>" +
                HeadCell("Identifier") + HeadCell("Requirement") + HeadCell("Checks and results") +
                "</tr></thead>\n<tbody>\n";
        for (const Requirement& requirement : group.Requirements)
            html += RequirementRow(record, requirement);
        html += "</tbody></table>\n";
    }
    return html;
}

std::string Reasons(const Check& check) {
    if (check.Reasons.empty())
        return "";
    std::string items;
    for (const std::string& reason : check.Reasons)
        items += "<li>" + Escaped(reason) + "</li>\n";
    return "<ul class=\"reasons\">\n" + items + "</ul>\n";
}

std::string CheckSection(const Check& check) {
    const bool passed = check.Outcome == Result::Passed;
    return "<section class=\"check" + std::string(passed ? "" : " bad") + "\" id=\"check-" +
           check.Identifier + "\">\n<h3>" + check.Identifier + " " + Escaped(check.Title) +
           "</h3>\n<p class=\"outcome\">Result: " + Name(check.Outcome) + ". Requirement: <a href=\"#" +
           check.Requirement + "\">" + check.Requirement + "</a></p>\n" + Reasons(check) + check.Html +
           "</section>\n";
}

std::string ChecksChapter(const Record& record, Chapter place, const std::string& intro) {
    std::string html;
    for (const Check& check : record.Checks())
        if (check.Place == place)
            html += CheckSection(check);
    return "<p>" + intro + "</p>\n" +
           (html.empty() ? "<p><strong>No check of this chapter was run.</strong></p>\n" : html);
}

std::string EvidenceFiles(const Run& run) {
    if (run.Evidence.empty())
        return "";
    return "<h3>Evidence files</h3>\n<p>These files belong to the record and are filed with it.</p>\n" +
           FilesTable(run.Evidence, "Files in the folder of this record");
}

std::string ConclusionChapter(const Record& record, const Run& run) {
    std::string html;
    for (const std::string& line : Conclusion(record))
        html += "<p><strong>" + Escaped(line) + "</strong></p>\n";
    std::string unchecked;
    for (const std::string& identifier : Unchecked(record))
        unchecked += (unchecked.empty() ? "" : ", ") + identifier;
    html += "<p>Requirements without a check: " + (unchecked.empty() ? "none" : unchecked) + ".</p>\n";
    return html + "<h3>What was not covered</h3>\n" + NotCovered() + EvidenceFiles(run) +
           "<h3>Signatures</h3>\n" + Signatures();
}

constexpr const char* KnownAnswersIntro =
    "Cases whose correct answer is known in advance. Each row shows the expected answer, the observed "
    "answer, and the source of the expected answer.";
constexpr const char* ListsIntro =
    "Lists that the delivered program made through its own windows. Each list was read back from its bytes "
    "by code that shares nothing with the program's reports. The lists are kept with this record.";
constexpr const char* StatisticsIntro =
    "Samples of the program's random draws, compared with the distribution that they must have. The P value "
    "is the probability that a correct program gives a sample that differs from this distribution at least "
    "as much. The acceptance limits are so low that a correct program fails any of them in fewer than one of "
    "10,000 records. The samples come from the program's own libraries, which are linked to the validation.";
constexpr const char* ConcealmentIntro =
    "How well the next assignment can be guessed, and what keeps the draws secret.";
constexpr const char* ChecksIntro =
    "The statistics and the checks of lists were also run on programs and lists with deliberate faults. A "
    "check of this chapter passes if it finds the fault.";

std::string ChapterHtml(std::size_t number, const std::string& content) {
    const ChapterHead& head = ChapterHeads().at(number - 1);
    return "<section aria-labelledby=\"" + head.Anchor + "\">\n<h2 id=\"" + head.Anchor + "\">" +
           std::to_string(number) + ". " + head.Title + "</h2>\n" + content + "</section>\n";
}

} // namespace

const std::vector<ChapterHead>& ChapterHeads() {
    static const std::vector<ChapterHead> heads = {{"identity", "Identity"},
                                                   {"requirements", "Requirements"},
                                                   {"known-answers", "Known answers"},
                                                   {"lists", "Lists of the real program"},
                                                   {"statistics", "Statistics of the draws"},
                                                   {"concealment", "Concealment"},
                                                   {"checks-of-checks", "Checks of the checks"},
                                                   {"conclusion", "Conclusion and signatures"}};
    return heads;
}

std::string AllChapters(const Record& record, const Run& run) {
    return ChapterHtml(1, IdentityChapter(run)) + ChapterHtml(2, RequirementsChapter(record)) +
           ChapterHtml(3, ChecksChapter(record, Chapter::KnownAnswers, KnownAnswersIntro)) +
           ChapterHtml(4, ChecksChapter(record, Chapter::Lists, ListsIntro)) +
           ChapterHtml(5, ChecksChapter(record, Chapter::Statistics, StatisticsIntro)) +
           ChapterHtml(6, ChecksChapter(record, Chapter::Concealment, ConcealmentIntro)) +
           ChapterHtml(7, ChecksChapter(record, Chapter::ChecksOfChecks, ChecksIntro)) +
           ChapterHtml(8, ConclusionChapter(record, run));
}

std::string FactsTable(const std::vector<Row>& rows, const std::string& caption) {
    std::string html;
    for (const Row& row : rows)
        html += "<tr><th scope=\"row\">" + Escaped(row[0]) + "</th><td>" + Escaped(row[1]) + "</td></tr>\n";
    return "<table class=\"short\"><caption>" + Escaped(caption) + "</caption>\n<tbody>\n" + html +
           "</tbody></table>\n";
}

std::string CheckLink(const Check& check) {
    return "<a href=\"#check-" + check.Identifier + "\">" + check.Identifier + "</a>";
}

} // namespace orvane::validation
