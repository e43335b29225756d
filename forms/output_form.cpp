#include "forms/output_form.h"

#include "forms/modal_window.h"
#include "forms/qt_text.h"
#include "ui_output_form.h"

#include <QKeyEvent>
#include <QTextDocument>
#include <QTextOption>

namespace orvane {

namespace {

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
    Ui::OutputFrm ui_{};
};

ListWindow::ListWindow(ShownFile& file, Platform& desktop)
    : ModalWindow(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                      Qt::WindowCloseButtonHint,
                  desktop),
      file_(file) {
    ui_.setupUi(this);
    guard_.OnCommand(ui_.CloseCmd, &QPushButton::clicked, [this] { CloseCmd_Click(); });
    guard_.OnCommand(ui_.SaveCmd, &QPushButton::clicked, [this] { SaveCmd_Click(); });
    // The columns of a list stay in order also with names that are written from right to left.
    QTextOption leftToRight = ui_.OutputTxt->document()->defaultTextOption();
    leftToRight.setTextDirection(Qt::LeftToRight);
    ui_.OutputTxt->document()->setDefaultTextOption(leftToRight);
    ui_.OutputTxt->setFocus();
}

void ListWindow::Form_Load() {
    ui_.OutputTxt->setPlainText(ToQString(file_.Read()));
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
