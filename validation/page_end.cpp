#include "validation/html_text.h"
#include "validation/page_chapters.h"

namespace orvane::validation {
namespace {

constexpr const char* Limits[] = {
    "The randomness that the operating system gives. The record shows that the program asks for it and makes "
    "no list "
    "without it, not that it is unpredictable.",
    "The statistics and the concealment are those of the program's libraries, built from the commit named "
    "above and "
    "linked to the validation. The lists of chapter 4 are those of the delivered program file itself. "
    "Chapter 1 says "
    "whether that file was built from the same commit.",
    "The delivered program has no switch that reveals its draws, so the distribution of draws cannot be "
    "sampled through "
    "its windows in this number.",
    "The programs of the desktop that show, edit or print a finished list, and what they make of it.",
    "Other machines, operating systems, desktops, languages and versions of the libraries than those named "
    "in chapter "
    "1. The lists were made under the desktop that chapter 4 names; file prompts of other desktops were not "
    "opened.",
    "What happens to a list after the program has written it: who can read the folder, how it reaches the "
    "trial, and "
    "whether subjects are given the treatment that stands in it.",
    "Whether the chosen groups, sample size and block option suit the protocol of a trial.",
    "Faults that show only under conditions that no check makes, such as damaged memory or a changed program "
    "file. The "
    "SHA-256 sums of chapter 1 tell whether the files are still the same.",
};

std::string SignatureRow(const std::string& role) {
    return "<tr><th scope=\"row\">" + role + "</th><td></td><td></td><td></td></tr>\n";
}

} // namespace

std::string NotCovered() {
    std::string items;
    for (const char* limit : Limits)
        items += "<li>" + Escaped(limit) + "</li>\n";
    return "<ul>\n" + items + "</ul>\n";
}

std::string Signatures() {
    return "<table class=\"signatures\"><caption>To be signed on the printed record</caption>\n<thead><tr>"
           "<th scope=\"col\">Role</th><th scope=\"col\">Name</th><th scope=\"col\">Date</th>"
           "<th scope=\"col\">Signature</th></tr></thead>\n<tbody>\n" +
           SignatureRow("Validation run by") + SignatureRow("Record approved by") + "</tbody></table>\n";
}

} // namespace orvane::validation
