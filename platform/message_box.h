// Messages that the user has to acknowledge.
#pragma once

#include <string>

namespace orvane {

class MessageBox {
  public:
    virtual ~MessageBox() = default;

    /// Shows `text` (UTF-8, CR LF between lines) with an OK button and no icon under the application's title.
    /// Returns when the user has pressed OK.
    virtual void Show(const std::string& text) = 0;

    /// The same with an exclamation icon and a caption of its own.
    virtual void ShowExclamation(const std::string& text, const std::string& title) = 0;
};

} // namespace orvane
