#include "platform/code_page.h"

#include "fakes/desktop.h"
#include "platform/failure.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace orvane {
namespace {

TEST(CodePage, TreatsWhatItCannotHoldAsTold) {
    struct Row {
        std::string text;
        std::string questionMarks;
        std::string references;
        std::string named; ///< in the failure's description
    };
    const std::array<Row, 7> rows{{
        {"ü≥€\r\n", "\xFC?\x80\r\n", "\xFC&#8805;\x80\r\n", "\"≥\" (U+2265)"},
        {"😀", "?", "&#128512;", "\"😀\" (U+1F600)"},
        {"x\xFFy", "x?y", "x&#65533;y", "(U+FFFD)"},
        {"\xC3(", "?(", "&#65533;(", "(U+FFFD)"},                               // what follows is kept
        {"\xE2\x82", "??", "&#65533;&#65533;", "(U+FFFD)"},                     // cut off at the end
        {"\xC1\x81", "??", "&#65533;&#65533;", "(U+FFFD)"},                     // "A" in too many bytes
        {"\xED\xA0\x80?", "????", "&#65533;&#65533;&#65533;?", "Windows-1252"}, // half a pair
    }};
    const CodePage& page = fakes::WesternPage();
    for (const Row& row : rows) {
        EXPECT_EQ(page.Encode(row.text, Unmappable::QuestionMark), row.questionMarks);
        EXPECT_EQ(page.Encode(row.text, Unmappable::NumericReference), row.references);
        try {
            ADD_FAILURE() << page.Encode(row.text, Unmappable::Fail);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number, failure_number::UnmappableCharacter);
            EXPECT_NE(failure.Description.find(row.named), std::string::npos) << failure.Description;
        }
    }
}

} // namespace
} // namespace orvane
