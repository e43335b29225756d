#include "forms/output_form.h"

#include "forms/event_guard.h"
#include "forms/modal_window.h"
#include "forms/qt_text.h"
#include "ui_output_form.h"

#include <QKeyEvent>
#include <QTextDocument>
#include <QTextOption>

#include <string>

namespace orvane {

namespace {

/// Collects the lines, because a text box recomputes its layout for each line added.
class GatheredText : public TextBox {
  public:
    void AppendLine(const std::string& text) override { text_.append(text).push_back('\n'); }
    [[nodiscard]] const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

/// The window itself, built for each opening.
class ListWindow : public ModalWindow {
  public:
    ListWindow(ShownFile& file, Platform& desktop);
    void Form_Load();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void CloseCmd_Click() { close(); }
    void SaveCmd_Click() { file_.SaveAs(); }

    ShownFile& file_;
    EventGuard guard_;
    Ui::OutputFrm ui_{};
};

ListWindow::ListWindow(ShownFile& file, Platform& desktop)
    : ModalWindow(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                  Qt::WindowCloseButtonHint),
      file_(file), guard_(desktop.Messages, desktop.Pointer) {
    ui_.setupUi(this);
    connect(ui_.CloseCmd, &QPushButton::clicked, this,
            [this] { guard_.Handle([this] { CloseCmd_Click(); }); });
    connect(ui_.SaveCmd, &QPushButton::clicked, this, [this] { guard_.Handle([this] { SaveCmd_Click(); }); });
    // The columns of a list stay in order also with names that are written from right to left.
    QTextOption leftToRight = ui_.OutputTxt->document()->defaultTextOption();
    leftToRight.setTextDirection(Qt::LeftToRight);
    ui_.OutputTxt->document()->setDefaultTextOption(leftToRight);
    ui_.OutputTxt->setFocus();
}

void ListWindow::Form_Load() {
    GatheredText text;
    file_.ReadInto(text);
    ui_.OutputTxt->setPlainText(ToQString(text.Text()));
}

/// Esc does not close this window, unlike the toolkit's other dialogs.
void ListWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        event->ignore();
    else
        ModalWindow::keyPressEvent(event);
}

} // namespace

void OutputForm::ShowModal() {
    // Deletes the temporary file also when an exception is thrown.
    const struct Unload {
        ShownFile& file;
        ~Unload() { file.DeleteIfTemporary(); }
    } unload{file_};
    ListWindow window(file_, desktop_);
    window.Form_Load();
    window.ShowModal();
}

} // namespace orvane
