#include "forms/options_form.h"

#include "engine/numbers.h"
#include "forms/event_guard.h"
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
#include <exception>
#include <string>
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

/// The window of one opening.
class OptionsDialog : public ModalWindow, private OptionsControls {
  public:
    OptionsDialog(ListSettings& settings, ListResults& results, const MSFlexGrid& groupNames,
                  Platform& desktop);

    void Open();
    /// Esc and the frame.
    void reject() override { Press(&OptionValidation::cmdCancel_Click); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using IndexedHandler = void (OptionsDialog::*)(std::int16_t Index);

    void ConnectBlocks();
    void ConnectCode();
    void ConnectOthers();
    template <class Sender, class Signal>
    void On(Sender* sender, Signal signal, void (OptionsDialog::*handler)());
    void OnSelected(const OptionGroup& group, IndexedHandler handler);
    void OnGotFocus(LineBox& field, void (OptionsDialog::*handler)());

    void Press(void (OptionValidation::*button)());
    void Select(const OptionGroup& group, std::int32_t option);
    void MoveBar(QScrollBar& bar, int position, void (OptionsDialog::*handler)());
    void SetText(LineBox& field, const std::string& text);
    void Focus(LineBox& field);
    void FocusBlockField();
    bool BlkOptTakesKey(QObject& control, QEvent& event);

    void Form_Load();
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
    void EqBlockSizeTxt_GotFocus() { ui_.EqBlockSizeTxt->SelectWholeText(); }
    void UnEqBlockSizeTxt_GotFocus() { ui_.UnEqBlockSizeTxt->SelectWholeText(); }
    void txtLevel_GotFocus() { ui_.txtLevel->SelectWholeText(); }

    void FocusEqBlockSizeTxt() override { Focus(*ui_.EqBlockSizeTxt); }
    void FocusUnEqBlockSizeTxt() override { Focus(*ui_.UnEqBlockSizeTxt); }
    void FocusTxtLevel() override { Focus(*ui_.txtLevel); }
    [[nodiscard]] std::string LevelText() const override { return ui_.txtLevel->Text(); }
    void SelectTab(std::int16_t tab) override;
    [[nodiscard]] bool TableBorderChecked() const override { return ui_.chkTableBorder->isChecked(); }
    [[nodiscard]] std::int16_t CellSpacingPosition() const override {
        return ToInt16(ui_.hsbCellSp->value());
    }
    void Close() override { done(Accepted); }

    ListSettings& settings_;
    MousePointer& pointer_;
    EventGuard guard_;
    OptionValidation validation_;
    Ui::frmOptions ui_{};
    OptionGroup BlkOpt_;
    OptionGroup AlphaNumOpt_;
    OptionGroup SeqRandOpt_;
    bool Loading_ = false; ///< the opening itself moves the controls
};

OptionsDialog::OptionsDialog(ListSettings& settings, ListResults& results, const MSFlexGrid& groupNames,
                             Platform& desktop)
    : ModalWindow(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                  Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint),
      settings_(settings), pointer_(desktop.Pointer), guard_(desktop.Messages, desktop.Pointer),
      validation_(settings, results, groupNames, *this, desktop.Messages, desktop.Pointer, desktop.Random,
                  desktop.Clock) {
    ui_.setupUi(this);
    for (const Tab& tab : Tabs)
        ui_.tbsOptions->setTabToolTip(ui_.tbsOptions->addTab(tab.caption), tab.toolTip);
    BlkOpt_ = {ui_.BlkOpt_0, ui_.BlkOpt_1, ui_.BlkOpt_2, ui_.BlkOpt_3};
    AlphaNumOpt_ = {ui_.AlphaNumOpt_0, ui_.AlphaNumOpt_1, ui_.AlphaNumOpt_2};
    SeqRandOpt_ = {ui_.SeqRandOpt_0, ui_.SeqRandOpt_1};
    ConnectBlocks();
    ConnectCode();
    ConnectOthers();
    // The window sees keys before its controls.
    installEventFilter(this);
    for (QWidget* control : findChildren<QWidget*>())
        control->installEventFilter(this);
    ui_.tbsOptions->setFocus();
}

void OptionsDialog::ConnectBlocks() {
    OnSelected(BlkOpt_, &OptionsDialog::BlkOpt_Click);
    On(ui_.EqBlockSizeTxt, &QLineEdit::textChanged, &OptionsDialog::EqBlockSizeTxt_Change);
    On(ui_.UnEqBlockSizeTxt, &QLineEdit::textChanged, &OptionsDialog::UnEqBlockSizeTxt_Change);
    OnGotFocus(*ui_.EqBlockSizeTxt, &OptionsDialog::EqBlockSizeTxt_GotFocus);
    OnGotFocus(*ui_.UnEqBlockSizeTxt, &OptionsDialog::UnEqBlockSizeTxt_GotFocus);
}

void OptionsDialog::ConnectCode() {
    OnSelected(AlphaNumOpt_, &OptionsDialog::AlphaNumOpt_Click);
    OnSelected(SeqRandOpt_, &OptionsDialog::SeqRandOpt_Click);
    On(ui_.LenHsb, &QScrollBar::valueChanged, &OptionsDialog::LenHsb_Change);
}

void OptionsDialog::ConnectOthers() {
    On(ui_.tbsOptions, &QTabBar::currentChanged, &OptionsDialog::tbsOptions_Click);
    On(ui_.ColHsb, &QScrollBar::valueChanged, &OptionsDialog::ColHsb_Change);
    On(ui_.hsbCellSp, &QScrollBar::valueChanged, &OptionsDialog::hsbCellSp_Change);
    On(ui_.chkPerformRuns, &QCheckBox::toggled, &OptionsDialog::chkPerformRuns_Click);
    On(ui_.txtLevel, &QLineEdit::textChanged, &OptionsDialog::txtLevel_Change);
    OnGotFocus(*ui_.txtLevel, &OptionsDialog::txtLevel_GotFocus);
    connect(ui_.cmdOK, &QPushButton::clicked, this, [this] { Press(&OptionValidation::cmdOK_Click); });
    connect(ui_.cmdCancel, &QPushButton::clicked, this,
            [this] { Press(&OptionValidation::cmdCancel_Click); });
    connect(ui_.cmdApply, &QPushButton::clicked, this, [this] { Press(&OptionValidation::cmdApply_Click); });
}

template <class Sender, class Signal>
void OptionsDialog::On(Sender* sender, Signal signal, void (OptionsDialog::*handler)()) {
    connect(sender, signal, this, [this, handler] { guard_.Handle([&] { (this->*handler)(); }); });
}

void OptionsDialog::OnSelected(const OptionGroup& group, IndexedHandler handler) {
    for (std::int16_t Index = 0; QRadioButton * option : group) {
        connect(option, &QRadioButton::toggled, this, [this, handler, Index](bool selected) {
            if (selected)
                guard_.Handle([&] { (this->*handler)(Index); });
        });
        ++Index;
    }
}

void OptionsDialog::OnGotFocus(LineBox& field, void (OptionsDialog::*handler)()) {
    field.OnGotFocus([this, handler] { guard_.Handle([&] { (this->*handler)(); }); });
}

/// Runs what a button does, unless the window has closed: the second half of a double click comes too late.
void OptionsDialog::Press(void (OptionValidation::*button)()) {
    if (isVisible())
        guard_.Handle([&] { (validation_.*button)(); });
}

/// As after a click, the selected option alone is a stop of the Tab key.
void OptionsDialog::Select(const OptionGroup& group, std::int32_t option) {
    QRadioButton* selected = group.at(static_cast<std::size_t>(option));
    for (QRadioButton* button : group)
        button->setFocusPolicy(button == selected ? Qt::StrongFocus : Qt::ClickFocus);
    guard_.Calling([&] { selected->setChecked(true); });
}

/// The handler runs once, whether or not the bar stood there before.
void OptionsDialog::MoveBar(QScrollBar& bar, int position, void (OptionsDialog::*handler)()) {
    {
        const QSignalBlocker quiet(bar);
        bar.setValue(position);
    }
    (this->*handler)();
}

void OptionsDialog::SetText(LineBox& field, const std::string& text) {
    guard_.Calling([&] { field.SetText(text); });
}

void OptionsDialog::Focus(LineBox& field) {
    if (field.isVisible() && field.isEnabled())
        guard_.Calling([&] { field.TakeFocus(); });
}

void OptionsDialog::SelectTab(std::int16_t tab) {
    guard_.Calling([&] { ui_.tbsOptions->setCurrentIndex(tab - 1); });
}

void OptionsDialog::Open() {
    std::exception_ptr failure;
    guard_.Handle([&] {
        try {
            Form_Load();
        } catch (...) {
            failure = std::current_exception(); // the opener's, not the guard's
        }
    });
    if (failure)
        std::rethrow_exception(failure);
    ShowModal();
}

void OptionsDialog::Form_Load() {
    Loading_ = true;
    SetText(*ui_.txtLevel, SevenDigits(settings_.SigLevel));
    txtLevel_Change(); // also where the box showed this text already
    validation_.TakeSnapshot();
    BringOptionsIntoRange(settings_);
    guard_.Calling([&] { ui_.chkPerformRuns->setChecked(settings_.PerformRuns); });
    Select(AlphaNumOpt_, settings_.CodeAlphaNum);
    Select(SeqRandOpt_, settings_.CodeSeqRandom);
    Select(BlkOpt_, settings_.prBlockOption);
    {
        const QSignalBlocker quiet(ui_.LenHsb); // a bar that its limit pushes would overwrite CodeLength
        ui_.LenHsb->setMinimum(LowestCodeLength(settings_.SampleSize));
    }
    MoveBar(*ui_.LenHsb, settings_.CodeLength, &OptionsDialog::LenHsb_Change);
    SetText(*ui_.EqBlockSizeTxt, std::string(settings_.prEqBlockSize));
    SetText(*ui_.UnEqBlockSizeTxt, std::string(settings_.prUnEqBlockSize));
    Loading_ = false;
    MoveBar(*ui_.ColHsb, settings_.Columns, &OptionsDialog::ColHsb_Change);
    ui_.chkTableBorder->setChecked(settings_.TableBorder);
    MoveBar(*ui_.hsbCellSp, settings_.CellSpacing, &OptionsDialog::hsbCellSp_Change);
    pointer_.ShowNormal();
}

bool OptionsDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return ModalWindow::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    bool taken = false;
    guard_.Handle(
        [&] { taken = Form_KeyDown(key->key(), key->modifiers()) || BlkOptTakesKey(*watched, *event); });
    return taken;
}

