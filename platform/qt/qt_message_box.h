// Message boxes of the toolkit.
#pragma once

#include "platform/message_box.h"
#include "platform/qt/qt_ending.h"
#include "platform/qt/qt_input_drain.h"

#include <QMessageBox>

#include <string>

namespace orvane {

/// The box in front of everything else; its object name is "MessageBox". A text too long for a screen loses
/// its middle. While the program is ending no box waits for an answer: its text goes to the standard error.
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
