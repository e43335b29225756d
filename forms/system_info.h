// The system information tool of the desktop, found through its registry.
#pragma once

#include "platform/platform.h"
#include "platform/registry.h"

#include <cstdint>
#include <string>

namespace orvane {

/// Starts the tool and returns at once, or says in a message that there is none.
void StartSysInfo(Platform& desktop);

/// Reads the value `SubKeyRef` of the key `KeyName` below `KeyRoot`. True with the value in `KeyVal`: a
/// string as it is, a number in decimal digits, a value of any other kind leaves `KeyVal` unchanged. False
/// with an empty `KeyVal` when there is no such value. Throws an Overflow failure for a number that is too
/// large.
bool GetKeyValue(Registry& keys, std::uint32_t KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

} // namespace orvane
