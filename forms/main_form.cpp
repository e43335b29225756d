#include "forms/main_form.h"

#include "engine/list_settings.h"
#include "engine/numbers.h"
#include "forms/about_form.h"
#include "forms/application_icon.h"
#include "forms/default_button.h"
#include "forms/event_guard.h"
#include "forms/form_look.h"
#include "forms/group_name_editor.h"
#include "forms/options_form.h"
#include "forms/output_form.h"
#include "lists/file_channel.h"
#include "lists/generation.h"
#include "lists/glb_util.h"
#include "settings/settings_file.h"
#include "settings/settings_workflow.h"
#include "ui_main_form.h"

#include <QCloseEvent>
#include <QTimer>

#include <utility>

namespace orvane {

namespace {

constexpr int ClientWidth = 364;
constexpr int ClientHeight = 185;

// The values of `Index` in the handlers of the menus: the place of the item in its menu, lines included.
constexpr std::int16_t LoadSettingsItem = 0;
constexpr std::int16_t SaveSettingsItem = 1;
constexpr std::int16_t ExitItem = 3;
constexpr std::int16_t RandomFileItem = 0;
constexpr std::int16_t OptionItem = 1;
constexpr std::int16_t ContentItem = 0;
constexpr std::int16_t AboutItem = 2;

/// The controls, made before the other members of the window refer to them.
struct Controls : Ui::Form1 {
    explicit Controls(QMainWindow& window) {
        UseFormFont(window);
        setupUi(&window);
    }
};

class MainForm : public QMainWindow, private MainControls {
  public:
    MainForm(Platform& desktop, CommonDialog& CMDialog, CommonDialog& outputDialog);

  protected:
    /// Saves the settings for the next run if SaveExitChk is checked. A close request that arrives while a
    /// handler is running is carried out when the handler has returned.
    void closeEvent(QCloseEvent* event) override;

  private:
    void Form_Load();
    void Form_Unload();
    void nogHsb_Change();
    void SampSizeTxt_Change();
    void mnuFile_Click(std::int16_t Index);
    void mnuView_Click(std::int16_t Index);
    void mnuHelp_Click(std::int16_t Index);

    void SetNogHsb(std::int16_t position) override;
    void SetSampSizeTxt(const std::string& text) override { ui_.SampSizeTxt->SetText(text); }
    void mnuOutput_Click(std::int16_t Index) override;

    void LayOut();
    void ConnectControls();
    void ConnectMenus();
    template <class Handler>
    void OnItems(const QMenu& menu, Handler handler);
    void CheckOutputItem(std::int32_t Index);
    void RefuseSampleSize();
    void ShowOptions();
    [[nodiscard]] std::intptr_t WindowHandle() const { return static_cast<std::intptr_t>(winId()); }

    Platform& desktop_;
    CommonDialog& CMDialog_;
    EventGuard guard_{*this, desktop_.Messages, desktop_.Pointer};
    Controls ui_{*this};
    QTimer opening_;
    bool closeWhenDone_ = false; ///< close when the running handler has returned
    bool unloaded_ = false;

