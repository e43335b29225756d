#include "platform/linux/code_page_iconv.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <glib.h>
#include <iconv.h>

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

struct IconvClose {
    void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, IconvClose>;

/// The character for a byte that the page leaves undefined.
char32_t UndefinedCharacter(std::size_t byte) {
    constexpr std::size_t firstBehindControls = 0xA0;
    constexpr char32_t privateUse = 0xF700;
    return byte < firstBehindControls ? static_cast<char32_t>(byte)
                                      : privateUse + static_cast<char32_t>(byte);
}

/// The character of one byte. For some pages iconv waits for the next byte, because a combining mark could
/// follow. So the converter is reset before each byte and flushed after it.
char32_t CharacterOf(iconv_t converter, std::size_t byte) {
    std::array<char, 1> in{static_cast<char>(byte)};
    std::array<char, 16> out{};
    char* from = in.data();
    std::size_t fromLeft = in.size();
    char* to = out.data();
    std::size_t toLeft = out.size();
    constexpr auto failed = static_cast<std::size_t>(-1);
    constexpr std::size_t oneCharacter = 4;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    const bool converted = iconv(converter, &from, &fromLeft, &to, &toLeft) != failed &&
                           iconv(converter, nullptr, nullptr, &to, &toLeft) != failed;
    if (!converted || out.size() - toLeft != oneCharacter)
        return UndefinedCharacter(byte);
    char32_t character = 0;
    for (std::size_t i = oneCharacter; i-- > 0;)
        character = (character << 8U) | static_cast<unsigned char>(out.at(i));
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
    const std::string name = "CP" + std::to_string(number);
    iconv_t opened = iconv_open("UTF-32LE", name.c_str());
    if (reinterpret_cast<std::intptr_t>(opened) == -1)
        return std::nullopt;
    const Converter converter(opened);
    std::array<char32_t, 256> characters{};
    for (std::size_t b = 0; b < characters.size(); ++b)
        characters[b] = CharacterOf(converter.get(), b);
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
