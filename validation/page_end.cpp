#include "validation/html_text.h"
#include "validation/page_chapters.h"

namespace orvane::validation {
namespace {

constexpr const char* Limits[] = {
    "Whether the random data of the operating system is unpredictable. The record shows only that the "
    "program uses it and makes no list without it.",
    "The statistics and the concealment of the delivered program file itself. These checks use the program's "
    "libraries, built from the commit named in chapter 1 and linked to the validation. Only the lists of "
    "chapter 4 come from the delivered program file. Chapter 1 states whether that file was built from the "
    "same commit.",
    "Samples of this size drawn through the windows of the delivered program, which has no switch that "
    "reveals its draws.",
    "The programs of the desktop that show, edit or print a finished list.",
    "Machines, operating systems, desktops, languages and library versions other than those named in chapter "
    "1. The lists were made under the desktop named in chapter 4; file prompts of other desktops were not "
    "opened.",
    "What happens to a list after the program has written it: who can read the folder, how it reaches the "
    "trial, and "
    "whether subjects are given the treatment that the list assigns to them.",
    "Whether the chosen groups, sample size and block option suit the protocol of a trial.",
    "Faults that occur only under conditions that no check creates, such as damaged memory or a changed "
    "program file. The SHA-256 sums of chapter 1 show whether the files are still the same.",
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
