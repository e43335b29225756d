#include "forms/options_form.h"

#include "engine/numbers.h"
#include "forms/default_button.h"
#include "forms/line_box.h"
#include "forms/modal_window.h"
#include "forms/step_bar.h"
#include "options/option_properties.h"
#include "options/option_validation.h"
#include "options/options_controls.h"
#include "ui_options_form.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <vector>

namespace orvane {

namespace {

using OptionGroup = std::vector<QRadioButton*>;

struct Tab {
    const char* caption;
    const char* toolTip;
};
constexpr std::array<Tab, 4> Tabs{{{"Blocks", "Set Options for blocks"},
                                   {"Code", "Set Options for code"},
                                   {"Format", "Set Options for format"},
                                   {"Statistics", "Set statistics on generated sequence"}}};

/// Moves a bar without running its handler. Form_Load calls the handler itself, exactly once, whether or not
/// the position has changed.
void MoveQuietly(QScrollBar& bar, int position) {
    const QSignalBlocker quiet(bar);
    bar.setValue(position);
}

/// The window itself, built for each opening.
class OptionsDialog : public ModalWindow, private OptionsControls {
  public:
    OptionsDialog(ListSettings& settings, ListResults& results, const GroupNameEditor& groupNames,
                  Platform& desktop);

    void Form_Load();
    /// Esc and the close button of the frame.
    void reject() override {
        guard_.Run([this] { buttons_.cmdCancel_Click(); });
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void cmdOK_Click();
    void ConnectControls();
    template <class Handler>
    void OnSelected(const OptionGroup& group, Handler handler);
    static void Select(const OptionGroup& group, std::int32_t option);
    void FocusBlockField();
    bool BlkOptTakesKey(QObject& control, QEvent& event);

    void FocusEqBlockSizeTxt() override { Focus(*ui_.EqBlockSizeTxt); }
    void FocusUnEqBlockSizeTxt() override { Focus(*ui_.UnEqBlockSizeTxt); }
    void FocusTxtLevel() override { Focus(*ui_.txtLevel); }
    [[nodiscard]] std::string LevelText() const override { return ui_.txtLevel->Text(); }
    void SelectTab(std::int16_t tab) override { ui_.tbsOptions->setCurrentIndex(tab - 1); }
    [[nodiscard]] bool TableBorderChecked() const override { return ui_.chkTableBorder->isChecked(); }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override {
        return ToInt16(ui_.hsbCellSp->value());
    }
    void Close() override { done(Accepted); }
    static void Focus(LineBox& field);

    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers);
    void tbsOptions_Click() { ui_.picOptions->setCurrentIndex(ui_.tbsOptions->currentIndex()); }
    void BlkOpt_Click(std::int16_t Index);
    void AlphaNumOpt_Click(std::int16_t Index) { settings_.CodeAlphaNum = Index; }
    void SeqRandOpt_Click(std::int16_t Index) { settings_.CodeSeqRandom = Index; }
    void LenHsb_Change();
    void ColHsb_Change();
    void hsbCellSp_Change() { ui_.lblCellSp->setNum(ui_.hsbCellSp->value()); }
    void chkPerformRuns_Click();
    void EqBlockSizeTxt_Change() { settings_.prEqBlockSize = ui_.EqBlockSizeTxt->Text(); }
    void UnEqBlockSizeTxt_Change() { settings_.prUnEqBlockSize = ui_.UnEqBlockSizeTxt->Text(); }
    void txtLevel_Change() { settings_.SigLevel = LevelOf(ui_.txtLevel->Text()); }

