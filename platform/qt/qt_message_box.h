// Message boxes of the toolkit.
#pragma once

#include "platform/message_box.h"
#include "platform/qt/qt_input_drain.h"

#include <string>

namespace orvane {

/// The box in front of everything else; its object name is "MessageBox". A text too long for a screen loses
/// its middle.
class QtMessageBox : public MessageBox {
  public:
    explicit QtMessageBox(QtInputDrain& input) : input_(input) {}
    void Show(const std::string& text) override;
    void ShowExclamation(const std::string& text, const std::string& title) override;

  private:
    QtInputDrain& input_;
};

} // namespace orvane
