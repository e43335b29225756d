#include "forms/about_form.h"

#include "forms/application_icon.h"
#include "forms/form_look.h"
#include "forms/system_info.h"
#include "platform/application.h"
#include "ui_about_form.h"

namespace orvane {

namespace {

constexpr int IconPixels = 32;
constexpr QPoint ScreenPlace(156, 129);

} // namespace

AboutForm::AboutForm(Platform& desktop, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowCloseButtonHint),
      desktop_(desktop), guard_(desktop.Messages, desktop.Pointer), ui_(std::make_unique<Ui::frmAbout>()) {
    UseFormFont(*this);
    ui_->setupUi(this);
    setWindowIcon(ApplicationIcon());
    ui_->picIcon->setPixmap(ApplicationIcon().pixmap(IconPixels));
    connect(ui_->cmdOK, &QPushButton::clicked, this, [this] { guard_.Handle([this] { cmdOK_Click(); }); });
    connect(ui_->cmdSysInfo, &QPushButton::clicked, this,
            [this] { guard_.Handle([this] { cmdSysInfo_Click(); }); });
}

AboutForm::~AboutForm() = default;

void AboutForm::ShowModal() {
    Form_Load();
    move(ScreenPlace);
    exec();
}

void AboutForm::Form_Load() {
    const VersionRecord& version = ApplicationVersion;
    const QString title = ApplicationTitle;
    setWindowTitle("About " + title);
    ui_->lblVersion->setText("Version " + QString::number(version.Major) + "." +
                             QString::number(version.Minor) + "." + QString::number(version.Revision));
    ui_->lblTitle->setText(title);
}

void AboutForm::cmdOK_Click() {
    close();
}

void AboutForm::cmdSysInfo_Click() {
    StartSysInfo(desktop_);
}

} // namespace orvane
