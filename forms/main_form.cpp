#include "forms/main_form.h"

#include "engine/generation.h"
#include "engine/list_settings.h"
#include "engine/numbers.h"
#include "engine/sequence_builder.h"
#include "forms/about_form.h"
#include "forms/application_icon.h"
#include "forms/default_button.h"
#include "forms/form_look.h"
#include "forms/group_name_grid.h"
#include "forms/main_form_controls.h"
#include "forms/options_form.h"
#include "forms/output_form.h"
#include "output/glb_util.h"
#include "output/output_channels.h"
#include "output/report_context.h"
#include "settings/settings_file.h"
#include "settings/settings_workflow.h"
#include "ui_main_form.h"

#include <QCloseEvent>

#include <utility>

namespace orvane {

namespace {

constexpr int ClientWidth = 364;
constexpr int ClientHeight = 185;

// Menu items: the values of `Index` in the handlers of the menus.
constexpr std::int16_t LoadSettingsItem = 0;
constexpr std::int16_t SaveSettingsItem = 1;
constexpr std::int16_t ExitItem = 3;
constexpr std::int16_t RandomFileItem = 0;
constexpr std::int16_t OptionItem = 1;
constexpr std::int16_t ContentItem = 0;
constexpr std::int16_t AboutItem = 2;

} // namespace

/// The objects that do the work of the window, connected to each other and to its controls. Their
/// constructors only store references, and none is used before the window opens. So the order of the members
/// does not matter.
struct MainForm::Parts {
    Ui::Form1& ui;
    EventGuard& guard;
    Platform& desktop;
    CommonDialog& CMDialog;
    CommonDialog& outputDialog;

