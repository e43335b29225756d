#include "platform/linux/code_page_iconv.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <sstream>
#include <string>

namespace orvane {
namespace {

/// A page, languages that it belongs to, and what some of its bytes stand for.
struct Row {
    int number;
    std::string languages;
    std::string bytes;
    std::string text;
};

const std::array<Row, 10> rows{{
    {1250, "cs pl_PL.UTF-8 sr_RS@latin hr", "\x9A\xE8\xF5", "ščő"},
    {1251, "ru_RU sr_RS.UTF-8 uz_UZ@cyrillic", "\xC6\xFF\xA8", "ЖяЁ"},
    {1252, "en_US de_DE.UTF-8@euro pt-BR nb_NO", "\x80\xDF\x9D", "€ß\u009D"},
    {1253, "EL", "\xE1\xD9\xD2", "αΩ\uF7D2"},
    {1254, "tr_TR uz_UZ", "\xD0\xFD\xFE", "Ğış"},
    {1255, "he_IL", "\xE9\xC8\xF9\xD1\xD9", "י\u05B8ש\u05C1\uF7D9"}, // marks stay characters of their own
    {1256, "ar fa_IR", "\xC8\x81\xED", "بپي"},
    {1257, "lt_LT et", "\xE0\xFB\xA5", "ąū\uF7A5"},
    {1258, "vi_VN.UTF-8", "\xE2\xEC\xF2\xFE", "â\u0301\u0323₫"},
    {874, "th_TH", "\xA1\xE8\x80\xDB", "ก่€\uF7DB"},
}};

TEST(CodePageIconv, HasThePageOfALanguage) {
    std::string everyByte;
    for (int b = 0; b < 256; ++b)
        everyByte += static_cast<char>(b);
    for (const Row& row : rows) {
        std::istringstream languages(row.languages);
        for (std::string language; languages >> language;)
            EXPECT_EQ(CodePageOfLanguage(language), row.number) << language;
        const auto page = CodePageOfNumber(row.number);
        ASSERT_TRUE(page.has_value()) << row.number;
        EXPECT_EQ(page->Name(), "Windows-" + std::to_string(row.number));
        EXPECT_EQ(page->Decode(row.bytes), row.text) << row.number;
        EXPECT_EQ(page->Encode(page->Decode(everyByte), Unmappable::Fail), everyByte) << row.number;
    }
    for (const char* const unknown : {"", "C", "zh_CN.GB18030", "@latin"})
        EXPECT_FALSE(CodePageOfLanguage(unknown).has_value()) << unknown;
    EXPECT_FALSE(CodePageOfNumber(9999).has_value());
    EXPECT_EQ(WesternCodePage().Decode(everyByte), CodePageOfNumber(1252)->Decode(everyByte));
}

TEST(CodePageIconv, TakesTheFirstLanguageOfTheDesktopThatIsKnown) {
    const std::array<std::array<const char*, 3>, 3> desktops{{{"el_GR.UTF-8", "", "Windows-1253"},
                                                              {"ja_JP.UTF-8", "ja:cs:ru", "Windows-1250"},
                                                              {"C", "", "Windows-1252"}}};
    for (const auto& [locale, languages, name] : desktops) {
        ::setenv("LC_ALL", locale, 1);
        ::setenv("LANGUAGE", languages, 1);
        EXPECT_EQ(DesktopCodePage().Name(), name);
    }
    ::unsetenv("LC_ALL");
    ::unsetenv("LANGUAGE");
}

} // namespace
} // namespace orvane
