#include "forms/output_form.h"

#include "forms/event_guard.h"
#include "forms/modal_window.h"
#include "forms/qt_text.h"
#include "platform/failure.h"
#include "ui_output_form.h"

#include <QKeyEvent>

#include <algorithm>
#include <cstddef>
#include <string>

namespace orvane {

namespace {

/// Gathers the lines, since a text box lays itself out anew for each one that it is given. A list has about
/// 100000 lines at most; with millions of them the box would eat up the memory.
class GatheredText : public OutputText {
  public:
    void AppendLine(const std::string& text) override {
        // The box ends a line at a lone line feed too.
        lines_ += 1 + std::count(text.begin(), text.end(), '\n');
        if (lines_ > MostLines)
            throw Failure("The file has too many lines to be shown as a whole", failure_number::TooLarge,
                          "OutputFrm");
        text_.append(text).push_back('\n');
    }
    [[nodiscard]] const std::string& Text() const { return text_; }

  private:
    static constexpr std::ptrdiff_t MostLines = 1 << 18;
    std::string text_;
    std::ptrdiff_t lines_ = 0;
};

/// The window of one opening.
class OutputDialog : public ModalWindow {
  public:
    OutputDialog(OutputDocument& document, Platform& desktop);
    void Form_Load();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void CloseCmd_Click() { close(); }

    OutputDocument& document_;
    EventGuard guard_;
    Ui::OutputFrm ui_{};
};

OutputDialog::OutputDialog(OutputDocument& document, Platform& desktop)
    : ModalWindow(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                  Qt::WindowCloseButtonHint),
      document_(document), guard_(desktop.Messages, desktop.Pointer) {
    ui_.setupUi(this);
    connect(ui_.CloseCmd, &QPushButton::clicked, this,
            [this] { guard_.Handle([this] { CloseCmd_Click(); }); });
    connect(ui_.SaveCmd, &QPushButton::clicked, this,
            [this] { guard_.Handle([this] { document_.SaveCmd_Click(); }); });
    ui_.OutputTxt->setFocus();
}

void OutputDialog::Form_Load() {
    GatheredText text;
    document_.Form_Load(text);
    ui_.OutputTxt->setPlainText(ToQString(text.Text()));
}

/// Esc closes a dialog of the toolkit, not this window.
void OutputDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        event->ignore();
    else
        ModalWindow::keyPressEvent(event);
}

} // namespace

void OutputForm::ShowModal() {
    // Whatever becomes of the window, its temporary file goes.
    const struct Unload {
        OutputDocument& document;
        ~Unload() { document.Form_Unload(); }
    } unload{document_};
    OutputDialog window(document_, desktop_);
    window.Form_Load();
    window.ShowModal();
}

} // namespace orvane
