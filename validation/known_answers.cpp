#include "validation/known_answers.h"

#include "validation/known_answers_parts.h"

#include <algorithm>

namespace orvane::validation {
namespace {

std::string WithDots(const std::string& text) {
    std::string shown;
    for (const char c : text)
        shown += c == ' ' ? "\u00B7" : std::string(1, c);
    return shown;
}

/// The lines of a text whose lines all end in CR LF. Any text after the last line end is a line too.
std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

} // namespace

void RunKnown(Record& record, const std::string& identifier, const std::string& title,
              const std::function<void(Evidence&)>& check) {
    record.Run(identifier, identifier.substr(0, identifier.find('.')), title, Chapter::KnownAnswers, check);
}

void CompareLines(Evidence& evidence, const std::vector<std::string>& expectedLines,
                  const std::string& observed, const std::string& source) {
    const std::vector<std::string> lines = LinesOf(observed);
    std::string expected;
    for (const std::string& line : expectedLines)
        expected += line + "\r\n";
    for (std::size_t i = 0; i < std::max(lines.size(), expectedLines.size()); ++i)
        evidence.Compare("Line " + std::to_string(i + 1),
                         i < expectedLines.size() ? WithDots(expectedLines[i]) : "no line",
                         i < lines.size() ? WithDots(lines[i]) : "no line", source);
    evidence.Compare("Bytes, with CR LF after every line", std::to_string(expected.size()),
                     std::to_string(observed.size()), source);
    evidence.Demand(observed == expected, "The bytes are not the expected ones.");
    evidence.Paragraph("A middle dot stands for a space.");
}

void CheckKnownAnswers(Record& record, const Scale& /*scale*/) {
    CheckKnownDraws(record);
    CheckKnownSource(record);
    CheckKnownBlockSizes(record);
    CheckKnownRunsTests(record);
    CheckKnownCodes(record);
    CheckKnownLists(record);
    CheckKnownSettings(record);
    CheckKnownMessages(record);
}

} // namespace orvane::validation
