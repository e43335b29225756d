#include "validation/html_text.h"

#include <glib.h>

#include <memory>

namespace orvane::validation {

std::string Escaped(std::string_view text) {
    const std::unique_ptr<char, decltype(&g_free)> valid(
        g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())), g_free);
    std::string escaped;
    for (const char* c = valid.get(); *c != '\0'; ++c) {
        const auto byte = static_cast<unsigned char>(*c);
        if (*c == '&')
            escaped += "&amp;";
        else if (*c == '<')
            escaped += "&lt;";
        else if (*c == '>')
            escaped += "&gt;";
        else if (*c == '"')
            escaped += "&quot;";
        else if ((byte < 0x20 && *c != '\n' && *c != '\t') || byte == 0x7F)
            escaped += '?';
        else
            escaped += *c;
    }
    return escaped;
}

} // namespace orvane::validation