    ListSettings& settings_;
    const GroupNameEditor& groupNames_;
    Ui::frmOptions ui_{};
    OptionValidation buttons_;
    OptionGroup BlkOpt_;
    OptionGroup AlphaNumOpt_;
    OptionGroup SeqRandOpt_;
    bool Loading_{}; ///< Form_Load is setting the controls
};

OptionsDialog::OptionsDialog(ListSettings& settings, ListResults& results, const GroupNameEditor& groupNames,
                             Platform& desktop)
    : ModalWindow(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                      Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint,
                  desktop),
      settings_(settings), groupNames_(groupNames), buttons_(settings, results, *this, desktop) {
    ui_.setupUi(this);
    for (const Tab& tab : Tabs)
        ui_.tbsOptions->setTabToolTip(ui_.tbsOptions->addTab(tab.caption), tab.toolTip);
    BlkOpt_ = {ui_.BlkOpt_0, ui_.BlkOpt_1, ui_.BlkOpt_2, ui_.BlkOpt_3};
    AlphaNumOpt_ = {ui_.AlphaNumOpt_0, ui_.AlphaNumOpt_1, ui_.AlphaNumOpt_2};
    SeqRandOpt_ = {ui_.SeqRandOpt_0, ui_.SeqRandOpt_1};
    ConnectControls();
    // The window handles keys before its controls do.
    installEventFilter(this);
    for (QWidget* control : findChildren<QWidget*>())
        control->installEventFilter(this);
    new DefaultButton(*ui_.cmdOK);
    ui_.tbsOptions->setFocus();
}

void OptionsDialog::ConnectControls() {
    guard_.On(ui_.tbsOptions, &QTabBar::currentChanged, [this] { tbsOptions_Click(); });
    OnSelected(BlkOpt_, [this](std::int16_t Index) { BlkOpt_Click(Index); });
    guard_.On(ui_.EqBlockSizeTxt, &QLineEdit::textChanged, [this] { EqBlockSizeTxt_Change(); });
    guard_.On(ui_.UnEqBlockSizeTxt, &QLineEdit::textChanged, [this] { UnEqBlockSizeTxt_Change(); });
    OnSelected(AlphaNumOpt_, [this](std::int16_t Index) { AlphaNumOpt_Click(Index); });
    OnSelected(SeqRandOpt_, [this](std::int16_t Index) { SeqRandOpt_Click(Index); });
    guard_.On(ui_.LenHsb, &QScrollBar::valueChanged, [this] { LenHsb_Change(); });
    guard_.On(ui_.ColHsb, &QScrollBar::valueChanged, [this] { ColHsb_Change(); });
    guard_.On(ui_.hsbCellSp, &QScrollBar::valueChanged, [this] { hsbCellSp_Change(); });
    guard_.On(ui_.chkPerformRuns, &QCheckBox::toggled, [this] { chkPerformRuns_Click(); });
    guard_.On(ui_.txtLevel, &QLineEdit::textChanged, [this] { txtLevel_Change(); });
    guard_.OnCommand(ui_.cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
    guard_.OnCommand(ui_.cmdCancel, &QPushButton::clicked, [this] { buttons_.cmdCancel_Click(); });
    guard_.OnCommand(ui_.cmdApply, &QPushButton::clicked, [this] { buttons_.cmdApply_Click(); });
}

template <class Handler>
void OptionsDialog::OnSelected(const OptionGroup& group, Handler handler) {
    for (std::int16_t Index = 0; QRadioButton * option : group) {
        connect(option, &QRadioButton::toggled, this, [this, handler, Index](bool selected) {
            if (selected)
                guard_.Handle([&] { handler(Index); });
        });
        ++Index;
    }
}

/// Selects an option. As after a click, the Tab key then stops only at the selected option.
void OptionsDialog::Select(const OptionGroup& group, std::int32_t option) {
    QRadioButton* selected = group.at(static_cast<std::size_t>(option));
    for (QRadioButton* button : group)
        button->setFocusPolicy(button == selected ? Qt::StrongFocus : Qt::ClickFocus);
    selected->setChecked(true);
}

void OptionsDialog::Form_Load() {
    Loading_ = true;
    ui_.txtLevel->SetText(SevenDigits(settings_.SigLevel));
    txtLevel_Change(); // also when the text has not changed
    buttons_.TakeSnapshot();
    BringOptionsIntoRange(settings_);
    ui_.chkPerformRuns->setChecked(settings_.PerformRuns);
    Select(AlphaNumOpt_, settings_.CodeAlphaNum);
    Select(SeqRandOpt_, settings_.CodeSeqRandom);
    Select(BlkOpt_, settings_.prBlockOption);
    {
        const QSignalBlocker quiet(ui_.LenHsb); // its handler would overwrite CodeLength
        ui_.LenHsb->setMinimum(LowestCodeLength(settings_.SampleSize));
    }
    MoveQuietly(*ui_.LenHsb, settings_.CodeLength);
    LenHsb_Change();
    ui_.EqBlockSizeTxt->SetText(std::string(settings_.prEqBlockSize));
    ui_.UnEqBlockSizeTxt->SetText(std::string(settings_.prUnEqBlockSize));
    Loading_ = false;
    MoveQuietly(*ui_.ColHsb, settings_.Columns);
    ColHsb_Change();
    ui_.chkTableBorder->setChecked(settings_.TableBorder);
    MoveQuietly(*ui_.hsbCellSp, settings_.CellSpacing);
    hsbCellSp_Change();
    desktop_.Pointer.ShowNormal();
}

bool OptionsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return ModalWindow::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    bool taken{};
    guard_.Handle(
        [&] { taken = Form_KeyDown(key->key(), key->modifiers()) || BlkOptTakesKey(*watched, *event); });
    return taken;
}

/// Passes a key to a block option. An arrow key selects the next option and gives it the focus, so that the
/// focus must then be moved to the option's field. Returns whether `control` is a block option.
bool OptionsDialog::BlkOptTakesKey(QObject& control, QEvent& event) {
    if (std::find(BlkOpt_.begin(), BlkOpt_.end(), &control) == BlkOpt_.end())
        return false;
    const std::int32_t before = settings_.prBlockOption;
    control.event(&event);
    if (settings_.prBlockOption != before)
        FocusBlockField();
    return true;
}

/// Returns whether the key has been handled and must not be passed on.
bool OptionsDialog::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_Tab || modifiers != Qt::ControlModifier)
        return false;
    const int next = (ui_.tbsOptions->currentIndex() + 1) % ui_.tbsOptions->count();
    ui_.tbsOptions->setCurrentIndex(next);
    return true;
}

