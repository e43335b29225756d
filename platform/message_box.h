// Messages that the user has to confirm.
#pragma once

#include <string>

namespace orvane {

class MessageBox {
  public:
    virtual ~MessageBox() = default;

    /// Shows `text` (UTF-8, CR LF between lines) in a box with the application's title, an OK button and no
    /// icon. Returns when the user has pressed OK.
    virtual void Show(const std::string& text) = 0;

    /// Like Show, with an exclamation mark icon and the title `title`.
    virtual void ShowExclamation(const std::string& text, const std::string& title) = 0;
};

} // namespace orvane
