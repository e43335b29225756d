// The objects that a report of a list needs.
#pragma once

#include "engine/list_settings.h"
#include "engine/sequence_builder.h"
#include "platform/ms_flex_grid.h"
#include "platform/platform.h"

#include <cstdint>

namespace orvane {

struct ReportContext {
    const ListSettings& Settings;
    ListResults& Results;
    const MSFlexGrid& GroupNames;
    SequenceBuilder& Builder;
    Platform& Desktop;
    std::intptr_t MainWindow = 0; ///< handle of the owner window for programs that a report starts; 0: none
};

} // namespace orvane
