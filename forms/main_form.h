// The main window of the program.
#pragma once

#include "forms/event_guard.h"
#include "platform/common_dialog.h"
#include "platform/platform.h"

#include <QMainWindow>

#include <cstdint>
#include <functional>
#include <memory>

namespace Ui {
class Form1;
}

namespace orvane {

/// The user enters the number of groups, their names and the sample size here, and reaches all other
/// functions from here. The window owns the list settings, of which there is one object in the program.
class MainForm : public QMainWindow {
    Q_OBJECT

  public:
    /// `CMDialog` is the prompt for lists and settings, `outputDialog` that of the output window.
    MainForm(Platform& desktop, CommonDialog& CMDialog, CommonDialog& outputDialog);
    ~MainForm() override;
    MainForm(const MainForm&) = delete;
    MainForm& operator=(const MainForm&) = delete;

    /// Shows the window and loads the settings of the last run. Reports it if they cannot be read.
    void Open();

  protected:
    /// Saves the settings for the next run if SaveExitChk is checked. A close request that arrives while a
    /// handler is running is carried out when the handler has returned.
    void closeEvent(QCloseEvent* event) override;

  private:
    void Form_Load();
    void Form_Unload();
    void nogHsb_Change();
    void SampSizeTxt_Change();
    void cmdGenerate_Click();
    void mnuFile_Click(std::int16_t Index);
    void mnuView_Click(std::int16_t Index);
    void mnuSequence_Click(std::int16_t Index);
    void mnuOutput_Click(std::int16_t Index);
    void mnuHelp_Click(std::int16_t Index);

    void LayOut();
    void ConnectControls();
    void ConnectMenus();
    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, Handler handler);
    template <class Sender, class Signal, class Handler>
    void OnCommand(Sender* sender, Signal signal, Handler handler);
    void Handle(const std::function<void()>& handler);
    void Command(const std::function<void()>& command);
    void ShowOptions();
    [[nodiscard]] std::intptr_t WindowHandle() const { return static_cast<std::intptr_t>(winId()); }

    struct Parts;

    Platform& desktop_;
    CommonDialog& CMDialog_;
    EventGuard guard_;
    std::unique_ptr<Ui::Form1> ui_;
    std::unique_ptr<Parts> parts_;
    bool closeWhenDone_ = false; ///< close when the running handler has returned
    bool unloaded_ = false;
};

} // namespace orvane
