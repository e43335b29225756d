#include "forms/about_form.h"

#include "forms/application_icon.h"
#include "forms/modal_window.h"
#include "forms/system_info.h"
#include "platform/application.h"
#include "ui_about_form.h"

namespace orvane {

namespace {

constexpr int IconPixels = 32;
constexpr QPoint ScreenPlace(156, 129);

/// The window itself, built for each opening.
class AboutBox : public ModalWindow {
  public:
    AboutBox(Platform& desktop, QWidget& owner);
    void Form_Load();

  private:
    void cmdOK_Click() { close(); }
    void cmdSysInfo_Click() { StartSysInfo(desktop_); }

    Ui::frmAbout ui_{};
};

AboutBox::AboutBox(Platform& desktop, QWidget& owner)
    : ModalWindow(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                      Qt::WindowCloseButtonHint,
                  desktop, &owner) {
    ui_.setupUi(this);
    setWindowIcon(ApplicationIcon());
    ui_.picIcon->setPixmap(ApplicationIcon().pixmap(IconPixels));
    guard_.OnCommand(ui_.cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
    guard_.OnCommand(ui_.cmdSysInfo, &QPushButton::clicked, [this] { cmdSysInfo_Click(); });
}

void AboutBox::Form_Load() {
    const VersionRecord& version = ApplicationVersion;
    const QString title = ApplicationTitle;
    setWindowTitle("About " + title);
    ui_.lblVersion->setText("Version " + QString::number(version.Major) + "." +
                            QString::number(version.Minor) + "." + QString::number(version.Revision));
    ui_.lblTitle->setText(title);
}

} // namespace

void ShowAboutForm(Platform& desktop, QWidget& owner) {
    AboutBox window(desktop, owner);
    window.Form_Load();
    window.move(ScreenPlace);
    window.ShowModalHere();
}

} // namespace orvane
