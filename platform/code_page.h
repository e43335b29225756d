// The 8-bit code page of files and of the clipboard. Inside the program, text is UTF-8.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// What Encode does with a character that the page cannot hold.
enum class Unmappable {
    Fail,             ///< throw a Failure that names the character and the page
    QuestionMark,     ///< write "?"
    NumericReference, ///< write "&#8805;", for web pages
};

class CodePage {
  public:
    /// `name` is used in messages, such as "Windows-1252"; characters[b] is the character of byte b. A byte
    /// that the page leaves undefined stands for the control character with its number or, from A0 on, where
    /// no control characters are, for a character of the private use area.
    /// Requires: no two characters are equal, so that decoding and encoding again gives the same bytes.
    CodePage(std::string name, const std::array<char32_t, 256>& characters);

    [[nodiscard]] const std::string& Name() const { return name_; }

    /// `text` as bytes of the page, one byte for each character.
    [[nodiscard]] std::string Encode(std::string_view text, Unmappable unmappable) const;

    /// The characters of `text` that the page cannot hold, each once, in the form used in messages.
    [[nodiscard]] std::vector<std::string> CharactersNotHeld(std::string_view text) const;

    /// The text of `bytes`, one character for each byte.
    [[nodiscard]] std::string Decode(std::string_view bytes) const;

  private:
    std::string name_;
    std::array<std::string, 256> texts_;
    std::map<char32_t, char> bytes_;
};

} // namespace orvane