    ListSettings settings{};
    ListResults results{};
    SampSizeTxtBox sampleSize{*ui.SampSizeTxt, guard};
    TempTxtBox nameBox{*ui.TempTxt, guard};
    LoadedControls controls{*ui.nogHsb, *ui.SampSizeTxt, guard};
    OutputItems outputItems{{ui.mnuOutput_0, ui.mnuOutput_1, ui.mnuOutput_2}};
    GroupNameEditor groupNames{settings, *ui.GroupNameGrid, nameBox};
    SequenceBuilder builder{settings, results, *ui.GroupNameGrid, desktop};
    OptionsForm options{settings, results, *ui.GroupNameGrid, desktop};
    OutputForm output{desktop, outputDialog};
    ReportContext context{settings, results, *ui.GroupNameGrid, builder, desktop};
    ListChannels channels{context, CMDialog, output};
    Generation generation{settings, results, options, channels, sampleSize, desktop};
    SettingsFile settingsFile{settings, *ui.GroupNameGrid, controls, outputItems, desktop};
    SettingsWorkflow workflow{settingsFile, CMDialog, desktop};
};

MainForm::MainForm(Platform& desktop, CommonDialog& CMDialog, CommonDialog& outputDialog)
    : desktop_(desktop), CMDialog_(CMDialog), guard_(desktop.Messages, desktop.Pointer),
      ui_(std::make_unique<Ui::Form1>()) {
    UseFormFont(*this);
    ui_->setupUi(this);
    // NOLINTNEXTLINE(modernize-make-unique): an aggregate takes braces
    parts_.reset(new Parts{*ui_, guard_, desktop, CMDialog, outputDialog});
    LayOut();
    ConnectControls();
    ConnectMenus();
    new DefaultButton(*ui_->cmdGenerate);
}

MainForm::~MainForm() = default;

void MainForm::LayOut() {
    setWindowIcon(ApplicationIcon());
    const int menuHeight = ui_->menuBar->isNativeMenuBar() ? 0 : ui_->menuBar->sizeHint().height();
    resize(ClientWidth, ClientHeight + menuHeight);
    CentreOnScreen(*this, *this);
    ui_->nogHsb->setFocus();
}

void MainForm::ConnectControls() {
    GroupNameEditor& names = parts_->groupNames;
    FlexGridWidget& grid = *ui_->GroupNameGrid;
    On(ui_->nogHsb, &QScrollBar::valueChanged, [this] { nogHsb_Change(); });
    On(ui_->SampSizeTxt, &QLineEdit::textChanged, [this] { SampSizeTxt_Change(); });
    On(ui_->TempTxt, &QLineEdit::textChanged, [&names] { names.TempTxt_Change(); });
    grid.RunUserEventsIn([this](const std::function<void()>& event) { Handle(event); });
    grid.OnRowColChange([&names] { names.GroupNameGrid_RowColChange(); });
    grid.OnClick([&names] { names.GroupNameGrid_Click(); });
    OnCommand(ui_->cmdGenerate, &QPushButton::clicked, [this] { cmdGenerate_Click(); });
}

void MainForm::ConnectMenus() {
    const auto chosen = &QAction::triggered;
    OnCommand(ui_->mnuFile_0, chosen, [this] { mnuFile_Click(LoadSettingsItem); });
    OnCommand(ui_->mnuFile_1, chosen, [this] { mnuFile_Click(SaveSettingsItem); });
    OnCommand(ui_->mnuFile_3, chosen, [this] { mnuFile_Click(ExitItem); });
    OnCommand(ui_->mnuView_0, chosen, [this] { mnuView_Click(RandomFileItem); });
    OnCommand(ui_->mnuView_1, chosen, [this] { mnuView_Click(OptionItem); });
    OnCommand(ui_->mnuSequence_0, &QMenu::aboutToShow, [this] { mnuSequence_Click(OutputItem); });
    OnCommand(ui_->mnuSequence_2, chosen, [this] { mnuSequence_Click(GenerateItem); });
    OnCommand(ui_->mnuOutput_0, chosen, [this] { mnuOutput_Click(ToFile); });
    OnCommand(ui_->mnuOutput_1, chosen, [this] { mnuOutput_Click(ToWindow); });
    OnCommand(ui_->mnuOutput_2, chosen, [this] { mnuOutput_Click(ToClipboard); });
    OnCommand(ui_->mnuHelp_0, chosen, [this] { mnuHelp_Click(ContentItem); });
    OnCommand(ui_->mnuHelp_2, chosen, [this] { mnuHelp_Click(AboutItem); });
}

template <class Sender, class Signal, class Handler>
void MainForm::On(Sender* sender, Signal signal, Handler handler) {
    connect(sender, signal, this, [this, handler] { Handle(handler); });
}

template <class Sender, class Signal, class Handler>
void MainForm::OnCommand(Sender* sender, Signal signal, Handler handler) {
    connect(sender, signal, this, [this, handler] { Command(handler); });
}

/// Runs the handler of an event, then closes the window if a close request arrived meanwhile.
void MainForm::Handle(const std::function<void()>& handler) {
    guard_.Handle(handler);
    if (!guard_.IsHandling() && std::exchange(closeWhenDone_, false))
        close();
}

/// Runs a command unless a handler is running: assistive programs can trigger controls behind a modal window.
void MainForm::Command(const std::function<void()>& command) {
    if (guard_.IsHandling())
        parts_->outputItems.Check(parts_->settings.OutputOption);
    else
        Handle(command);
}

void MainForm::Open() {
    Handle([this] { Form_Load(); });
}

void MainForm::Form_Load() {
    guard_.Calling([this] { show(); });
    parts_->context.MainWindow = WindowHandle();
    CMDialog_.Flags = CommonDialog::OverwritePrompt;
    parts_->groupNames.NumberGroups(parts_->settings.NumberOfGroups);
    parts_->workflow.AtStart();
}

void MainForm::Form_Unload() {
    if (ui_->SaveExitChk->isChecked())
        parts_->workflow.AtEnd();
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
    const int groups = ui_->nogHsb->value();
    ui_->nogLbl->setText(QString::number(groups));
    parts_->settings.NumberOfGroups = static_cast<std::int16_t>(groups);
    parts_->groupNames.SetGroups();
}

void MainForm::SampSizeTxt_Change() {
    parts_->settings.SampleSize = SampleSizeOf(ui_->SampSizeTxt->Text());
    ui_->mnuView_1->setEnabled(parts_->settings.SampleSize != 0);
}

void MainForm::cmdGenerate_Click() {
    parts_->generation.cmdGenerate_Click();
}

void MainForm::mnuFile_Click(std::int16_t Index) {
    switch (Index) {
    case LoadSettingsItem:
        return parts_->workflow.LoadSettings();
    case SaveSettingsItem:
        return parts_->workflow.SaveSettingsAs();
    case ExitItem:
        return static_cast<void>(close()); // takes effect when this handler has returned
    default:
        break;
    }
}

void MainForm::mnuView_Click(std::int16_t Index) {
    switch (Index) {
    case RandomFileItem:
        return parts_->channels.DisplayRandomFile();
    case OptionItem:
        return ShowOptions();
    default:
        break;
    }
}

void MainForm::ShowOptions() {
    if (parts_->settings.SampleSize <= 0)
        return RefuseSampleSize(parts_->sampleSize, desktop_.Messages);
    parts_->options.ShowModal();
    desktop_.Pointer.ShowNormal();
}

void MainForm::mnuSequence_Click(std::int16_t Index) {
    parts_->generation.mnuSequence_Click(Index);
}

void MainForm::mnuOutput_Click(std::int16_t Index) {
    orvane::mnuOutput_Click(Index, parts_->outputItems, parts_->settings);
}

void MainForm::mnuHelp_Click(std::int16_t Index) {
    switch (Index) {
    case ContentItem:
        return OpenInBrowser(desktop_.BesideProgram("randomization.htm"), WindowHandle(), desktop_.Shell,
                             desktop_.Messages);
    case AboutItem:
        return AboutForm(desktop_, this).ShowModal();
    default:
        break;
    }
}

} // namespace orvane
