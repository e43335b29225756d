#include "options/option_validation.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"
#include "options/list_refusal.h"

#include <algorithm>
#include <concepts>
#include <limits>
#include <optional>

namespace orvane {

namespace {

constexpr std::int32_t LargestBlockSize = std::numeric_limits<std::int16_t>::max();
constexpr double HighestLevel = 0.3;
constexpr std::int16_t StatisticsTab = 4;

/// Whether `judge` returns true or throws. A failure of any kind counts as a fault of the field.
template <std::predicate Judge>
bool FindsFault(Judge&& judge) {
    try {
        return judge();
    } catch (...) {
        return true;
    }
}

} // namespace

bool OptionValidation::NotValidInputs() {
    results_.BlockSizes.assign(1, 0);
    return BlocksRefused() || LevelRefused() || ListRefused();
}

bool OptionValidation::Refuse(const std::string& message, Focus focus) {
    desktop_.Messages.Show(message);
    (controls_.*focus)();
    return true;
}

bool OptionValidation::BlocksRefused() {
    switch (settings_.prBlockOption) {
    case OnlyOneBlock:
        results_.BlockSizes.push_back(settings_.SampleSize);
        return false;
    case EqualSize:
        if (EqualSizeRefused())
            return true;
        SetForEqualBlocks();
        return false;
    case RandomSizesOf:
        return FindsFault([this] { return list_.NotValid(settings_.prUnEqBlockSize); }) &&
               Refuse("please specify block sizes", &OptionsControls::FocusUnEqBlockSizeTxt);
    case RandomBlockSize:
        SetForRandomBlockSize();
        return false;
    default:
        return false;
    }
}

bool OptionValidation::EqualSizeRefused() {
    constexpr Focus field = &OptionsControls::FocusEqBlockSizeTxt;
    const std::string& text = settings_.prEqBlockSize;
    if (FindsFault([&] { return NumericValue(text) <= 0; }))
        return Refuse("please specify the block size", field);
    if (FindsFault([&] { return ToInt32(NumericValue(text)) % settings_.NumberOfGroups != 0; }))
        return Refuse("Block size must be divisable by the number of groups", field);
    const std::int32_t size = ToInt32(NumericValue(text));
    if (size == 0)
        return Refuse("please specify the block size", field);
    if (size > LargestBlockSize)
        return Refuse("the block size can be at most " + std::to_string(LargestBlockSize), field);
    return false;
}

bool OptionValidation::LevelRefused() {
    const bool fault = FindsFault([this] {
        const double level = NumericValue(controls_.LevelText());
        return !(level > 0 && level <= HighestLevel);
    });
    if (!fault)
        return false;
    desktop_.Messages.Show("Significance level must be greater than 0 ad less than 0.35");
    controls_.SelectTab(StatisticsTab);
    controls_.FocusTxtLevel();
    return true;
}

bool OptionValidation::ListRefused() {
    const std::optional<std::string> message = ListRefusal(settings_, results_.BlockSizes, groupNames_);
    if (message)
        desktop_.Messages.Show(*message);
    return message.has_value();
}

void OptionValidation::SetForEqualBlocks() {
    const std::int16_t size = ToInt16(NumericValue(settings_.prEqBlockSize));
    // Always one block more than the quotient, even if the division leaves no remainder.
    for (std::int32_t more = settings_.SampleSize / size; more >= 0; --more)
        results_.BlockSizes.push_back(size);
}

void OptionValidation::SetForRandomBlockSize() {
    desktop_.Random.UniformReseed(desktop_.Clock.SecondsSinceMidnight());
    const std::int32_t deals = 1 + settings_.SampleSize / settings_.NumberOfGroups;
    // At least 1: small samples would give the multiplier 0, which means a block without positions.
    const std::int16_t Lo = ToInt16(std::max(1, deals / 5));
    const std::int16_t Hi = ToInt16(std::max(1, deals / 3));
    std::int32_t sum = 0;
    do {
        const std::int16_t size =
            Multiply16(settings_.NumberOfGroups, DrawRandomInt(desktop_.Random, Lo, Hi));
        results_.BlockSizes.push_back(size);
        sum += size;
    } while (sum <= settings_.SampleSize);
}

void OptionValidation::cmdOK_Click() {
    if (NotValidInputs())
        return;
    settings_.SelectedCmd = ClosedByOK;
    settings_.TableBorder = controls_.TableBorderChecked();
    settings_.CellSpacing = controls_.CellSpacingPosition();
    desktop_.Pointer.ShowBusy(); // the caller of ShowModal sets the normal one
    controls_.Close();
}

void OptionValidation::cmdCancel_Click() {
    snapshot_.Restore(settings_);
    settings_.SelectedCmd = ClosedByCancel;
    controls_.Close();
}

void OptionValidation::cmdApply_Click() {}

} // namespace orvane
