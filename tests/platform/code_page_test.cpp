#include "fakes/desktop.h"

namespace orvane {
namespace {

TEST(CodePage, TreatsWhatItCannotHoldAsTold) {
    // A text, with question marks, with references, and what the failure names.
    using Row = std::array<std::string, 4>;
    const CodePage& page = fakes::WesternPage();
    for (const auto& [text, questionMarks, references, named] : {
             Row{"ü≥€\r\n", "\xFC?\x80\r\n", "\xFC&#8805;\x80\r\n", "\"≥\" (U+2265)"},
             Row{"😀", "?", "&#128512;", "\"😀\" (U+1F600)"}, Row{"x\xFFy", "x?y", "x&#65533;y", "(U+FFFD)"},
             Row{"\xC3(", "?(", "&#65533;(", "(U+FFFD)"},           // what follows is kept
             Row{"\xE2\x82", "??", "&#65533;&#65533;", "(U+FFFD)"}, // cut off at the end
             Row{"\xC1\x81", "??", "&#65533;&#65533;", "(U+FFFD)"}, // overlong "A"
             Row{"\xED\xA0\x80?", "????", "&#65533;&#65533;&#65533;?", "Windows-1252"}, // a lone surrogate
         }) {
        EXPECT_EQ(page.Encode(text, Unmappable::QuestionMark), questionMarks);
        EXPECT_EQ(page.Encode(text, Unmappable::NumericReference), references);
        const Failure failure =
            fakes::FailureOf([&, &text = text] { (void)page.Encode(text, Unmappable::Fail); });
        EXPECT_EQ(failure.Number, failure_number::UnmappableCharacter);
        EXPECT_NE(failure.Description.find(named), std::string::npos) << failure.Description;
    }
}

} // namespace
} // namespace orvane
