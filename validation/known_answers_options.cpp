#include "validation/known_answers_options.h"

#include "options/option_validation.h"
#include "validation/known_answers_parts.h"
#include "validation/statistics_program.h"

namespace orvane::validation {

ListSettings ValidSettings(std::int16_t groups, std::int16_t sampleSize) {
    ListSettings settings;
    settings.NumberOfGroups = groups;
    settings.SampleSize = sampleSize;
    settings.CodeAlphaNum = Numeric;
    settings.CodeLength = 5;
    settings.SigLevel = 0.05F;
    return settings;
}

OkResult PressOk(ListSettings settings, const std::string& level, const std::vector<float>& values,
                 const Texts& names) {
    ListedValues source(values);
    MemoryDesktop desktop(source);
    FilledInOptions window;
    window.Level = level;
    ListResults results;
    const MemoryNames grid(names.empty() ? GroupLetters(settings.NumberOfGroups) : names);
    OptionValidation options(settings, results, grid, window, desktop.All);
    options.cmdOK_Click();
    OkResult result{desktop.Messages.Take(), window.Focus, ""};
    if (settings.SelectedCmd == ClosedByOK)
        result.Sizes =
            Listed(std::vector<std::int16_t>(results.BlockSizes.begin() + 1, results.BlockSizes.end()));
    return result;
}

} // namespace orvane::validation
