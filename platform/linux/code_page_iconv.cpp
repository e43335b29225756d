#include "platform/linux/code_page_iconv.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include <glib.h>

namespace orvane {

namespace {

constexpr int WesternNumber = 1252;

/// The languages of a page, each between spaces. "sr@latin" is a language together with the script that its
/// modifier names.
struct PageLanguages {
    int number;
    std::string_view languages;
};

constexpr std::array<PageLanguages, 10> Pages{{
    {1250, " cs hu pl sk sl hr bs sq ro tk sr@latin cnr "},
    {1251, " ru be bg uk mk sr kk ky mn tg tt ba sah cv ce os ab bs@cyrillic uz@cyrillic az@cyrillic "},
    {WesternNumber,
     " en de fr es it pt nl da sv nb nn no fi is fo ga gd gv cy br af ca eu gl oc ast an id ms jv "
     "su sw lb rm fy li wa fur sc co kl se smn sma smj quz qu gn arn xh zu st tn nso ts ss rw wo ig "
     "yo ha fil tl haw dsb hsb ht ia "},
    {1253, " el "},
    {1254, " tr az uz ku crh tt@iqtelif "},
    {1255, " he iw yi "},
    {1256, " ar fa ur ps ug ckb sd ks pnb prs "},
    {1257, " et lv lt ltg sgs "},
    {1258, " vi "},
    {874, " th "},
}};

/// The parts of language[_territory][.codeset][@modifier] that decide the page, in lower case.
struct LanguageParts {
    std::string language;
    std::string modifier;
};

LanguageParts PartsOf(std::string_view name) {
    const auto lower = [](std::string_view text) {
        std::string result(text);
        std::transform(result.begin(), result.end(), result.begin(),
                       [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
        return result;
    };
    const std::size_t at = name.find('@');
    return {lower(name.substr(0, name.find_first_of("_-.@"))),
            at == std::string_view::npos ? std::string() : lower(name.substr(at))};
}

std::optional<int> PageListing(const std::string& language) {
    for (const PageLanguages& page : Pages)
        if (page.languages.find(" " + language + " ") != std::string_view::npos)
            return page.number;
    return std::nullopt;
}

std::string NameOf(int number) {
    return "Windows-" + std::to_string(number);
}

/// The character for a byte that the page leaves undefined.
char32_t UndefinedCharacter(std::size_t byte) {
    constexpr std::size_t firstBehindControls = 0xA0;
    constexpr char32_t privateUse = 0xF700;
    return byte < firstBehindControls ? static_cast<char32_t>(byte)
                                      : privateUse + static_cast<char32_t>(byte);
}

/// The character of one byte. For some pages the converter waits for the next byte, because a combining mark
/// could follow; the conversion of a whole text ends the waiting.
char32_t CharacterOf(GIConv converter, std::size_t byte) {
    const auto in = static_cast<gchar>(byte);
    gsize length = 0;
    g_iconv(converter, nullptr, nullptr, nullptr, nullptr); // forgets a byte that failed
    const g_autofree gchar* out = g_convert_with_iconv(&in, 1, converter, nullptr, &length, nullptr);
    char32_t character = 0;
    if (out == nullptr || length != sizeof character)
        return UndefinedCharacter(byte);
    std::memcpy(&character, out, sizeof character);
    return character;
}

} // namespace

std::optional<int> CodePageOfLanguage(std::string_view language) {
    const LanguageParts parts = PartsOf(language);
    if (parts.language.empty())
        return std::nullopt;
    if (const auto scripted = PageListing(parts.language + parts.modifier))
        return scripted;
    return PageListing(parts.language);
}

std::optional<CodePage> CodePageOfNumber(int number) {
    constexpr const char* characterType =
        std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";
    const std::string name = "CP" + std::to_string(number);
    GIConv converter = g_iconv_open(characterType, name.c_str());
    if (reinterpret_cast<std::intptr_t>(converter) == -1)
        return std::nullopt;
    std::array<char32_t, 256> characters{};
    for (std::size_t b = 0; b < characters.size(); ++b)
        characters[b] = CharacterOf(converter, b);
    g_iconv_close(converter);
    return CodePage(NameOf(number), characters);
}

CodePage WesternCodePage() {
    constexpr std::array<char32_t, 32> upper = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    std::array<char32_t, 256> characters{};
    for (std::size_t b = 0; b < characters.size(); ++b)
        characters[b] = static_cast<char32_t>(b);
    std::copy(upper.begin(), upper.end(), characters.begin() + 0x80);
    return {NameOf(WesternNumber), characters};
}

CodePage DesktopCodePage() {
    int number = WesternNumber;
    for (const gchar* const* name = g_get_language_names(); *name != nullptr; ++name) {
        if (const auto known = CodePageOfLanguage(*name)) {
            number = *known;
            break;
        }
    }
    if (auto page = CodePageOfNumber(number))
        return *std::move(page);
    return WesternCodePage();
}

} // namespace orvane
