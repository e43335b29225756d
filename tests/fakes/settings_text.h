// Settings files as a person would write them.
#pragma once

#include "tools/driving/settings_text.h"

namespace orvane::fakes {

using driving::BytesOf;
using driving::SettingsText;

} // namespace orvane::fakes
