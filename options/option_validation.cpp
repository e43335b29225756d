#include "options/option_validation.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"
#include "options/list_refusal.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace orvane {

namespace {

constexpr std::int32_t LargestBlockSize = std::numeric_limits<std::int16_t>::max();
constexpr double LargestNumber = std::numeric_limits<std::int32_t>::max();
constexpr double HighestLevel = 0.3;
constexpr std::int16_t StatisticsTab = 4;

} // namespace

bool OptionValidation::NotValidInputs() {
    results_.BlockSizes.assign(1, 0);
    return SampleSizeRefused() || BlocksRefused() || LevelRefused() || ListRefused();
}

bool OptionValidation::Refuse(const std::string& message, Focus focus) {
    desktop_.Messages.Show(message);
    (controls_.*focus)();
    return true;
}

/// Assistive programs can change the sample size while this window is open.
bool OptionValidation::SampleSizeRefused() {
    if (settings_.SampleSize > 0)
        return false;
    desktop_.Messages.Show("please specify the sample size");
    return true;
}

bool OptionValidation::BlocksRefused() {
    switch (settings_.prBlockOption) {
    case OnlyOneBlock:
        results_.BlockSizes.push_back(settings_.SampleSize);
        return false;
    case EqualSize: {
        const double size = std::nearbyint(NumericValueOrInfinity(settings_.prEqBlockSize));
        if (EqualSizeRefused(size))
            return true;
        SetForEqualBlocks(ToInt16(size));
        return false;
    }
    case RandomSizesOf:
        return ListHasFault() &&
               Refuse("please specify block sizes", &OptionsControls::FocusUnEqBlockSizeTxt);
    case RandomBlockSize:
        SetForRandomBlockSize();
        return false;
    default:
        return false;
    }
}

bool OptionValidation::EqualSizeRefused(double size) {
    constexpr Focus field = &OptionsControls::FocusEqBlockSizeTxt;
    if (size <= 0 || std::isinf(size))
        return Refuse("please specify the block size", field);
    if (size > LargestNumber || static_cast<std::int32_t>(size) % settings_.NumberOfGroups != 0)
        return Refuse("Block size must be divisable by the number of groups", field);
    if (size > LargestBlockSize)
        return Refuse("the block size can be at most " + std::to_string(LargestBlockSize), field);
    return false;
}

/// A failure, such as a number that is too large or no entropy, counts as a fault of the list.
bool OptionValidation::ListHasFault() {
    try {
        return list_.NotValid(settings_.prUnEqBlockSize);
    } catch (const std::exception&) {
        return true;
    }
}

bool OptionValidation::LevelRefused() {
    const double level = NumericValueOrInfinity(controls_.LevelText());
    if (level > 0 && level <= HighestLevel)
        return false;
    desktop_.Messages.Show("Significance level must be greater than 0 ad less than 0.35");
    controls_.SelectTab(StatisticsTab);
    controls_.FocusTxtLevel();
    return true;
}

bool OptionValidation::ListRefused() {
    const std::optional<std::string> message = ListRefusal(settings_, results_.BlockSizes);
    if (message)
        desktop_.Messages.Show(*message);
    return message.has_value();
}

void OptionValidation::SetForEqualBlocks(std::int16_t size) {
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
    RestoreOptions(settings_, snapshot_);
    settings_.SelectedCmd = ClosedByCancel;
    controls_.Close();
}

void OptionValidation::cmdApply_Click() {}

} // namespace orvane
