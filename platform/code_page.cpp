#include "platform/code_page.h"

#include "platform/failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>

namespace orvane {

namespace {

/// Replaces a byte that is not part of a valid UTF-8 sequence.
constexpr char32_t ReplacementCharacter = 0xFFFD;

unsigned char Byte(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

std::string Utf8(char32_t character) {
    const auto tail = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80)
        return {static_cast<char>(character)};
    if (character < 0x800)
        return {static_cast<char>(0xC0U | (character >> 6U)), tail(0)};
    if (character < 0x10000)
        return {static_cast<char>(0xE0U | (character >> 12U)), tail(6), tail(0)};
    return {static_cast<char>(0xF0U | (character >> 18U)), tail(12), tail(6), tail(0)};
}

/// What a lead byte of UTF-8 says: its bits of the character, the number of bytes that follow, and the
/// smallest character that is allowed to be written with so many bytes.
struct Lead {
    char32_t bits;
    std::size_t followers;
    char32_t least;
};

Lead LeadOf(unsigned char byte) {
    if (byte < 0x80)
        return {byte, 0, 0};
    if (byte >= 0xC0 && byte < 0xE0)
        return {byte & 0x1FU, 1, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {byte & 0x0FU, 2, 0x800};
    if (byte >= 0xF0 && byte < 0xF8)
        return {byte & 0x07U, 3, 0x10000};
    return {ReplacementCharacter, 0, 0};
}

/// The character at `index`, which moves to the next character. At an invalid sequence: the replacement
/// character, and `index` moves by one byte.
char32_t NextCharacter(std::string_view text, std::size_t& index) {
    const std::size_t start = index++;
    const Lead lead = LeadOf(Byte(text, start));
    if (lead.followers > text.size() - index)
        return ReplacementCharacter;
    char32_t character = lead.bits;
    for (std::size_t i = 0; i < lead.followers; ++i) {
        const unsigned char follower = Byte(text, index + i);
        if ((follower & 0xC0U) != 0x80U)
            return ReplacementCharacter;
        character = (character << 6U) | (follower & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < lead.least || character > 0x10FFFF || surrogate)
        return ReplacementCharacter;
    index += lead.followers;
    return character;
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
    while (index < text.size()) {
        // Most text is ASCII, which is the same in every code page: copied without a look-up.
        const auto run =
            std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(index), text.end(), IsAscii);
        const auto plain = static_cast<std::size_t>(run - text.begin()) - index;
        bytes.append(text.substr(index, plain));
        index += plain;
        if (index == text.size())
            break;
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
    return bytes;
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