    ListSettings settings_;
    ListResults results_;
    GroupNameEditor groupNames_{settings_, *ui_.GroupNameGrid, *ui_.TempTxt};
    OptionsForm options_{settings_, results_, groupNames_, desktop_};
    OutputForm output_;
    ReportContext context_{settings_, results_, desktop_};
    Generation generation_{context_, options_, CMDialog_, output_, [this] { RefuseSampleSize(); }};
    SettingsFile settingsFile_{settings_, *ui_.GroupNameGrid, *this, desktop_};
    SettingsWorkflow workflow_{settingsFile_, CMDialog_, desktop_};
};

MainForm::MainForm(Platform& desktop, CommonDialog& CMDialog, CommonDialog& outputDialog)
    : desktop_(desktop), CMDialog_(CMDialog), output_(desktop, outputDialog) {
    guard_.WhenIdle([this] {
        if (std::exchange(closeWhenDone_, false))
            close();
    });
    LayOut();
    ConnectControls();
    ConnectMenus();
    new DefaultButton(*ui_.cmdGenerate);
    // Inside the event loop, so that the loop ends even if the window is closed while it opens.
    guard_.On(&opening_, &QTimer::timeout, [this] { Form_Load(); });
    opening_.setSingleShot(true);
    opening_.start(0);
}

void MainForm::LayOut() {
    setWindowIcon(ApplicationIcon());
    const int menuHeight = ui_.menuBar->isNativeMenuBar() ? 0 : ui_.menuBar->sizeHint().height();
    resize(ClientWidth, ClientHeight + menuHeight);
    CentreOnScreen(*this, *this);
    ui_.nogHsb->setFocus();
}

void MainForm::ConnectControls() {
    guard_.On(ui_.nogHsb, &QScrollBar::valueChanged, [this] { nogHsb_Change(); });
    guard_.On(ui_.SampSizeTxt, &QLineEdit::textChanged, [this] { SampSizeTxt_Change(); });
    guard_.On(ui_.TempTxt, &QLineEdit::textChanged, [this] { groupNames_.TempTxt_Change(); });
    guard_.On(ui_.GroupNameGrid, &FlexGridWidget::RowColChange,
              [this] { groupNames_.GroupNameGrid_RowColChange(); });
    guard_.On(ui_.GroupNameGrid, &FlexGridWidget::Click, [this] { groupNames_.GroupNameGrid_Click(); });
    guard_.OnCommand(ui_.cmdGenerate, &QPushButton::clicked, [this] { generation_.cmdGenerate_Click(); });
}

void MainForm::ConnectMenus() {
    OnItems(*ui_.mnu_0, [this](std::int16_t Index) { mnuFile_Click(Index); });
    OnItems(*ui_.mnu_1, [this](std::int16_t Index) { mnuView_Click(Index); });
    guard_.OnCommand(ui_.mnuSequence_0, &QMenu::aboutToShow,
                     [this] { generation_.mnuSequence_Click(OutputItem); });
    guard_.OnCommand(ui_.mnuSequence_2, &QAction::triggered,
                     [this] { generation_.mnuSequence_Click(GenerateItem); });
    OnItems(*ui_.mnuSequence_0, [this](std::int16_t Index) { mnuOutput_Click(Index); });
    // The toolkit has changed the mark of the item, even if its command was not carried out.
    guard_.On(ui_.mnuSequence_0, &QMenu::triggered, [this] { CheckOutputItem(settings_.OutputOption); });
    OnItems(*ui_.mnu_3, [this](std::int16_t Index) { mnuHelp_Click(Index); });
}

template <class Handler>
void MainForm::OnItems(const QMenu& menu, Handler handler) {
    for (std::int16_t Index = 0; const QAction* item : menu.actions()) {
        guard_.OnCommand(item, &QAction::triggered, [handler, Index] { handler(Index); });
        ++Index;
    }
}

void MainForm::Form_Load() {
    show();
    context_.MainWindow = WindowHandle();
    CMDialog_.Flags = CommonDialog::OverwritePrompt;
    groupNames_.NumberGroups(settings_.NumberOfGroups);
    workflow_.AtStart();
}

void MainForm::Form_Unload() {
    if (ui_.SaveExitChk->isChecked())
        workflow_.AtEnd();
}

void MainForm::closeEvent(QCloseEvent* event) {
    if (guard_.IsHandling()) {
        closeWhenDone_ = true;
        return event->ignore();
    }
    if (!std::exchange(unloaded_, true))
        guard_.Handle([this] { Form_Unload(); });
    event->accept();
}

void MainForm::nogHsb_Change() {
    const int groups = ui_.nogHsb->value();
    ui_.nogLbl->setText(QString::number(groups));
    settings_.NumberOfGroups = static_cast<std::int16_t>(groups);
    groupNames_.SetGroups();
}

void MainForm::SampSizeTxt_Change() {
    settings_.SampleSize = SampleSizeOf(ui_.SampSizeTxt->Text());
    ui_.mnuView_1->setEnabled(settings_.SampleSize != 0);
}

/// The toolkit's own bar would use the nearest position for one outside its range.
void MainForm::SetNogHsb(std::int16_t position) {
    const QScrollBar& bar = *ui_.nogHsb;
    if (position < bar.minimum() || position > bar.maximum())
        throw Failure("The number of groups cannot be " + std::to_string(position) + ": it must be from " +
                          std::to_string(bar.minimum()) + " to " + std::to_string(bar.maximum()),
                      failure_number::OutOfRange, "nogHsb");
    ui_.nogHsb->setValue(position);
}

void MainForm::mnuOutput_Click(std::int16_t Index) {
    CheckOutputItem(Index);
    if (Index < ToFile || Index > ToClipboard)
        throw Failure("There is no output channel " + std::to_string(Index), failure_number::OutOfRange,
                      "mnuOutput_Click");
    settings_.OutputOption = Index;
}

/// Checks this item of the submenu alone; none if there is no such item.
void MainForm::CheckOutputItem(std::int32_t Index) {
    const QList<QAction*> items = ui_.mnuSequence_0->actions();
    for (qsizetype item = 0; item < items.size(); ++item)
        items.at(item)->setChecked(item == Index);
}

void MainForm::mnuFile_Click(std::int16_t Index) {
    switch (Index) {
    case LoadSettingsItem:
        return workflow_.LoadSettings();
    case SaveSettingsItem:
        return workflow_.SaveSettingsAs();
    case ExitItem:
        return static_cast<void>(close()); // takes effect when this handler has returned
    }
}

void MainForm::mnuView_Click(std::int16_t Index) {
    switch (Index) {
    case RandomFileItem:
        return DisplayRandomFile(context_, CMDialog_, output_);
    case OptionItem:
        return ShowOptions();
    }
}

void MainForm::ShowOptions() {
    if (settings_.SampleSize <= 0)
        return RefuseSampleSize();
    options_.ShowModal();
    desktop_.Pointer.ShowNormal();
}

/// Says why the sample size cannot be used.
void MainForm::RefuseSampleSize() {
    desktop_.Messages.Show(IsAboveSampleSizes(ui_.SampSizeTxt->Text())
                               ? "the sample size can be at most " + std::to_string(LargestList)
                               : "please specify the sample size");
    ui_.SampSizeTxt->TakeFocus();
}

void MainForm::mnuHelp_Click(std::int16_t Index) {
    switch (Index) {
    case ContentItem:
        return OpenInBrowser(desktop_.BesideProgram("randomization.htm"), WindowHandle(), desktop_.Shell,
                             desktop_.Messages);
    case AboutItem:
        return ShowAboutForm(desktop_, *this);
    }
}

} // namespace

std::unique_ptr<QMainWindow> MakeMainForm(Platform& desktop, CommonDialog& CMDialog,
                                          CommonDialog& outputDialog) {
    return std::make_unique<MainForm>(desktop, CMDialog, outputDialog);
}

} // namespace orvane
