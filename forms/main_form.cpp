#include "forms/main_form.h"

#include "engine/generation.h"
#include "engine/list_settings.h"
#include "engine/numbers.h"
#include "engine/sequence_builder.h"
#include "forms/about_form.h"
#include "forms/application_icon.h"
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
#include <QKeyEvent>
#include <QScreen>

namespace orvane {

namespace {

constexpr int FontPixels = 11;
constexpr int ClientWidth = 364;
constexpr int ClientHeight = 185;

} // namespace

/// The routines behind the window, joined to each other and to its controls.
struct MainForm::Parts {
    Parts(Ui::Form1& ui, EventGuard& guard, Platform& desktop, CommonDialog& CMDialog,
          CommonDialog& outputDialog)
        : sampleSize(*ui.SampSizeTxt, guard), nameBox(*ui.TempTxt, guard),
          controls(*ui.nogHsb, *ui.SampSizeTxt, guard),
          outputItems({ui.mnuOutput_0, ui.mnuOutput_1, ui.mnuOutput_2}),
          groupNames(settings, *ui.GroupNameGrid, nameBox),
          builder(settings, results, *ui.GroupNameGrid, desktop.Random, desktop.Clock, desktop.Messages),
          options(settings, results, *ui.GroupNameGrid, desktop),
          output(desktop, outputDialog), context{settings, results, *ui.GroupNameGrid, builder, desktop},
          channels(context, CMDialog, output),
          generation(settings, results, options, channels, sampleSize, desktop.Messages, desktop.Pointer,
                     desktop.Random, desktop.Clock),
          settingsFile(settings, *ui.GroupNameGrid, controls, outputItems, desktop),
          workflow(settingsFile, CMDialog, desktop) {}