/// An arrow key selects the option beside and then puts the focus on it, so that the option's field has to
/// have it back. True when `control` was a block option; the key has then reached it.
bool OptionsDialog::BlkOptTakesKey(QObject& control, QEvent& event) {
    if (std::find(BlkOpt_.begin(), BlkOpt_.end(), &control) == BlkOpt_.end())
        return false;
    const std::int32_t before = settings_.prBlockOption;
    guard_.Calling([&] { control.event(&event); });
    if (settings_.prBlockOption != before)
        FocusBlockField();
    return true;
}

/// True when the key has done its work and passes on no further.
bool OptionsDialog::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_Tab || modifiers != Qt::ControlModifier)
        return false;
    const int next = (ui_.tbsOptions->currentIndex() + 1) % ui_.tbsOptions->count();
    guard_.Calling([&] { ui_.tbsOptions->setCurrentIndex(next); });
    return true;
}

void OptionsDialog::BlkOpt_Click(std::int16_t Index) {
    settings_.prBlockOption = Index;
    ui_.EqBlockSizeTxt->setEnabled(Index == EqualSize);
    ui_.UnEqBlockSizeTxt->setEnabled(Index == RandomSizesOf);
    if (!Loading_)
        FocusBlockField();
}

/// Options without a field leave the focus where it is.
void OptionsDialog::FocusBlockField() {
    if (settings_.prBlockOption == EqualSize)
        FocusEqBlockSizeTxt();
    else if (settings_.prBlockOption == RandomSizesOf)
        FocusUnEqBlockSizeTxt();
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
    window.Open();
}

} // namespace orvane
