#include "fakes/desktop.h"

namespace orvane {
namespace {

using namespace fakes;

TEST(CodePage, ACharacterThatThePageLacksIsReplacedOrNamedInAFailure) {
    const struct {
        const char* about;
        std::string text;
        std::string withReferences;
        std::string named; ///< in the failure
    } rows[] = {
        {"among others", "ü≥€\r\n", "\xFC&#8805;\x80\r\n", "\"≥\" (U+2265)"},
        {"a large number", "😀", "&#128512;", "\"😀\" (U+1F600)"},
        {"a byte that starts nothing", "x\x80y", "x&#65533;y", "(U+FFFD)"},
        {"a start alone", "\xC3(", "&#65533;(", "(U+FFFD)"},
        {"cut off at the end", "\xE2\x82", "&#65533;&#65533;", "(U+FFFD)"},
        {"an A in two bytes", "\xC1\x81", "&#65533;&#65533;", "(U+FFFD)"},
        {"the first surrogate", "\xED\xA0\x80.", "&#65533;&#65533;&#65533;.", "(U+FFFD)"},
        {"the last surrogate", "\xED\xBF\xBF.", "&#65533;&#65533;&#65533;.", "(U+FFFD)"},
    };
    const CodePage& page = WesternPage();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.about);
        EXPECT_EQ(page.Encode(row.text, Unmappable::NumericReference), row.withReferences);
        EXPECT_NE(page.CharactersNotHeld(row.text).at(0).find(row.named), std::string::npos);
        const Failure failure = FailureOf([&] { (void)page.Encode(row.text, Unmappable::Fail); });
        EXPECT_EQ(failure.Number, failure_number::UnmappableCharacter);
        EXPECT_NE(failure.Description.find(row.named), std::string::npos) << failure.Description;
    }
}

} // namespace
} // namespace orvane
