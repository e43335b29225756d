// The option values while the options window is open: what Cancel restores, and the ranges of the window's
// controls.
#pragma once

#include "engine/list_settings.h"

#include <cstdint>
#include <string>

namespace orvane {

/// Gives the eight values that Cancel restores the values of `snapshot`. Columns, TableBorder and CellSpacing
/// are not among them.
void RestoreOptions(ListSettings& settings, const ListSettings& snapshot);

/// The smallest code length allowed for a sample size: its common logarithm, rounded to nearest, ties to
/// even, plus 1; from 1 to 6.
/// Requires: `sampleSize` is above 0.
std::int16_t LowestCodeLength(std::int16_t sampleSize);

/// Sets each option that is out of range, as a settings file can make it, to the nearest value that its
/// control can show, and raises CodeLength to LowestCodeLength.
/// Requires: SampleSize is above 0.
void BringOptionsIntoRange(ListSettings& settings);

/// The value that SigLevel gets when `text` is typed into the field of the significance level: its numeric
/// value as the nearest 32-bit float; the largest or smallest finite float for a number beyond them.
float LevelOf(const std::string& text);

} // namespace orvane
