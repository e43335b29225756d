#include "platform/code_page.h"

#include "platform/failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <locale>
#include <set>
#include <utility>

namespace orvane {

namespace {

/// Replaces a byte that is not part of a valid UTF-8 sequence.
constexpr char32_t ReplacementCharacter = 0xFFFD;

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

/// Converts between UTF-8 and characters. The classic locale has it whatever the desktop's locale is.
using Utf8Facet = std::codecvt<char32_t, char8_t, std::mbstate_t>;
const Utf8Facet& Converter() {
    return std::use_facet<Utf8Facet>(std::locale::classic());
}

std::string Utf8(char32_t character) {
    std::array<char8_t, 4> bytes{};
    std::mbstate_t state{};
    const char32_t* read = nullptr;
    char8_t* end = nullptr;
    Converter().out(state, &character, &character + 1, read, bytes.data(), bytes.data() + bytes.size(), end);
    return {bytes.data(), end};
}

/// The character at `index`, which moves to the next character. At an invalid sequence: the replacement
/// character, and `index` moves by one byte.
char32_t NextCharacter(std::string_view text, std::size_t& index) {
    std::array<char8_t, 4> bytes{};
    const std::string_view next = text.substr(index, bytes.size());
    std::transform(next.begin(), next.end(), bytes.begin(), [](char c) { return static_cast<char8_t>(c); });
    const char8_t* const end = bytes.data() + next.size();
    std::mbstate_t state{};
    const char8_t* read = nullptr;
    char32_t character = ReplacementCharacter;
    char32_t* written = nullptr;
    Converter().in(state, bytes.data(), end, read, &character, &character + 1, written);
    // The converter lets surrogates pass, which are no characters.
    const bool isRead = written != &character && (character < 0xD800 || character > 0xDFFF);
    index += isRead ? static_cast<std::size_t>(read - bytes.data()) : 1;
    return isRead ? character : ReplacementCharacter;
}

/// "U+2265", with four digits or more.
std::string CodePoint(char32_t character) {
    std::string digits;
    for (auto rest = static_cast<std::uint32_t>(character); rest != 0 || digits.size() < 4; rest >>= 4U)
        digits.insert(digits.begin(), "0123456789ABCDEF"[rest & 0xFU]);
    return "U+" + digits;
}

/// The character in quotes and its code point, for messages.
std::string Named(char32_t character) {
    return "\"" + Utf8(character) + "\" (" + CodePoint(character) + ")";
}

} // namespace

CodePage::CodePage(std::string name, const std::array<char32_t, 256>& characters) : name_(std::move(name)) {
    for (std::size_t b = 0; b < characters.size(); ++b) {
        texts_[b] = Utf8(characters[b]);
        bytes_.emplace(characters[b], static_cast<char>(b));
    }
}

std::string CodePage::Encode(std::string_view text, Unmappable unmappable) const {
    std::string bytes;
    bytes.reserve(text.size());
    std::size_t index = 0;
    for (;;) {
        // Most text is ASCII, which is the same in every code page: copied without a look-up.
        const auto run =
            std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(index), text.end(), IsAscii);
        const auto plain = static_cast<std::size_t>(run - text.begin()) - index;
        bytes.append(text.substr(index, plain));
        index += plain;
        if (index == text.size())
            return bytes;
        const char32_t character = NextCharacter(text, index);
        if (const auto found = bytes_.find(character); found != bytes_.end())
            bytes += found->second;
        else if (unmappable == Unmappable::NumericReference)
            bytes += "&#" + std::to_string(static_cast<std::uint32_t>(character)) + ";";
        else if (unmappable == Unmappable::QuestionMark)
            bytes += '?';
        else
            throw Failure("The character " + Named(character) + " is not in the code page " + name_,
                          failure_number::UnmappableCharacter, "CodePage");
    }
}

std::vector<std::string> CodePage::CharactersNotHeld(std::string_view text) const {
    std::vector<std::string> named;
    std::set<char32_t> seen;
    for (std::size_t index = 0; index < text.size();) {
        const char32_t character = NextCharacter(text, index);
        if (!bytes_.contains(character) && seen.insert(character).second)
            named.push_back(Named(character));
    }
    return named;
}

std::string CodePage::Decode(std::string_view bytes) const {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += texts_[static_cast<unsigned char>(byte)];
    return text;
}

} // namespace orvane