void OptionsDialog::cmdOK_Click() {
    settings_.GroupNames = groupNames_.Names();
    buttons_.cmdOK_Click();
}

void OptionsDialog::BlkOpt_Click(std::int16_t Index) {
    settings_.prBlockOption = Index;
    ui_.EqBlockSizeTxt->setEnabled(Index == EqualSize);
    ui_.UnEqBlockSizeTxt->setEnabled(Index == RandomSizesOf);
    if (!Loading_)
        FocusBlockField();
}

/// Does not move the focus if the selected option has no field.
void OptionsDialog::FocusBlockField() {
    if (settings_.prBlockOption == EqualSize)
        FocusEqBlockSizeTxt();
    else if (settings_.prBlockOption == RandomSizesOf)
        FocusUnEqBlockSizeTxt();
}

void OptionsDialog::Focus(LineBox& field) {
    if (field.isVisible() && field.isEnabled())
        field.TakeFocus();
}

void OptionsDialog::LenHsb_Change() {
    ui_.LenLbl->setNum(ui_.LenHsb->value());
    settings_.CodeLength = ToInt16(ui_.LenHsb->value());
}

void OptionsDialog::ColHsb_Change() {
    ui_.ColLbl->setNum(ui_.ColHsb->value());
    settings_.Columns = ToInt16(ui_.ColHsb->value());
}

void OptionsDialog::chkPerformRuns_Click() {
    if (!Loading_)
        settings_.PerformRuns = !settings_.PerformRuns;
}

} // namespace

void OptionsForm::ShowModal() {
    OptionsDialog window(settings_, results_, groupNames_, desktop_);
    window.Form_Load();
    window.ShowModal();
}

} // namespace orvane
