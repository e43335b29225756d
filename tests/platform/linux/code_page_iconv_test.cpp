#include "platform/linux/code_page_iconv.h"

#include "fakes/environment.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using namespace fakes;

std::string EveryByte() {
    std::string bytes;
    for (int b = 0; b < 256; ++b)
        bytes += static_cast<char>(b);
    return bytes;
}

TEST(CodePageIconv, EveryLanguageHasThePageWithItsCharacters) {
    const struct {
        int number;
        std::vector<const char*> languages;
        const char* bytes;
        const char* text; ///< the private use area stands for undefined bytes
    } rows[] = {
        {1250, {"cs", "pl_PL.UTF-8", "sr_RS@latin", "hr"}, "\x9A\xE8\xF5", "ščő"},
        {1251, {"ru_RU", "sr_RS.UTF-8", "uz_UZ@cyrillic"}, "\xC6\xFF\xA8", "ЖяЁ"},
        {1252, {"en_US", "de_DE.UTF-8@euro", "pt-BR"}, "\x80\xDF\x9D", "€ß\u009D"},
        {1253, {"EL"}, "\xE1\xD9\xD2", "αΩ\uF7D2"},
        {1254, {"tr_TR", "uz_UZ"}, "\xD0\xFD\xFE", "Ğış"},
        {1255, {"he_IL"}, "\xE9\xC8\xF9\xD1\xD9", "י\u05B8ש\u05C1\uF7D9"},
        {1256, {"ar", "fa_IR"}, "\xC8\x81\xED", "بپي"},
        {1257, {"lt_LT", "et"}, "\xE0\xFB\xA5", "ąū\uF7A5"},
        {1258, {"vi_VN.UTF-8"}, "\xE2\xEC\xF2\xFE", "â\u0301\u0323₫"},
        {874, {"th_TH"}, "\xA1\xE8\x80\xDB", "ก่€\uF7DB"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "page " << row.number);
        for (const char* const language : row.languages)
            EXPECT_EQ(CodePageOfLanguage(language), row.number) << language;
        const CodePage page = CodePageOfNumber(row.number).value();
        EXPECT_EQ(page.Decode(row.bytes), row.text);
        EXPECT_EQ(page.Encode(page.Decode(EveryByte()), Unmappable::Fail), EveryByte());
    }
}

TEST(CodePageIconv, TheWesternPageIsTheSameWithoutIconv) {
    EXPECT_EQ(WesternCodePage().Decode(EveryByte()), CodePageOfNumber(1252).value().Decode(EveryByte()));
}

TEST(CodePageIconv, TheFirstLanguageOfTheDesktopThatIsKnownDecides) {
    const SetVariable locale("LC_ALL", "ja_JP.UTF-8");
    const SetVariable preferred("LANGUAGE", "zh_CN.GB18030:@latin:cs:ru");
    EXPECT_EQ(DesktopCodePage().Name(), "Windows-1250");
    const SetVariable none("LANGUAGE", "");
    EXPECT_EQ(DesktopCodePage().Name(), "Windows-1252");
}

} // namespace
} // namespace orvane