    ListSettings settings;
    ListResults results;
    SampSizeTxtBox sampleSize;
    TempTxtBox nameBox;
    LoadedControls controls;
    OutputItems outputItems;
    GroupNameEditor groupNames;
    SequenceBuilder builder;
    OptionsForm options;
    OutputForm output;
    ReportContext context;
    ListChannels channels;
    Generation generation;
    SettingsFile settingsFile;
    SettingsWorkflow workflow;
};

MainForm::MainForm(Platform& desktop, CommonDialog& CMDialog, CommonDialog& outputDialog)
    : desktop_(desktop), CMDialog_(CMDialog), guard_(desktop.Messages, desktop.Pointer),
      ui_(std::make_unique<Ui::Form1>()) {
    // Before there are controls, so that none loads the toolkit's own size of the font first.
    QFont small = font();
    small.setPixelSize(FontPixels);
    setFont(small);
    ui_->setupUi(this);
    parts_ = std::make_unique<Parts>(*ui_, guard_, desktop, CMDialog, outputDialog);
    LayOut();
    ConnectControls();
    ConnectGroupNames();
    ConnectMenus();
}

MainForm::~MainForm() = default;

void MainForm::LayOut() {
    setWindowIcon(ApplicationIcon());
    const int menuHeight = ui_->menuBar->isNativeMenuBar() ? 0 : ui_->menuBar->sizeHint().height();
    resize(ClientWidth, ClientHeight + menuHeight);
    move(screen()->availableGeometry().center() - rect().center());
    ui_->nogHsb->setFocus();
}

void MainForm::ConnectControls() {
    connect(ui_->nogHsb, &QScrollBar::valueChanged, this,
            [this] { guard_.Handle([this] { nogHsb_Change(); }); });
    connect(ui_->SampSizeTxt, &QLineEdit::textChanged, this,
            [this] { guard_.Handle([this] { SampSizeTxt_Change(); }); });
    ui_->SampSizeTxt->OnGotFocus([this] { guard_.Handle([this] { SampSizeTxt_GotFocus(); }); });
    connect(ui_->cmdGenerate, &QPushButton::clicked, this,
            [this] { Command([this] { cmdGenerate_Click(); }); });
}

void MainForm::ConnectGroupNames() {
    GroupNameEditor& names = parts_->groupNames;
    FlexGridWidget& grid = *ui_->GroupNameGrid;
    grid.RunUserEventsIn([this](const std::function<void()>& event) { guard_.Handle(event); });
    grid.OnRowColChange([&names] { names.GroupNameGrid_RowColChange(); });
    grid.OnClick([&names] { names.GroupNameGrid_Click(); });
    connect(ui_->TempTxt, &QLineEdit::textChanged, this,
            [this, &names] { guard_.Handle([&names] { names.TempTxt_Change(); }); });
    ui_->TempTxt->OnGotFocus([this, &names] { guard_.Handle([&names] { names.TempTxt_GotFocus(); }); });
}

/// Runs a command, unless one is at work: an assistive program reaches also what a window in front blocks.
void MainForm::Command(const std::function<void()>& command) {
    if (guard_.IsHandling())
        parts_->outputItems.Check(parts_->settings.OutputOption);
    else
        guard_.Handle(command);
}

void MainForm::ConnectMenus() {
    const auto connectItem = [this](QAction* item, void (MainForm::*handler)(std::int16_t),
                                    std::int16_t Index) {
        connect(item, &QAction::triggered, this,
                [this, handler, Index] { Command([&] { (this->*handler)(Index); }); });
    };
    connectItem(ui_->mnuFile_0, &MainForm::mnuFile_Click, 0);
    connectItem(ui_->mnuFile_1, &MainForm::mnuFile_Click, 1);
    connectItem(ui_->mnuFile_3, &MainForm::mnuFile_Click, 3);
    connectItem(ui_->mnuView_0, &MainForm::mnuView_Click, 0);
    connectItem(ui_->mnuView_1, &MainForm::mnuView_Click, 1);
    connectItem(ui_->mnuSequence_2, &MainForm::mnuSequence_Click, 2);
    connectItem(ui_->mnuOutput_0, &MainForm::mnuOutput_Click, ToFile);
    connectItem(ui_->mnuOutput_1, &MainForm::mnuOutput_Click, ToWindow);
    connectItem(ui_->mnuOutput_2, &MainForm::mnuOutput_Click, ToClipboard);
    connectItem(ui_->mnuHelp_0, &MainForm::mnuHelp_Click, 0);
    connectItem(ui_->mnuHelp_2, &MainForm::mnuHelp_Click, 2);
}

void MainForm::Open() {
    guard_.Handle([this] { Form_Load(); });
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
    if (guard_.IsHandling() && !exiting_)
        return event->ignore();
    if (!std::exchange(unloaded_, true))
        guard_.Handle([this] { Form_Unload(); });
    event->accept();
}

/// A default button works by itself in dialogs alone. The controls hand Enter on to their window.
void MainForm::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || (event->modifiers() & ~Qt::KeypadModifier) != 0)
        return QMainWindow::keyPressEvent(event);
    if (!event->isAutoRepeat())
        ui_->cmdGenerate->click();
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

void MainForm::SampSizeTxt_GotFocus() {
    ui_->SampSizeTxt->SelectWholeText();
}

void MainForm::cmdGenerate_Click() {
    parts_->generation.cmdGenerate_Click();
}

void MainForm::mnuFile_Click(std::int16_t Index) {
    switch (Index) {
    case 0:
        return parts_->workflow.LoadSettings();
    case 1:
        return parts_->workflow.SaveSettingsAs();
    case 3:
        exiting_ = true;
        return guard_.Calling([this] { close(); });
    default:
        break;
    }
}

void MainForm::mnuView_Click(std::int16_t Index) {
    switch (Index) {
    case 0:
        return parts_->channels.DisplayRandomFile();
    case 1:
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
    case 0:
        return OpenInBrowser(desktop_.BesideProgram("randomization.htm"), WindowHandle(), desktop_.Shell,
                             desktop_.Messages);
    case 2:
        return AboutForm(desktop_, this).ShowModal();
    default:
        break;
    }
}

} // namespace orvane
