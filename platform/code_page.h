// The 8-bit code page in which text leaves the program. Inside, text is UTF-8.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// What becomes of a character that the page cannot hold.
enum class Unmappable {
    Fail,             ///< a Failure that names the character and the page
    QuestionMark,     ///< "?"
    NumericReference, ///< "&#8805;", for web pages
};

class CodePage {
  public:
    /// `name` for messages, such as "Windows-1252"; `characters[b]` the character of byte b, no two
    /// alike, so that every byte makes the round trip. A byte that the page leaves undefined stands for the
    /// control character of the same number, or, from A0 on, where there is none, for a private character.
    CodePage(std::string name, const std::array<char32_t, 256>& characters);

    [[nodiscard]] const std::string& Name() const { return name_; }

    /// `text` in bytes of the page, one a character.
    [[nodiscard]] std::string Encode(std::string_view text, Unmappable unmappable) const;

    /// The characters of `text` that the page cannot hold, each once, as they are named in messages.
    [[nodiscard]] std::vector<std::string> CharactersNotHeld(std::string_view text) const;

    /// The text of `bytes`, one character a byte.
    [[nodiscard]] std::string Decode(std::string_view bytes) const;

  private:
    std::string name_;
    std::array<std::string, 256> texts_;
    std::map<char32_t, char> bytes_;
};

} // namespace orvane
