// The About box.
#pragma once

#include "forms/event_guard.h"
#include "platform/platform.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

namespace orvane {

/// Each object is built, shown once and destroyed.
class AboutForm : public QDialog {
    Q_OBJECT

  public:
    AboutForm(Platform& desktop, QWidget* owner);
    ~AboutForm() override;
    AboutForm(const AboutForm&) = delete;
    AboutForm& operator=(const AboutForm&) = delete;

    /// Returns when the box has closed.
    void ShowModal();

  private:
    void Form_Load();
    void cmdOK_Click();
    void cmdSysInfo_Click();

    Platform& desktop_;
    EventGuard guard_;
    std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace orvane
