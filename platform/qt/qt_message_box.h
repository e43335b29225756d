// Message boxes of the toolkit.
#pragma once

#include "platform/message_box.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_input_drain.h"

#include <QMessageBox>

#include <string>

namespace orvane {

/// A modal box with the object name "MessageBox". The middle of a text that is too long for the screen is
/// left out. While the program is ending no box is shown; the text is written to the standard error instead.
class QtMessageBox : public MessageBox {
  public:
    QtMessageBox(QtInputDrain& input, const QtEnding& ending) : input_(input), ending_(ending) {}
    void Show(const std::string& text) override;
    void ShowExclamation(const std::string& text, const std::string& title) override;

  private:
    void Run(QMessageBox::Icon icon, const std::string& text, const std::string& title);

    QtInputDrain& input_;
    const QtEnding& ending_;
};

} // namespace orvane
